#pragma once

#include "fb/FB_Base.h"

/// Shows the value of what its input is bound to.
class FB_Debug_ShowValue : public FB_Base {
  Q_OBJECT

public:
  using FB_Base::FB_Base;

  void valuesChanged() override;
  /// The value with its unit, a dash while none is known.
  [[nodiscard]] QString bodyText() const override;
};
