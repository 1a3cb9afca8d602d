#include "ui/Address_Cell_Delegate.h"

#include "db/Address_Tree_Model.h"
#include "db/Model_Roles.h"
#include "ui/Checked_Line_Edit.h"
#include "ui/Datapoint_Edit.h"
#include "ui/Theme.h"

#include <QKeyEvent>

Address_Cell_Delegate::Address_Cell_Delegate(Address_Tree_Model& model, QObject* parent)
    : Named_Icon_Delegate(parent),
      mModel(model) {}

/// Live values that may be out of date; the time beside them says it in a word.
void Address_Cell_Delegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  Named_Icon_Delegate::initStyleOption(option, index);
  if (index.column() >= Address_Rows::cValue && index.data(Model_Roles::cIsStale).toBool()) {
    option->font.setItalic(true);
    option->palette.setColor(QPalette::Text, Theme::color(Theme::Role::SecondaryText));
  }
}

QWidget* Address_Cell_Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                             const QModelIndex& index) const {
  if (index.column() == Address_Rows::cType) {
    return new Datapoint_Edit(parent);
  }
  const QPersistentModelIndex cell(index);
  return new Checked_Line_Edit([this, cell](const QString& text) { return mModel.whyNot(cell, text); }, parent);
}

void Address_Cell_Delegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  auto* const field = qobject_cast<QLineEdit*>(editor);
  if (field) {
    field->setText(index.data(Qt::EditRole).toString());
  }
}

void Address_Cell_Delegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  const auto* const field = qobject_cast<Checked_Line_Edit*>(editor);
  if (!field || !field->isValid()) {
    return;
  }
  const auto* const type = qobject_cast<const Datapoint_Edit*>(editor);
  model->setData(index, type ? type->type().toString() : field->text());
}

/// What may not be is not entered: the editor stays open until it is mended or left.
bool Address_Cell_Delegate::eventFilter(QObject* watched, QEvent* event) {
  const auto* const field = qobject_cast<Checked_Line_Edit*>(watched);
  if (field && !field->isValid() && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab) {
      return true;
    }
  }
  return Named_Icon_Delegate::eventFilter(watched, event);
}
