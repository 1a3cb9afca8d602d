#include "net/dialogs/Controller_Commands.h"

#include "base/App_Settings.h"
#include "db/Project_Image.h"
#include "db/Project_Session.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/Persistent_Values.h"
#include "net/Project_Transfer.h"
#include "net/Stream_Send.h"
#include "net/dialogs/Controller_File.h"
#include "net/dialogs/Dev_BackupController_Dlg.h"
#include "net/dialogs/Dev_Clock_Dlg.h"
#include "net/dialogs/Dev_Compare_Project_Dlg.h"
#include "net/dialogs/Dev_Controller_Dlg.h"
#include "net/dialogs/Dev_Restore_Backup_Dlg.h"
#include "net/dialogs/Dev_Write_Persistent_Project_Dlg.h"
#include "net/dialogs/Exchange_Runner.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QWidget>

Controller_Commands::Controller_Commands(Project_Session& session, App_Settings& settings, Controller_Link& link,
                                         QWidget& window, Controller_Questions* questions, QObject* parent)
    : QObject(parent),
      mAccess{link, session, settings, questions ? *questions : mBoxes},
      mWindow(window) {
  connect(&session, &Project_Session::aboutToClose, this, &Controller_Commands::closeAll);
  // Its client is there until this is heard, so that what runs can still be cancelled.
  connect(&link, &QObject::destroyed, this, &Controller_Commands::closeAll);
}

Controller_Commands::~Controller_Commands() {
  closeAll();
}

bool Controller_Commands::isBusy() const {
  return (mRunner && mRunner->isBusy()) || (mDialog && mDialog->isVisible());
}

void Controller_Commands::closeAll() {
  delete mRunner;
  delete mDialog;
}

bool Controller_Commands::isReady() {
  if (isBusy()) {
    return false;
  }
  if (!mRunner) {
    mRunner = new Exchange_Runner(mAccess, mWindow);
  }
  return mRunner->isReady();
}

bool Controller_Commands::ask(const QString& text) {
  // While it is asked, the window, the link and the commands themselves may go.
  const QPointer<Controller_Commands> self(this);
  return mAccess.mQuestions.askYesNo(&mWindow, text + u'\n' + tr("Fortfahren?")) && self && isReady();
}

void Controller_Commands::openDialog(QDialog* dialog) {
  mDialog = dialog;
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->open();
}

void Controller_Commands::tell(const QString& text) {
  mAccess.mQuestions.showMessage(&mWindow, text);
}

void Controller_Commands::writeProject() {
  const bool isAsked = Dev_Write_Persistent_Project_Dlg::mustAsk(mAccess.mSettings, mAccess.mSession.state(),
                                                                 QDateTime::currentMSecsSinceEpoch());
  if (!isReady() || (isAsked && !ask(Dev_Write_Persistent_Project_Dlg::question()))) {
    return;
  }
  mRunner->runDialog(new Dev_Write_Persistent_Project_Dlg(mAccess, &mWindow), [this](Controller_Exchange& exchange) {
    emit projectWritten(static_cast<Project_Transfer&>(exchange).generation());
  });
}

void Controller_Commands::downloadProject() {
  if (!isReady()) {
    return;
  }
  const ProjectDatabase& database = mAccess.mSession.database();
  const QString remote = database.mControllerInformations.mProjectName;
  const QPointer<Controller_Commands> self(this);
  const QString path = Controller_File::chooseToSave(mAccess, &mWindow, Controller_File::project(),
                                                     remote.isEmpty() ? database.mProject.mName : remote);
  if (path.isEmpty() || !self || !isReady()) {
    return;
  }
  const Stream_Load::What what{Controller_Command::Load,       QStringLiteral("project"),
                               Controller_Command::Load_Begin, Controller_Command::Load_Data,
                               tr("Warte auf Daten"),          tr("Lade Projekt aus der Steuerung")};
  mRunner->load(Controller_File::project().mTitle, what,
                [this, path](const QByteArray& bytes) { storeProject(path, bytes); });
}

void Controller_Commands::storeProject(const QString& path, const QByteArray& bytes) {
  QString error;
  const std::optional<Project_Image> image = Project_Image::fromBytes(bytes, &error);
  if (image && image->writeFile(path, &error)) {
    emit projectLoaded(path);
  } else {
    tell(error);
  }
}

void Controller_Commands::compare() {
  if (!isReady()) {
    return;
  }
  const Exchange_Runner::Request request{
      tr("Die Projekte werden verglichen…"), Controller_Command::Compare, {}, Controller_Command::Compare_Reply};
  mRunner->request(tr("Projektvergleich"), request, [this](Controller_Request& compared) {
    showComparison(compared.replyRecord<DB_Controller_Project>());
  });
}

void Controller_Commands::showComparison(const DB_Controller_Project& controller) {
  QString error;
  ProjectDatabase& database = mAccess.mSession.database();
  const std::optional<Project_Digests> digests = Project_Digests::of(database, &error);
  if (!digests) {
    tell(error);
    return;
  }
  auto* const dialog = new Dev_Compare_Project_Dlg(Project_Comparison(database.mProject, *digests, controller),
                                                   mAccess.mSession.state(), &mWindow);
  connect(dialog, &QDialog::accepted, this,
          [this] { QTimer::singleShot(0, this, &Controller_Commands::downloadProject); });
  openDialog(dialog);
}

void Controller_Commands::backup() {
  if (isReady()) {
    openDialog(new Dev_BackupController_Dlg(mAccess, &mWindow));
  }
}

void Controller_Commands::restoreBackup() {
  if (!isReady()) {
    return;
  }
  auto* const dialog = new Dev_Restore_Backup_Dlg(mAccess, &mWindow);
  connect(dialog, &Dev_Restore_Backup_Dlg::projectLoaded, this, &Controller_Commands::storeProject);
  openDialog(dialog);
}

void Controller_Commands::storePersistentValues() {
  if (!isReady()) {
    return;
  }
  const Exchange_Runner::Request request{tr("Die persistenten Werte werden gespeichert…"),
                                         Controller_Command::Persistent_Store,
                                         {},
                                         Controller_Command::Persistent_Stored};
  mRunner->request(tr("Persistente Werte"), request,
                   [this](Controller_Request&) { tell(tr("Persistente Werte auf Steuerung gespeichert")); });
}

void Controller_Commands::downloadPersistentValues() {
  const QPointer<Controller_Commands> self(this);
  if (!isReady() || !mAccess.mQuestions.askYesNo(&mWindow, tr("Persistente Werte aus Steuerung laden?")) || !self) {
    return;
  }
  const ProjectDatabase& database = mAccess.mSession.database();
  const QString path =
      Controller_File::chooseToSave(mAccess, &mWindow, Controller_File::values(), database.mProject.mName);
  if (path.isEmpty() || !self || !isReady()) {
    return;
  }
  const Stream_Load::What what{Controller_Command::Persistent_Load,
                               {},
                               Controller_Command::Persistent_Load_Begin,
                               Controller_Command::Persistent_Load_Data,
                               tr("Warte auf Daten"),
                               tr("Empfange Daten")};
  mRunner->load(Controller_File::values().mTitle, what, [this, path](const QByteArray& bytes) {
    QString error;
    const bool isWritten = Controller_File::write(path, bytes, &error);
    tell(isWritten ? tr("Die persistenten Werte sind gespeichert: %1").arg(QDir::toNativeSeparators(path)) : error);
  });
}

void Controller_Commands::uploadPersistentValues() {
  if (!isReady()) {
    return;
  }
  const QPointer<Controller_Commands> self(this);
  const QString path = Controller_File::chooseToOpen(mAccess, &mWindow, Controller_File::values());
  if (path.isEmpty() || !self) {
    return;
  }
  const QString name = QFileInfo(path).fileName();
  QString error;
  const std::optional<QByteArray> bytes = Controller_File::read(path, &error);
  if (!bytes || !Persistent_Values::fromBytes(*bytes, &error)) {
    tell(error);
    return;
  }
  if (!ask(tr("Die persistenten Werte an der Steuerung werden durch die der Datei \"%1\" ersetzt.").arg(name))) {
    return;
  }
  const auto make = [access = mAccess, name, bytes = *bytes] {
    const Stream_Send::What what{Controller_Command::Persistent_Send_Begin, Controller_Command::Persistent_Send_Data,
                                 Controller_Command::Persistent_Taken, name, tr("Sende Daten")};
    auto send = std::make_unique<Stream_Send>(access.mLink.client(), what, bytes);
    send->setTimeout(access.mTimeoutMs);
    return send;
  };
  mRunner->run<Stream_Send>(Controller_File::values().mTitle, make, [this](Stream_Send& send) {
    tell(tr("Die Steuerung hat %1 persistente Werte übernommen.").arg(send.replyText()));
  });
}

void Controller_Commands::showInformation() {
  if (isReady()) {
    openDialog(new Dev_Controller_Dlg(mAccess, &mWindow));
  }
}

void Controller_Commands::showClock() {
  if (isReady()) {
    openDialog(new Dev_Clock_Dlg(mAccess, &mWindow));
  }
}

void Controller_Commands::reboot() {
  if (!isReady() || !ask(tr("Die Steuerung wird neu gestartet. Die Verbindung wird dabei beendet."))) {
    return;
  }
  const Exchange_Runner::Request request{
      tr("Die Steuerung wird neu gestartet…"), Controller_Command::Restart, {}, Controller_Command::Restarting};
  mRunner->request(tr("Neustart"), request, [this](Controller_Request&) {
    emit restarting();
    tell(tr("Die Steuerung startet neu und beendet die Verbindung. Danach mit F11 wieder verbinden."));
  });
}

void Controller_Commands::factoryReset() {
  if (!isReady() || !ask(tr("Projekt und persistente Daten an der Steuerung werden gelöscht. Dieser Schritt kann nicht "
                            "rückgängig gemacht werden."))) {
    return;
  }
  const Exchange_Runner::Request request{tr("Das Projekt an der Steuerung wird zurückgesetzt…"),
                                         Controller_Command::Reset,
                                         {},
                                         Controller_Command::Reset_Reply};
  mRunner->request(tr("Projekt zurücksetzen"), request, [this](Controller_Request&) {
    tell(tr("Projekt und persistente Daten an der Steuerung sind zurückgesetzt."));
  });
}
