#pragma once

#include "fb/FB_Base.h"

/// A comment on a logic page, of several lines. It also stands in for blocks of a type that this studio does not know.
class FB_Comment : public FB_Base {
  Q_OBJECT

public:
  using FB_Base::FB_Base;

  void paintBlock(QPainter& painter) const override;
  [[nodiscard]] bool canBeDisabled() const override;
  [[nodiscard]] bool isStandIn() const override;
};
