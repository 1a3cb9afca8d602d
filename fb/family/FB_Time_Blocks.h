#pragma once

#include "fb/FB_Base.h"

// Blocks of delays, pulses and clocks: their types' declarations say all that there is to say.

class FB_Time_On_Delay final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Off_Delay final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_On_Off_Delay final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Staircase final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Switch_On_Limit final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Pulse final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Clock_Generator_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Clock_Generator_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Filter_Digital final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Filter_Value final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Pulse_At_Time final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Pulse_Width_Modulator_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Time_Pulse_Width_Modulator_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Clock_Week final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Clock_Holiday final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
