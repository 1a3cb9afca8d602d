#include "app/Main_Window_Dev.h"

#include "app/About_Dlg.h"
#include "app/Geo_Position_Dlg.h"
#include "app/Project_Lifecycle.h"
#include "app/Project_Overview.h"
#include "app/Recent_Projects_Menu.h"
#include "app/Start_Page.h"
#include "app/Window_Actions.h"
#include "app/Window_Dialogs.h"
#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "base/Session_State.h"
#include "db/Ets_Export.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"
#include "ui/Address_Import_Dialog.h"
#include "ui/Address_Search_Dialog.h"
#include "ui/Address_View.h"
#include "ui/Invalid_Address_Dialog.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QPointer>
#include <QTimer>

namespace {

constexpr int cShowProjectPercent = 40;
constexpr int cOverviewPercent = 80;

/// The first project file among what is dragged; empty when there is none.
QString projectIn(const QMimeData& data) {
  for (const QUrl& url : data.urls()) {
    QString path = url.toLocalFile();
    if (path.contains(QStringLiteral(".zpro"), Qt::CaseInsensitive)) {
      return path;
    }
  }
  return {};
}

/// A "move" would have the other program delete the file afterwards.
void acceptAsCopy(QDropEvent& event) {
  if (event.possibleActions() & Qt::CopyAction) {
    event.setDropAction(Qt::CopyAction);
    event.accept();
  }
}

} // namespace

Main_Window_Dev::Main_Window_Dev(Project_Session& session, App_Settings& settings, Session_State& state, bool isKiosk)
    : Main_Window_Base(session, settings, isKiosk),
      mState(state),
      mDialogs(std::make_unique<Window_Dialogs>(*this)),
      mActions(new Window_Actions(*this)),
      mLifecycle(new Project_Lifecycle(session, settings, state, *mDialogs, this)) {
  if (isKiosk) {
    mState.setOperatingMode(true);
  }
  const auto action = [this](const char* slot) { return mActions->action(QString::fromLatin1(slot)); };
  buildContents({action("onMenuFileNew"), action("onMenuFileOpen"), action("onMenuFileDemo")},
                {action("onEdit_ODBC_Import"), action("onEditGeopos")});
  setAcceptDrops(!isKiosk);
  connectParts();
  updateActions();
  updateRecentProjects();
}

Main_Window_Dev::~Main_Window_Dev() = default;

void Main_Window_Dev::connectParts() {
  auto* const recent = new Recent_Projects_Menu(*mActions->submenu(QStringLiteral("mMenuLastProjects")), mSettings);
  connect(recent, &Recent_Projects_Menu::chosen, this, &Main_Window_Dev::onOpenPath);
  connect(&startPage(), &Start_Page::recentChosen, this, &Main_Window_Dev::onOpenPath);
  connect(&addressView(), &Address_View::importRequested, this, &Main_Window_Dev::onEdit_ODBC_Import);

  connect(&addressView(), &Address_View::pageChosen, this, &Main_Window_Dev::showPage);

  connect(mLifecycle, &Project_Lifecycle::beginning, this, &Main_Window_Dev::commitEditor);
  connect(mLifecycle, &Project_Lifecycle::info, this, &Main_Window_Dev::showInfo);
  connect(mLifecycle, &Project_Lifecycle::recentProjectsChanged, this, &Main_Window_Dev::updateRecentProjects);
  connect(mLifecycle, &Project_Lifecycle::buildEditors, this, &Main_Window_Dev::onBuildEditors);

  connect(&mState, &Session_State::operatingModeChanged, this, &Main_Window_Dev::updateActions);
  connect(&mSession, &Project_Session::opened, this, &Main_Window_Dev::updateActions);
  connect(&mSession, &Project_Session::closed, this, &Main_Window_Dev::updateActions);
  connect(&mSession.history(), &History::changed, this, &Main_Window_Dev::updateActions);
}

void Main_Window_Dev::updateActions() {
  const History& history = mSession.history();
  mActions->update({isKiosk(), mSession.isOpen(), mState.operatingMode(), history.canUndo(), history.canRedo(),
                    history.undoText(), history.redoText()});
}

void Main_Window_Dev::updateRecentProjects() {
  startPage().setRecentProjects(mSettings.lastProjects());
}

/// Editors hand their text over when they lose the focus.
void Main_Window_Dev::commitEditor() {
  const QPointer<QWidget> editor = focusWidget();
  if (!editor || !editor->hasFocus()) {
    return;
  }
  QPointer<QWidget> around = editor->parentWidget();
  editor->clearFocus();
  if (editor && editor->isVisible()) {
    editor->setFocus();
    return;
  }
  // The editor of a cell is gone; the keys belong to its view again.
  while (around && (around->focusPolicy() & Qt::TabFocus) == 0) {
    around = around->parentWidget();
  }
  if (around) {
    around->setFocus();
  }
}

void Main_Window_Dev::onOpenPath(const QString& path) {
  mLifecycle->open(path);
}

void Main_Window_Dev::onBuildEditors(int percent) {
  if (percent == cShowProjectPercent) {
    showProjectPage();
  } else if (percent == cOverviewPercent) {
    overview().refresh();
  }
}

void Main_Window_Dev::onMenuFileNew() {
  mLifecycle->newProject();
}

void Main_Window_Dev::onMenuFileOpen() {
  mLifecycle->open();
}

void Main_Window_Dev::onMenuFileDemo() {
  mLifecycle->openDemo();
}

void Main_Window_Dev::onMenuFileSave() {
  mLifecycle->save();
}

void Main_Window_Dev::onMenuFileSaveAs() {
  mLifecycle->saveAs();
}

void Main_Window_Dev::onMenuFileClose() {
  mLifecycle->close();
}

void Main_Window_Dev::onMenuFileQuit() {
  close();
}

void Main_Window_Dev::onShowWelcome() {
  updateRecentProjects();
  showStartPage();
}

void Main_Window_Dev::onEdit_Undo() {
  commitEditor();
  const QString step = mSession.history().undoText();
  QString refusal;
  if (mSession.history().undo(&refusal)) {
    showInfo(tr("Rückgängig: %1").arg(step));
  } else {
    showInfo(refusal);
  }
}

void Main_Window_Dev::onEdit_Redo() {
  commitEditor();
  const QString step = mSession.history().redoText();
  QString refusal;
  if (mSession.history().redo(&refusal)) {
    showInfo(tr("Wiederhergestellt: %1").arg(step));
  } else {
    showInfo(refusal);
  }
}

void Main_Window_Dev::onEditGeopos() {
  const DB_Project& project = mSession.database().mProject;
  Geo_Position_Dlg dialog(project.mGeopos_Latitude, project.mGeopos_Longitude, this);
  if (dialog.exec() != QDialog::Accepted || !mSession.isOpen()) {
    return;
  }
  const Edit_Result result = Project_Edits::setGeoposition(mSession, dialog.latitude(), dialog.longitude());
  if (!result) {
    mDialogs->showMessage(result.mError);
  }
}

void Main_Window_Dev::onEdit_ODBC_Import() {
  const QString folder = mImportFolder.isEmpty() ? mSettings.lastProjectDir() : mImportFolder;
  Address_Import_Dialog dialog(mSession, mSettings, folder, this);
  const bool isImported = dialog.exec() == QDialog::Accepted;
  mImportFolder = dialog.folder();
  if (!isImported || !mSession.isOpen()) {
    return;
  }
  showAddresses();
  const Address_Import::Result& result = dialog.importResult();
  const QString text = tr("Adressen importiert: %1.").arg(result.toString());
  if (result.mSkipped > 0) {
    mDialogs->showMessage(text);
  } else {
    showInfo(text);
  }
}

template <class Dialog>
void Main_Window_Dev::showResults(Result_Dialog*& dialog) {
  if (!dialog) {
    dialog = new Dialog(mSession, mSettings, this);
    connect(dialog, &Result_Dialog::addressChosen, this, &Main_Window_Dev::showAddress);
    connect(dialog, &Result_Dialog::pageChosen, this, &Main_Window_Dev::showPage);
  }
  dialog->bringUp();
}

void Main_Window_Dev::onEdit_Search_Unused() {
  showResults<Address_Search_Dialog>(mAddressSearch);
}

void Main_Window_Dev::onEdit_CheckValidAddress() {
  showResults<Invalid_Address_Dialog>(mInvalidAddresses);
}

void Main_Window_Dev::onEdit_ODBC_Export() {
  const QString folder = mImportFolder.isEmpty() ? mSettings.lastProjectDir() : mImportFolder;
  const QString name = QFileInfo(mSession.path()).completeBaseName();
  const QString filter =
      tr("ETS-Export XML") + QStringLiteral(" (*.xml);;") + tr("ETS-Export ESF") + QStringLiteral(" (*.esf)");
  const QString path =
      mDialogs->chooseSaveFile(tr("Adressen exportieren"), folder + u'/' + name + QStringLiteral(".xml"), filter);
  if (path.isEmpty() || !mSession.isOpen()) {
    return;
  }
  mImportFolder = QFileInfo(path).absolutePath();
  if (QFileInfo::exists(path) &&
      !mDialogs->askYesNo(tr("Die Datei \"%1\" ist schon vorhanden. Ersetzen?").arg(QDir::toNativeSeparators(path)))) {
    return;
  }
  Ets_Write_Result result;
  const Edit_Result written = Ets_Export::write(mSession, path, result);
  if (!written) {
    mDialogs->showMessage(written.mError);
    return;
  }
  showInfo(tr("Exportierte Gruppenadressen: %1.").arg(Decimal_Text::count(result.mAddresses)));
  if (!result.mOmitted.isEmpty()) {
    mDialogs->showMessage(tr("Exportiert, aber in diesem Format nicht enthalten:") + QStringLiteral("\n\n") +
                          result.mOmitted.join(u'\n'));
  }
}

void Main_Window_Dev::onShowAboutDlg() {
  About_Dlg(this).exec();
}

void Main_Window_Dev::closeEvent(QCloseEvent* event) {
  if (!mLifecycle->mayQuit()) {
    event->ignore();
    return;
  }
  rememberViews();
  event->accept();
}

void Main_Window_Dev::dragEnterEvent(QDragEnterEvent* event) {
  if (!mLifecycle->isBusy() && !projectIn(*event->mimeData()).isEmpty()) {
    acceptAsCopy(*event);
  }
}

void Main_Window_Dev::dropEvent(QDropEvent* event) {
  acceptAsCopy(*event);
  // The program that the file comes from waits until this is over, so no question may be asked in here.
  QTimer::singleShot(0, this, [this, path = projectIn(*event->mimeData())] { onOpenPath(path); });
}
