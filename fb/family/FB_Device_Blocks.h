#pragma once

#include "fb/FB_HS_Base.h"

// Blocks of devices of other makers: their types' declarations say all that there is to say.

class FB_Sonos_Local final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Alexa_Local final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Matter_Device final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Doorbird final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Siemens_Guarto_3000 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_IP_Camera final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Weather_Station final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Sentiotec final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Alarm_ABI final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Alarm_Jablotron final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_EKEY_UDP final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_EKEY_UDP_Trigger final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_LAN_Master_IO final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_CAN_Master_IO final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_CAN_ESD_IO final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Kostal_Pico_TCP final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Philips_Hue_Lamp final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Philips_Hue_Group final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_KLF_200 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Home_Connect final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Husqvarna_Automower final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};
