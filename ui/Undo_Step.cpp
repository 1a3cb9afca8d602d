#include "ui/Undo_Step.h"

#include "db/History.h"

#include <QCoreApplication>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Undo_Step", text);
}

} // namespace

QString Undo_Step::undo(History& history) {
  const QString step = history.undoText();
  QString refusal;
  return history.undo(&refusal) ? tr("Rückgängig: %1").arg(step) : refusal;
}

QString Undo_Step::redo(History& history) {
  const QString step = history.redoText();
  QString refusal;
  return history.redo(&refusal) ? tr("Wiederhergestellt: %1").arg(step) : refusal;
}
