#pragma once

#include "fb/FB_Base.h"

// Blocks of heating, cooling and irrigation: their types' declarations say all that there is to say.

class FB_Heating_Curve final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Heating_Cooling_Curve final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Heating_Circuit final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Heat_Generator final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Heat_Demand final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Circulation_Pump final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Hot_Water_Charging final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Heating_Cooling_Changeover final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mixer final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mixer_Return_Limit final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mixer_KNX_Output final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Two_Point_Controller final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Two_Point_Controller_On_Off final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Three_Point_Controller final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Three_Point_Controller_Hysteresis final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_PID_Controller final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Dew_Point final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Solar_Buffer final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Solar_Buffer_Top_Bottom final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Solar_1_Boiler final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Solar_2_Boilers final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Irrigation final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
