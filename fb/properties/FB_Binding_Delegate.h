#pragma once

#include "fb/properties/FB_Binding_Edit.h"

#include <QPointer>
#include <QStyledItemDelegate>

/// Edits what a pin is bound to, in its cell.
class FB_Binding_Delegate : public QStyledItemDelegate {
  Q_OBJECT

public:
  FB_Binding_Delegate(FB_Binding_Edit::Search search, QObject* parent);

  /// The cell whose editor is open; invalid for none.
  [[nodiscard]] QModelIndex edited() const { return mEditor ? QModelIndex(mEdited) : QModelIndex(); }

  [[nodiscard]] QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                                      const QModelIndex& index) const override;
  void setEditorData(QWidget* editor, const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

signals:
  /// The editor is gone.
  void left() const;
  void pickerRequested(const QModelIndex& index) const;

protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

private:
  FB_Binding_Edit::Search mSearch;
  mutable QPersistentModelIndex mEdited;
  mutable QPointer<QWidget> mEditor;
};
