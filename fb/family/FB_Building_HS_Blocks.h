#pragma once

#include "fb/FB_HS_Base.h"

// Blocks of building automation of the HS family: their types' declarations say all that there is to say.

class FB_HS_Central final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_HMLO final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Motion_Detector final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Blind final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Curtain final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Room_Controller final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Shading final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Dimmer final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Color_RGBW final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Color_RGBW_Sequence final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Time_Switch final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Scene_Single final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Scene_Sequence final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Scene_Group final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Weather_Station_Safety final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Weather_Station_Display final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_News final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Code_Switch final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Code_Switch_Simple final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Code_Switch_S_US final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Code_Switch_On_Off final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Energy_Monitor final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Energy_Ranking final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Constant_Light final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Presence_Simulation final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_Color_Temperature final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};

class FB_HS_TRIVUM final : public FB_HS_Base {
public:
  using FB_HS_Base::FB_HS_Base;
};
