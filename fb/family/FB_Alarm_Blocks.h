#pragma once

#include "fb/FB_Base.h"

// Blocks of alarm systems: their types' declarations say all that there is to say.

class FB_Alarm_Detector final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Alarm_Central final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
