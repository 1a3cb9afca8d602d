#pragma once

#include "fb/FB_Base.h"

// Blocks of counters, consumption and files: their types' declarations say all that there is to say.

class FB_Consumption final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Consumption_Tariff final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Pulse_Count final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Operating_Time final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Up_Down_Counter final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_CSV_File final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Power final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
