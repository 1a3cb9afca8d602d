#pragma once

#include "fb/FB_Base.h"

// Blocks of network, messages and pushes: their types' declarations say all that there is to say.

class FB_Network_Input final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Network_Output final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Network_API final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Network_JSON_XML final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Network_Device_Monitoring final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Wake_On_LAN final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Network_SNMP_Input final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Network_SNMP_Output final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Network_Bridge final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Distributed_Project_Status final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Push_NTFY final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Push_Quarna_App final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Push_Pushover final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_IFTTT_Webhooks final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Message_Central final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Message final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
