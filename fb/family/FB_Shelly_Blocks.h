#pragma once

#include "fb/FB_HS_Base.h"

// Blocks of Shelly devices: their types' declarations say all that there is to say.

class FB_Shelly_1 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_1 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_1PM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_1PM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_1PM_Mini final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_1_Mini final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_PM_Mini final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_Smoke final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_25_Relay final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_25_Shutter final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_2PM_Relay final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_2PM_Shutter final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_DALI_Dimmer final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Pro_3 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Pro_4PM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Dimmer_2 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_RGBW_2 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_RGBW_PM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plug_S final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_Plug_S final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plug_M final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Motion final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Flood final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Flood_Gen_3 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Presence final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_HT final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_HT final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_3EM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Pro_3EM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_EM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_2DW final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_I3 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_I4 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Wall_Display final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Button_1 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_TRV final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_UNI final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_Plus_UNI final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_BLU_Button_1 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_BLU_RC_Button_4 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_BLU_Door_Window final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_BLU_Motion final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_BLU_HT final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_BLU_TRV final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_Shelly_BLU_Ecowitt_WS90 final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};
