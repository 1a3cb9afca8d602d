#pragma once

#include "fb/FB_Base.h"

// Blocks of calculations: their types' declarations say all that there is to say.

class FB_Mathematics_Addition_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Addition_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Subtraction_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Subtraction_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Multiplication_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Multiplication_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Division_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Division_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Average final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Average_Per_Time final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Moving_Average final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Absolute final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Round final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Power final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Modulo final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Formula final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Sun_Position final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Multiplex final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Demultiplex final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Random final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_ConvertTemperature final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Interpolate final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Minimum final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Mathematics_Maximum final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Minimum_Maximum_Memory final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Minimum_Maximum_Filter final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Trend final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Positive_Negative_Filter final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
