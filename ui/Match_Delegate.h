#pragma once

#include "ui/Named_Icon_Delegate.h"

/// Marks in the cells what was searched for, where the model tells that by `Model_Roles::cMatches`.
class Match_Delegate : public Named_Icon_Delegate {
  Q_OBJECT

public:
  using Named_Icon_Delegate::Named_Icon_Delegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};
