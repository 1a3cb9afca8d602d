#include "ui/Alt_Letters.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTextEdit>

Alt_Letters::Alt_Letters(QCoreApplication& application, QObject* parent) : QObject(parent) {
  application.installEventFilter(this);
}

bool Alt_Letters::eventFilter(QObject* object, QEvent* event) {
  if (event->type() != QEvent::KeyPress || !(qobject_cast<QLineEdit*>(object) || qobject_cast<QTextEdit*>(object))) {
    return false;
  }
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool isLetter = !key.text().isEmpty() && key.text().at(0).isPrint();
  // Where AltGr is told as Ctrl and Alt together, it types.
  return isLetter && (key.modifiers() & ~Qt::ShiftModifier) == Qt::AltModifier;
}
