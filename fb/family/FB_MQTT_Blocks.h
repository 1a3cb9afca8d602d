#pragma once

#include "fb/FB_HS_Base.h"

// Blocks of MQTT: their types' declarations say all that there is to say.

class FB_MQTT_Input final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_MQTT_Output final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_MQTT_Addresses final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_MQTT_ALAN final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_MQTT_GDAS final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_MQTT_NUKI final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Weather_Ecowitt_WS90 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Weather_Ecowitt_WN67_WN69 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};
