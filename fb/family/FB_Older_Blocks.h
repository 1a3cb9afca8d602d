#pragma once

#include "fb/FB_Base.h"
#include "fb/FB_Block_Base.h"
#include "fb/FB_HS_Base.h"

// Blocks of older projects, no longer in the catalogue: their types' declarations say all that there is to say.

class FB_Block_Room_Controller_Obsolete final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Boiler_Charging final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_PV_Hot_Water_SW_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_MQTT_Well final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Wallbox_Easee final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Sonos_Cloud final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Sonos_Obsolete final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Alexa_Obsolete final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_ZEV_Central final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_ZEV_Participant final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Shelly_Trigger final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};
