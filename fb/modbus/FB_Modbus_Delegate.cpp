#include "fb/modbus/FB_Modbus_Delegate.h"

#include "fb/model/FB_Modbus_Fields.h"
#include "ui/Checked_Line_Edit.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QKeyEvent>

#include <algorithm>

namespace {

FB_Modbus_Fields::Field fieldOf(const QModelIndex& index) {
  return static_cast<FB_Modbus_Fields::Field>(index.column());
}

} // namespace

QWidget* FB_Modbus_Delegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                          const QModelIndex& index) const {
  const FB_Modbus_Fields::Field field = fieldOf(index);
  const QStringList choices = FB_Modbus_Fields::choices(field);
  if (choices.isEmpty()) {
    const auto check = [field](const QString& text) {
      DB_Modbus_Register scratch;
      return FB_Modbus_Fields::set(scratch, field, text);
    };
    return new Checked_Line_Edit(check, parent);
  }
  auto* const box = new QComboBox(parent);
  box->addItems(choices);
  auto* const self = const_cast<FB_Modbus_Delegate*>(this);
  connect(box, qOverload<int>(&QComboBox::activated), self, [self, box] {
    emit self->commitData(box);
    emit self->closeEditor(box);
  });
  return box;
}

void FB_Modbus_Delegate::setEditorData(QWidget* editor, const QModelIndex& index) const {
  const QString text = index.data(Qt::EditRole).toString();
  if (auto* const box = qobject_cast<QComboBox*>(editor)) {
    const int row = box->findText(text);
    box->setCurrentIndex(row);
    const int list = box->view()->sizeHintForColumn(0);
    box->view()->setMinimumWidth(std::max(box->width(), list));
    box->showPopup();
  } else if (auto* const field = qobject_cast<QLineEdit*>(editor)) {
    field->setText(text);
  }
}

void FB_Modbus_Delegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const {
  if (const auto* const box = qobject_cast<QComboBox*>(editor)) {
    if (box->currentIndex() >= 0) {
      model->setData(index, box->currentText());
    }
  } else if (const auto* const field = qobject_cast<Checked_Line_Edit*>(editor); field && field->isValid()) {
    model->setData(index, field->text());
  }
}

/// What may not be is not entered: the editor stays open until it is mended or left.
bool FB_Modbus_Delegate::eventFilter(QObject* watched, QEvent* event) {
  const auto* const field = qobject_cast<Checked_Line_Edit*>(watched);
  if (field && !field->isValid() && event->type() == QEvent::KeyPress) {
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Tab || key == Qt::Key_Backtab) {
      return true;
    }
  }
  return QStyledItemDelegate::eventFilter(watched, event);
}
