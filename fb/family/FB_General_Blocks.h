#pragma once

#include "fb/FB_Base.h"

// Blocks of page aids and general blocks: their types' declarations say all that there is to say.

class FB_Initialisation final : public FB_Base {
public:
  using FB_Base::FB_Base;
};
