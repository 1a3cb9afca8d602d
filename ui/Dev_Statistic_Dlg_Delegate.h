#pragma once

#include <QStyledItemDelegate>

/// The editors of the dialog "Aufzeichnung": a field with proposals for the address, lists for trigger and controller.
/// For the table of a `Dev_Statistic_Dlg_Model`.
class Dev_Statistic_Dlg_Delegate : public QStyledItemDelegate {
  Q_OBJECT

public:
  using QStyledItemDelegate::QStyledItemDelegate;

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
  void finish(QWidget* editor);
};
