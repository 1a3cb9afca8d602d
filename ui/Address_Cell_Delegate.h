#pragma once

#include "ui/Named_Icon_Delegate.h"

class Address_Tree_Model;

/// Edits the cells of the address tree: what may not stand in a cell is told while it is typed and is not taken over;
/// a datapoint type is chosen from the list of the known ones or typed.
class Address_Cell_Delegate : public Named_Icon_Delegate {
  Q_OBJECT

public:
  /// The model outlives the delegate.
  explicit Address_Cell_Delegate(Address_Tree_Model& model, QObject* parent = nullptr);

  [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  Address_Tree_Model& mModel;
};
