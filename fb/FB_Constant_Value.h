#pragma once

#include "fb/FB_Base.h"

/// A constant: its value fills the block.
class FB_Constant_Value : public FB_Base {
  Q_OBJECT

public:
  using FB_Base::FB_Base;

  [[nodiscard]] QString bodyText() const override;
};
