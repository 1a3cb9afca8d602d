#pragma once

#include "fb/FB_Base.h"

/// Presets the values of its outputs: a row for each of them, with the value that is there.
class FB_Debug_SetValue : public FB_Base {
  Q_OBJECT

public:
  using FB_Base::FB_Base;

  void valuesChanged() override;
  void paintContent(QPainter& painter) const override;
};
