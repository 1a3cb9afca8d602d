#pragma once

#include "ui/Named_Icon_Delegate.h"

/// Draws the rows of an import's comparison: what differs stands out, and the kind of a row has its colour beside its
/// word.
class Address_Import_Delegate : public Named_Icon_Delegate {
  Q_OBJECT

public:
  using Named_Icon_Delegate::Named_Icon_Delegate;

protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};
