#include "fb/properties/FB_Binding_Delegate.h"

#include <QKeyEvent>

FB_Binding_Delegate::FB_Binding_Delegate(FB_Binding_Edit::Search search, QObject* parent)
    : QStyledItemDelegate(parent),
      mSearch(std::move(search)) {}

QWidget* FB_Binding_Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                           const QModelIndex& index) const {
  auto* const editor = new FB_Binding_Edit(mSearch, parent);
  auto* const self = const_cast<FB_Binding_Delegate*>(this); // the toolkit makes editors in a constant call
  connect(editor, &FB_Binding_Edit::chosen, self, [self, editor] {
    if (editor->isValid()) {
      emit self->commitData(editor);
      emit self->closeEditor(editor);
    }
  });
  const QPersistentModelIndex cell(index);
  connect(
      editor, &FB_Binding_Edit::pickerRequested, self,
      [self, editor, cell] {
        emit self->closeEditor(editor, RevertModelCache);
        emit self->pickerRequested(cell);
      },
      Qt::QueuedConnection); // not below the click on the editor's button
  connect(editor, &QObject::destroyed, self, &FB_Binding_Delegate::left);
  mEdited = index;
  mEditor = editor;
  return editor;
}

/// Only once: what comes into the cell while one types does not take the typed text away.
void FB_Binding_Delegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* const field = qobject_cast<QLineEdit*>(editor);
  if (field && !field->isModified() && field->text().isEmpty()) {
    field->setText(index.data(Qt::EditRole).toString());
  }
}

void FB_Binding_Delegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  const auto* const field = qobject_cast<FB_Binding_Edit*>(editor);
  if (field && field->isValid() && field->text() != index.data(Qt::EditRole).toString()) {
    model->setData(index, field->text());
  }
}

/// What may not be is not entered: the editor stays open until it is mended or left.
bool FB_Binding_Delegate::eventFilter(QObject* watched, QEvent* event) {
  const auto* const field = qobject_cast<Checked_Line_Edit*>(watched);
  if (field && !field->isValid() && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab) {
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(watched, event);
}
