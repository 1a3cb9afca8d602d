#pragma once

#include "fb/FB_Base.h"

/// Presets the values of its outputs: a row for each of them, with the value that is there, or in a paler
/// colour the one that will be sent. In the operating mode a click on a row sends its value.
class FB_Debug_SetValue : public FB_Base {
  Q_OBJECT

public:
  using FB_Base::FB_Base;

  void valuesChanged() override;
  void paintContent(QPainter& painter) const override;
  /// What its parameters say for that output.
  [[nodiscard]] QString preset(int output) const;

protected:
  void mousePressEvent(QMouseEvent* event) override;

private:
  /// -1 for none.
  [[nodiscard]] int rowAt(double y) const;
};
