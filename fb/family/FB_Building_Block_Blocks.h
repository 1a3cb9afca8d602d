#pragma once

#include "fb/FB_Block_Base.h"

// Blocks of the elements of visualisation pages: their types' declarations say all that there is to say.

class FB_Block_Presence final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Switch final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Switch_Step final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Setpoint final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Light_Dimmer final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Color_Temperature final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Color_RGBW final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Motion_Detector final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Shutter_Blind final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Shutter_Blind_Safety final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Weather_Station final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Shading final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Room_Controller final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Style final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Scene final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Scene_Group final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Scene_Sequence final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Scene_Color_RGBW final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Statistics final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Energy_Monitor final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Energy_Manager final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Storage_Optimiser final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Time_Switch final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_KNX_Code_Switch final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Alarm_Memory_Single final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Alarm_Memory_Multiple final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Contact_Monitoring final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Sun_Position final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Ventilation final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Exhaust_Air final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Irrigation final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Gate_Control final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Air_Conditioner final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};

class FB_Block_Pool final : public FB_Block_Base {
public:
  using FB_Block_Base::FB_Block_Base;
};
