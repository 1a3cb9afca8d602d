#pragma once

#include "fb/FB_Base.h"

/// Base of the blocks that integrate devices.
class FB_HS_Base : public FB_Base {
  Q_OBJECT

public:
  using FB_Base::FB_Base;
};
