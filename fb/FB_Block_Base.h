#pragma once

#include "fb/FB_Base.h"

/// Base of the blocks that belong to an element of a visualisation page.
class FB_Block_Base : public FB_Base {
  Q_OBJECT

public:
  using FB_Base::FB_Base;

  [[nodiscard]] bool belongsToElement() const override;
};
