#include "app/Project_Write.h"

#include "net/Controller_Link.h"
#include "net/Project_Transfer.h"

#include <utility>

Project_Write::Project_Write(Project_Session& session, Controller_Link& link, QObject* parent)
    : QObject(parent),
      mSession(session),
      mLink(link) {}

void Project_Write::start() {
  if (isRunning()) {
    return;
  }
  mTransfer = new Project_Transfer(mLink.client(), mSession, {}, this);
  mTransfer->setTimeout(mTimeoutMs);
  connect(mTransfer, &Controller_Exchange::progress, this, &Project_Write::progress);
  connect(mTransfer, &Project_Transfer::projectStarted, this, &Project_Write::started);
  connect(mTransfer, &Controller_Exchange::finished, this, &Project_Write::onFinished);
  mTransfer->start();
}

void Project_Write::cancel() {
  if (mTransfer) {
    mTransfer->cancel();
  }
}

void Project_Write::onFinished(Controller_Exchange::End end) {
  Project_Transfer* const transfer = std::exchange(mTransfer, nullptr);
  transfer->deleteLater();
  QString error = transfer->errorText();
  if (end == Controller_Exchange::End::Cancelled) {
    error = transfer->hasStarted() ? tr("Das Projekt läuft auf der Steuerung. Die Übertragung der Ressourcen ist "
                                        "abgebrochen.")
            : transfer->isStarting()
                ? tr("Das Schreiben des Projekts ist abgebrochen. Die Steuerung hat den Start noch "
                     "nicht bestätigt.")
                : tr("Das Schreiben des Projekts ist abgebrochen. Die Steuerung behält ihr Projekt.");
  } else if (end != Controller_Exchange::End::Done && transfer->hasStarted()) {
    error = tr("Das Projekt läuft auf der Steuerung, aber nicht alle Ressourcen sind dort: %1").arg(error);
  }
  emit ended(error);
  emit info(error.isEmpty() ? tr("Projekt erfolgreich auf Steuerung gespeichert.") : error);
}
