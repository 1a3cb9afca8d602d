#pragma once

#include "fb/FB_Base.h"

// Blocks of comparison and limits: their types' declarations say all that there is to say.

class FB_Compare_Equal_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Equal_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Not_Equal_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Not_Equal_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Greater_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Greater_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Greater_Equal_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Greater_Equal_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Less_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Less_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Less_Equal_1 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Less_Equal_2 final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Limit final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Limit_Time final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Compare_Limit_Difference final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_State_Evaluation final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Measured_Value_Plausibility final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Measured_Value_Monitoring final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
