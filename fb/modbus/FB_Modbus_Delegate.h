#pragma once

#include <QStyledItemDelegate>

/// Edits the cells of a table of Modbus registers: choices in a list, the rest as text that is checked while it is
/// typed and cannot be entered when it may not be.
class FB_Modbus_Delegate : public QStyledItemDelegate {
  Q_OBJECT

public:
  using QStyledItemDelegate::QStyledItemDelegate;

  [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
};
