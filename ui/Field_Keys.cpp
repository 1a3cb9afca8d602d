#include "ui/Field_Keys.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextEdit>

namespace {

bool isAccessKey(const QKeyEvent& key) {
  const bool isLetter = !key.text().isEmpty() && key.text().at(0).isPrint();
  // Where AltGr is told as Ctrl and Alt together, it types.
  return isLetter && (key.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier;
}

bool isForWindow(const QLineEdit& field, const QKeyEvent& key) {
  const bool isWordMove = key.matches(QKeySequence::MoveToNextWord) || key.matches(QKeySequence::MoveToPreviousWord);
  return (isWordMove && field.text().isEmpty()) || (key.matches(QKeySequence::Undo) && !field.isUndoAvailable()) ||
         (key.matches(QKeySequence::Redo) && !field.isRedoAvailable());
}

} // namespace

Field_Keys::Field_Keys(QCoreApplication& application, QObject* parent) : QObject(parent) {
  application.installEventFilter(this);
}

QLineEdit* Field_Keys::lineOf(QObject* object) {
  const bool isAround = qobject_cast<QAbstractSpinBox*>(object) || qobject_cast<QComboBox*>(object);
  return isAround ? object->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)
                  : qobject_cast<QLineEdit*>(object);
}

bool Field_Keys::eventFilter(QObject* object, QEvent* event) {
  const bool isPress = event->type() == QEvent::KeyPress;
  if (!isPress && event->type() != QEvent::ShortcutOverride) {
    return false;
  }
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const QLineEdit* const field = lineOf(object);
  if (isPress) {
    return (field || qobject_cast<QTextEdit*>(object)) && isAccessKey(key);
  }
  if (!field || !isForWindow(*field, key)) {
    return false;
  }
  event->ignore(); // the field would claim the keys
  return true;
}
