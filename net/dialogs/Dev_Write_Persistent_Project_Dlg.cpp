#include "net/dialogs/Dev_Write_Persistent_Project_Dlg.h"

#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "net/Controller_Link.h"
#include "net/Project_Transfer.h"
#include "net/dialogs/Controller_Questions.h"

#include <QPointer>

Dev_Write_Persistent_Project_Dlg::Dev_Write_Persistent_Project_Dlg(const Controller_Access& access, QWidget* parent)
    : Exchange_Dialog(
          tr("Bootprojekt erzeugen"),
          [access] {
            auto transfer =
                std::make_unique<Project_Transfer>(access.mLink.client(), access.mSession, Project_Transfer::Options());
            transfer->setTimeout(access.mTimeoutMs);
            return transfer;
          },
          parent),
      mAccess(access) {}

bool Dev_Write_Persistent_Project_Dlg::mustAsk(const App_Settings& settings, const Session_State& state, qint64 nowMs) {
  return settings.isOn(Setting::AskBeforeWriteBootProject) && !state.assistantActive(nowMs);
}

QString Dev_Write_Persistent_Project_Dlg::question() {
  return tr("Das Projekt an der Steuerung wird durch das lokale Projekt ersetzt.");
}

bool Dev_Write_Persistent_Project_Dlg::tell(const QString& text) {
  const QPointer<QDialog> self(this);
  mAccess.mQuestions.showMessage(isVisible() ? this : parentWidget(), text);
  return self;
}

void Dev_Write_Persistent_Project_Dlg::onSucceeded() {
  if (tell(tr("Projekt erfolgreich gespeichert"))) {
    accept();
  }
}

/// Too late to keep the old project there, or perhaps: that must be known.
void Dev_Write_Persistent_Project_Dlg::onCancelled() {
  const auto& transfer = static_cast<const Project_Transfer&>(*exchange());
  const QString text =
      transfer.hasStarted() ? tr("Das Projekt läuft auf der Steuerung. Die Übertragung der Ressourcen ist abgebrochen.")
      : transfer.isStarting() ? tr("Die Steuerung hat den Start des Projekts noch nicht bestätigt. Welches Projekt sie "
                                   "ausführt, zeigt \"Projekt mit Steuerung vergleichen\".")
                              : QString();
  if (text.isEmpty() || tell(text)) {
    Exchange_Dialog::reject();
  }
}
