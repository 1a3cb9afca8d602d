#include "net/dialogs/Dev_BackupController_Dlg.h"

#include "net/Controller_Command.h"
#include "net/dialogs/Backup_List_View.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cDescriptionMost = 200;

} // namespace

Dev_BackupController_Dlg::Dev_BackupController_Dlg(const Controller_Access& access, QWidget* parent)
    : Backup_Dialog(access, tr("Backup Steuerung"), QStringLiteral("net:Dev_BackupController_Dlg"), parent),
      mDescription(new QLineEdit),
      mMake(new QPushButton(Theme::icon(QStringLiteral("plus_white")), tr("Sicherung &erstellen"))) {
  mDescription->setMaxLength(cDescriptionMost);
  mDescription->setToolTip(
      tr("Wozu die Sicherung gemacht wird, bis zu %1 Zeichen; darf leer sein").arg(QString::number(cDescriptionMost)));
  mMake->setAutoDefault(false);
  auto* const label = new QLabel(tr("&Beschreibung:"));
  label->setBuddy(mDescription);
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  row->addWidget(label);
  row->addWidget(mDescription, 1);
  row->addWidget(mMake);
  rows().insertLayout(0, row);
  setTabOrder(mDescription, mMake);
  giveEnter(*mDescription, *mMake);
  mDescription->setFocus();
  setTabOrder(mMake, &list());

  addCommand(tr("In &Datei speichern…"), QStringLiteral("file_save_as_white"),
             [this](const Backup& backup) { onFetch(backup); });
  addCommand(tr("&Löschen"), QStringLiteral("trash-white"), [this](const Backup& backup) { onDelete(backup); });
  connect(mMake, &QPushButton::clicked, this, &Dev_BackupController_Dlg::onMake);
}

void Dev_BackupController_Dlg::updateState() {
  Backup_Dialog::updateState();
  mMake->setEnabled(isUsable());
}

void Dev_BackupController_Dlg::onMake() {
  const Exchange_Runner::Request request{tr("Die Sicherung wird erstellt…"), Controller_Command::Backup_Make,
                                         Controller_Request::textPayload(mDescription->text().simplified()),
                                         Controller_Command::Backup_Made};
  runner().request(tr("Sicherung erstellen"), request, [this](Controller_Request& made) {
    const DB_Backup_List backups = made.replyRecord<DB_Backup_List>();
    mDescription->clear();
    if (!backups.mBackups.empty()) {
      list().selectWhenRead(backups.mBackups.front().mId);
    }
    readAgain();
    if (!backups.mBackups.empty()) {
      setNote(tr("Die Sicherung vom %1 ist erstellt.").arg(Backup_List_Model::timeText(backups.mBackups.front())));
    }
  });
}

void Dev_BackupController_Dlg::onFetch(const Backup& backup) {
  const Stream_Load::What what{Controller_Command::Backup_Fetch,
                               backup.mId,
                               Controller_Command::Backup_Fetch_Begin,
                               Controller_Command::Backup_Fetch_Data,
                               tr("Warte auf Daten"),
                               tr("Empfange Daten")};
  loadToFile(backup, what, Controller_File::backup(),
             [this](const QString& path, const QByteArray& bytes) { storeBytes(path, bytes); });
}

void Dev_BackupController_Dlg::onDelete(const Backup& backup) {
  const QString time = Backup_List_Model::timeText(backup);
  if (!ask(tr("Die Sicherung vom %1 wird auf der Steuerung gelöscht.").arg(time) + u'\n' + tr("Fortfahren?"))) {
    return;
  }
  const Exchange_Runner::Request request{tr("Die Sicherung wird gelöscht…"), Controller_Command::Backup_Delete,
                                         Controller_Request::textPayload(backup.mId),
                                         Controller_Command::Backup_Deleted};
  runner().request(tr("Sicherung löschen"), request, [this, time](Controller_Request&) {
    readAgain();
    setNote(tr("Die Sicherung vom %1 ist gelöscht.").arg(time));
  });
}
