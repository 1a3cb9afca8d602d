// What the main window's commands do with the controller.
#include "app/Edit_Target.h"
#include "app/Main_Window_Dev.h"
#include "app/Page_Tabs.h"
#include "app/Program_Play.h"
#include "app/Project_Lifecycle.h"
#include "app/Window_Link.h"
#include "base/Session_State.h"
#include "net/dialogs/Controller_Commands.h"
#include "net/dialogs/Dev_Select_Connection.h"

void Main_Window_Dev::connectLink() {
  connect(mLink, &Window_Link::changed, this, &Main_Window_Dev::updateActions);
  connect(mLink, &Window_Link::changed, this, [this] { pageTabs().setConnectedController(mLink->controllerNumber()); });
  connect(mLink, &Window_Link::info, this, &Main_Window_Dev::showInfo);
  connect(&mLink->commands(), &Controller_Commands::projectLoaded, this, &Main_Window_Dev::openLoaded);
}

/// An assistant may work at the moment in which the project has come.
void Main_Window_Dev::openLoaded(const QString& path) {
  if (!mState.toolCallRunning()) {
    onOpenPath(path);
    return;
  }
  connect(
      &mState, &Session_State::toolCallRunningChanged, this, [this, path] { onOpenPath(path); },
      Qt::ConnectionType(Qt::QueuedConnection | Qt::SingleShotConnection));
}

void Main_Window_Dev::onControllerSelectConnection() {
  if (!mConnections) {
    mConnections = new Dev_Select_Connection(mSession, mSettings, mLink->link(), this);
    shareKeys(*mConnections);
  }
  mConnections->bringUp();
}

void Main_Window_Dev::onControllerConnect() {
  mLink->toggle();
}

void Main_Window_Dev::onControlPlay() {
  mEditTarget->commit();
  mLink->play().toggle();
}

void Main_Window_Dev::onControllerSavePersistentProjectAsk() {
  // Writing saves the project first.
  if (!mLink->isOnline() || mLifecycle->maySave()) {
    mLink->commands().writeProject();
  }
}

void Main_Window_Dev::onControllerDownloadProject() {
  mLink->commands().downloadProject();
}

void Main_Window_Dev::onControllerCompareProject() {
  mEditTarget->commit();
  mLink->commands().compare();
}

void Main_Window_Dev::onControllerSavePersistentValues() {
  mLink->commands().storePersistentValues();
}

void Main_Window_Dev::onControllerDownloadPersistentValues() {
  mLink->commands().downloadPersistentValues();
}

void Main_Window_Dev::onControllerUploadPersistentValues() {
  mLink->commands().uploadPersistentValues();
}

void Main_Window_Dev::onControllerBackupController() {
  mLink->commands().backup();
}

void Main_Window_Dev::onControllerRestoreBackup() {
  mLink->commands().restoreBackup();
}

void Main_Window_Dev::onControllerGetInformation() {
  mLink->commands().showInformation();
}

void Main_Window_Dev::onControllerSytemClock() {
  mLink->commands().showClock();
}

void Main_Window_Dev::onControllerReboot() {
  mLink->commands().reboot();
}

void Main_Window_Dev::onControllerFactoryReset() {
  mLink->commands().factoryReset();
}
