#include "net/dialogs/Dev_Restore_Backup_Dlg.h"

#include "net/Controller_Command.h"
#include "net/dialogs/Backup_List_Model.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

namespace {

constexpr int cGroupGap = 12;

} // namespace

Dev_Restore_Backup_Dlg::Dev_Restore_Backup_Dlg(const Controller_Access& access, QWidget* parent)
    : Backup_Dialog(access, tr("Sicherung wiederherstellen"), QStringLiteral("net:Dev_Restore_Backup_Dlg"), parent),
      mAll(new QRadioButton(tr("Projekt &und persistente Werte"))),
      mProject(new QRadioButton(tr("Nur &Projekt"))),
      mValues(new QRadioButton(tr("Nur persistente W&erte"))) {
  mAll->setChecked(true);
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGroupGap);
  row->addWidget(new QLabel(tr("Wiederhergestellt wird:")));
  row->addWidget(mAll);
  row->addWidget(mProject);
  row->addWidget(mValues);
  row->addStretch();
  rows().addLayout(row);

  addCommand(tr("&Wiederherstellen"), QStringLiteral("restore_backup_white"),
             [this](const Backup& backup) { onRestore(backup); });
  addCommand(tr("Projekt &laden…"), QStringLiteral("load_project_from_control"),
             [this](const Backup& backup) { onLoadProject(backup); });
  addCommand(tr("Persistente &Daten laden…"), QStringLiteral("persistent_load_white"),
             [this](const Backup& backup) { onLoadValues(backup); });
}

void Dev_Restore_Backup_Dlg::onRestore(const Backup& backup) {
  const QString time = Backup_List_Model::timeText(backup);
  const QString loss = mProject->isChecked()  ? tr("Das Projekt an der Steuerung wird ersetzt.")
                       : mValues->isChecked() ? tr("Die persistenten Werte an der Steuerung werden ersetzt.")
                                              : tr("Projekt und persistente Werte an der Steuerung werden ersetzt.");
  if (!ask(tr("Die Sicherung vom %1 wird wiederhergestellt.").arg(time) + u' ' + loss + u'\n' + tr("Fortfahren?"))) {
    return;
  }
  const QString what = mProject->isChecked()  ? QStringLiteral("project")
                       : mValues->isChecked() ? QStringLiteral("persistent")
                                              : QStringLiteral("all");
  const Exchange_Runner::Request request{tr("Bitte warten"), Controller_Command::Backup_Restore,
                                         Controller_Request::textPayload(QStringLiteral("%1#%2").arg(backup.mId, what)),
                                         Controller_Command::Backup_Restored};
  runner().request(windowTitle(), request, [this, time](Controller_Request&) {
    setNote(tr("Die Sicherung vom %1 ist wiederhergestellt.").arg(time));
  });
}

void Dev_Restore_Backup_Dlg::onLoadProject(const Backup& backup) {
  const Stream_Load::What what{Controller_Command::Load,       QStringLiteral("project#") + backup.mId,
                               Controller_Command::Load_Begin, Controller_Command::Load_Data,
                               tr("Warte auf Daten"),          tr("Lade Projekt aus der Steuerung")};
  loadToFile(backup, what, Controller_File::project(),
             [this](const QString& path, const QByteArray& bytes) { emit projectLoaded(path, bytes); });
}

void Dev_Restore_Backup_Dlg::onLoadValues(const Backup& backup) {
  const Stream_Load::What what{Controller_Command::Load,       QStringLiteral("persistent#") + backup.mId,
                               Controller_Command::Load_Begin, Controller_Command::Load_Data,
                               tr("Warte auf Daten"),          tr("Lade persistente Daten aus der Steuerung")};
  loadToFile(backup, what, Controller_File::values(),
             [this](const QString& path, const QByteArray& bytes) { storeBytes(path, bytes); });
}
