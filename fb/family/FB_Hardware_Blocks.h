#pragma once

#include "fb/FB_Base.h"

// Blocks of the interfaces of the controller: their types' declarations say all that there is to say.

class FB_M8800_Bus_System final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_KNX_Interface final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_DMX final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_MBus final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Modbus_Master final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Modbus_TCP_Slave final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_CPU_Info final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
