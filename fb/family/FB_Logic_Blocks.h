#pragma once

#include "fb/FB_Base.h"

// Blocks of logic, selection and assignment: their types' declarations say all that there is to say.

class FB_INV final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_INV_1N final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_AND final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_OR final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_XOR final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Set_Reset final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Edge_Evaluation final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Assign_To_1_1_Digital final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Assign_To_1_N_Digital final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Input_Switch final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Output_Switch final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Manual_Automatic final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Step final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Step_Chain final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Binary_Encoder final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Binary_Decoder final : public FB_Base {
public:
  using FB_Base::FB_Base;
};

class FB_Shift_Register final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
