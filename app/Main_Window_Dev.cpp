#include "app/Main_Window_Dev.h"

#include "app/About_Dlg.h"
#include "app/Address_Exchange.h"
#include "app/Autosave.h"
#include "app/Command_Palette.h"
#include "app/Dev_Settings_Dlg.h"
#include "app/Edit_Target.h"
#include "app/Geo_Position_Dlg.h"
#include "app/Language_Menu.h"
#include "app/Page_Tabs.h"
#include "app/Program_Play.h"
#include "app/Project_Drop.h"
#include "app/Project_Lifecycle.h"
#include "app/Project_Overview.h"
#include "app/Recent_Projects_Menu.h"
#include "app/Start_Page.h"
#include "app/Window_Actions.h"
#include "app/Window_Dialogs.h"
#include "app/Window_Link.h"
#include "base/App_Settings.h"
#include "base/Session_State.h"
#include "db/Project_Edits.h"
#include "db/Project_Session.h"
#include "fb/FB_Block_Editors.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_List_Commands.h"
#include "mcp/MCP_Server.h"
#include "ui/Address_Search_Dialog.h"
#include "ui/Address_View.h"
#include "ui/Invalid_Address_Dialog.h"
#include "ui/Project_Search_Dialog.h"
#include "ui/Theme.h"
#include "ui/Undo_Step.h"

#include <QAction>
#include <QActionGroup>
#include <QCloseEvent>
#include <QLabel>
#include <QMenu>
#include <QShortcut>
#include <QStatusBar>
#include <QToolBar>

namespace {

constexpr int cShowProjectPercent = 40;
constexpr int cOverviewPercent = 80;

} // namespace

Main_Window_Dev::Main_Window_Dev(Project_Session& session, App_Settings& settings, Session_State& state, bool isKiosk,
                                 int mcpPort)
    : Main_Window_Base(session, settings, isKiosk),
      mState(state),
      mDialogs(std::make_unique<Window_Dialogs>(*this)),
      mActions(new Window_Actions(*this)),
      mLifecycle(new Project_Lifecycle(session, settings, state, *mDialogs, this)),
      mExchange(new Address_Exchange(session, settings, *mDialogs, *this)),
      mPageCommands(new FB_Page_List_Commands(session, settings, this)),
      mEditors(new FB_Block_Editors(session, settings, this)),
      mLink(new Window_Link({session, settings, *mDialogs, *mEditors, *this, isKiosk})),
      mEditTarget(new Edit_Target(*this)),
      mPalette(new Command_Palette(
          session, [this] { return actionState(); }, this)) {
  if (isKiosk) {
    mState.setOperatingMode(true);
    mSettings.stopRemembering();
    mLifecycle->setKiosk();
  }
  buildContents(stepsOfWindow());
  if (!isKiosk) {
    new Project_Drop(*this, *mLifecycle);
  }
  makeModeMark();
  connectParts();
  connectPageCommands();
  connectLink();
  connectProjectLists();
  connectPalette();
  makeAutosave();
  startAssistant(mcpPort < 0 ? mSettings.value(Setting::McpPort) : mcpPort);
  updateActions();
  updateProjectLists();
}

Main_Window_Dev::~Main_Window_Dev() {
  // Editors hand over what is typed in them when they go: to the project, and not to a window that is half gone.
  for (const QObject* const sender : std::initializer_list<const QObject*>{&mSession, &mSession.history(), &mSettings,
                                                                           &mState, mEditTarget, &pageTabs()}) {
    disconnect(sender, nullptr, this, nullptr);
  }
  delete mServer; // no request any more
  mLink->shutDown();
  delete takeCentralWidget();
}

/// None on a kiosk, which offers nothing to do.
Main_Window_Base::Steps Main_Window_Dev::stepsOfWindow() {
  if (isKiosk()) {
    return {};
  }
  const auto action = [this](const char* slot) { return mActions->action(QString::fromLatin1(slot)); };
  auto* const logic = new QAction(Theme::icon(QStringLiteral("account_tree-white")), tr("Programmseite öffnen"), this);
  logic->setStatusTip(tr("Öffnet die erste Programmseite, um Bausteine zu setzen und zu verbinden"));
  connect(logic, &QAction::triggered, this, &Main_Window_Dev::showFirstLogicPage);
  return {{action("onMenuFileNew"), action("onMenuFileOpen"), action("onMenuFileDemo")},
          {{tr("Ein Projekt anlegen; es beginnt mit einer Programmseite und zwei Visualisierungsseiten."),
            action("onMenuFileNew")},
           {tr("Die Gruppenadressen des Gebäudes aus der ETS übernehmen."), action("onEdit_ODBC_Import")},
           {tr("Festlegen, wo das Gebäude steht."), action("onEditGeopos")},
           {tr("Jeden Befehl, jede Seite und Adresse durch Tippen finden."), action("onShowPalette")}},
          {logic, action("onEdit_ODBC_Import"), action("onEditGeopos")}};
}

void Main_Window_Dev::makeModeMark() {
  mModeMark = new QLabel(tr("Bedienmodus"));
  mModeMark->setToolTip(Session_State::operatingModeRefusal());
  statusBar()->addPermanentWidget(mModeMark);
  mModeMark->setVisible(mState.operatingMode());
  connect(&mState, &Session_State::operatingModeChanged, mModeMark, &QWidget::setVisible);
}

void Main_Window_Dev::connectParts() {
  connect(&addressView(), &Address_View::importRequested, this, &Main_Window_Dev::onEdit_ODBC_Import);
  connect(&addressView(), &Address_View::pageChosen, this, &Main_Window_Dev::showPage);
  connect(mExchange, &Address_Exchange::imported, this, &Main_Window_Dev::showAddresses);
  connect(mExchange, &Address_Exchange::info, this, &Main_Window_Dev::showInfo);

  connect(mLifecycle, &Project_Lifecycle::beginning, mEditTarget, &Edit_Target::commit);
  mLifecycle->setMayBegin([this] { return mEditors->finishAll(); });
  connect(mLifecycle, &Project_Lifecycle::info, this, &Main_Window_Dev::showInfo);
  connect(mLifecycle, &Project_Lifecycle::buildEditors, this, &Main_Window_Dev::onBuildEditors);

  connect(mActions, &Window_Actions::updateWanted, this, &Main_Window_Dev::updateActions);
  connect(mEditTarget, &Edit_Target::changed, this, &Main_Window_Dev::updateActions);
  connect(&pageTabs(), &Page_Tabs::changed, this, &Main_Window_Dev::updateActions);
  connect(&mSettings, &App_Settings::changed, this, &Main_Window_Dev::updateActions);
  connect(this, &Main_Window_Base::workChanged, this, &Main_Window_Dev::updateActions);
  connect(&mState, &Session_State::operatingModeChanged, this, &Main_Window_Dev::updateActions);
  connect(&mSession, &Project_Session::opened, this, &Main_Window_Dev::updateActions);
  connect(&mSession, &Project_Session::closed, this, &Main_Window_Dev::updateActions);
  connect(&mSession.history(), &History::changed, this, &Main_Window_Dev::updateActions);
  connect(&mSession, &Project_Session::closed, this, [this] { mState.setOperatingMode(isKiosk()); });

  for (const QToolBar* const bar : findChildren<QToolBar*>(Qt::FindDirectChildrenOnly)) {
    mActions->menu(Action_Menu::Bars).addAction(bar->toggleViewAction());
  }
  auto* const languages = new Language_Menu(mActions->menu(Action_Menu::Language), mSettings);
  connect(&languages->group(), &QActionGroup::triggered, this, &Main_Window_Dev::onSelectLanguage);
}

void Main_Window_Dev::connectProjectLists() {
  auto* const recent = new Recent_Projects_Menu(mActions->menu(Action_Menu::LastProjects), mSettings);
  connect(recent, &Recent_Projects_Menu::chosen, this, &Main_Window_Dev::onOpenPath);
  connect(&startPage(), &Start_Page::projectChosen, this, &Main_Window_Dev::onOpenPath);
  connect(&startPage(), &Start_Page::favoriteWanted, &mSettings, &App_Settings::setFavoriteProject);
  connect(&startPage(), &Start_Page::removeRecentWanted, &mSettings, &App_Settings::removeLastProject);
  connect(&startPage(), &Start_Page::removeFavoriteWanted, &mSettings,
          [this](const QString& path) { mSettings.setFavoriteProject(path, false); });
  connect(&mSettings, &App_Settings::projectListsChanged, this, &Main_Window_Dev::updateProjectLists);
  connect(&mSession, &Project_Session::closed, this, &Main_Window_Dev::updateProjectLists);
}

void Main_Window_Dev::connectPalette() {
  connect(mPalette, &Command_Palette::actionChosen, this, &Main_Window_Dev::onCommand);
  connect(mPalette, &Command_Palette::pageChosen, this, &Main_Window_Dev::showPage);
  connect(mPalette, &Command_Palette::addressChosen, this, &Main_Window_Dev::showAddress);
}

void Main_Window_Dev::makeAutosave() {
  auto* const autosave = new Autosave(mSession, mState, *mLifecycle, this);
  connect(autosave, &Autosave::info, this, &Main_Window_Dev::showInfo);
  const auto follow = [this, autosave] { autosave->setEnabled(mSettings.isOn(Setting::AutosaveProject)); };
  connect(&mSettings, &App_Settings::changed, autosave, follow);
  follow();
}

void Main_Window_Dev::onCommand(const QString& slot) {
  updateActions(); // no signal tells of every selection and clipboard
  mActions->action(slot)->trigger();
}

Action_State Main_Window_Dev::actionState() const {
  using Command = Edit_Target::Command;
  const History& history = mSession.history();
  Action_State state;
  state.mIsKiosk = isKiosk();
  state.mIsOpen = mSession.isOpen();
  state.mIsOperating = mState.operatingMode();
  state.mCanUndo = history.canUndo();
  state.mCanRedo = history.canRedo();
  state.mUndoText = history.undoText();
  state.mRedoText = history.redoText();
  state.mIsPageShown = isProjectShown() && !pageTabs().currentPage().isNull();
  state.mTabCount = pageTabs().count();
  if (const FB_Page* const page = isProjectShown() ? pageTabs().logicPage() : nullptr) {
    state.mIsLogicShown = true;
    state.mSelectedBlocks = page->selectedBlocks().size();
  }
  state.mIsGridShown = mSettings.isOn(Setting::ShowGrid);
  state.mKeepsOutputs = mSettings.isOn(Setting::FBCopyPasteKeepIO);
  state.mAreValuesShown = pageTabs().areValuesShown();
  state.mIsOrderShown = pageTabs().isOrderShown();
  state.mIsLinkWanted = mLink->isWanted();
  state.mIsOnline = mLink->isOnline();
  state.mIsProgramOnItsWay = mLink->play().isRunning();
  state.mLinkText = mLink->stateText();
  state.mCanCut = mEditTarget->can(Command::Cut);
  state.mCanCopy = mEditTarget->can(Command::Copy);
  state.mCanPaste = mEditTarget->can(Command::Paste);
  state.mCanDelete = mEditTarget->can(Command::Delete);
  state.mCanDuplicate = mEditTarget->can(Command::Duplicate);
  state.mCanSelectAll = mEditTarget->can(Command::SelectAll);
  return state;
}

void Main_Window_Dev::updateActions() {
  mActions->update(actionState());
}

void Main_Window_Dev::updateProjectLists() {
  // A kiosk shows what it was started with.
  if (!isKiosk()) {
    startPage().setProjects(mSettings.lastProjects(), mSettings.favoriteProjects());
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
  if (mLifecycle->openDemo()) {
    showFirstLogicPage();
  }
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
  updateProjectLists(); // files may have come or gone
  showStartPage();
}

void Main_Window_Dev::onEdit_Undo() {
  mEditTarget->commit();
  showInfo(Undo_Step::undo(mSession.history()));
}

void Main_Window_Dev::onEdit_Redo() {
  mEditTarget->commit();
  showInfo(Undo_Step::redo(mSession.history()));
}

void Main_Window_Dev::onEditGeopos() {
  const QString path = mSession.path();
  const DB_Project& project = mSession.database().mProject;
  Geo_Position_Dlg dialog(project.mGeopos_Latitude, project.mGeopos_Longitude, this);
  if (dialog.exec() != QDialog::Accepted || mSession.path() != path) {
    return;
  }
  const Edit_Result result = Project_Edits::setGeoposition(mSession, dialog.latitude(), dialog.longitude());
  if (!result) {
    mDialogs->showMessage(result.mError);
  }
}

void Main_Window_Dev::onEdit_ODBC_Import() {
  mExchange->importAddresses();
}

void Main_Window_Dev::onEdit_ODBC_Export() {
  mExchange->exportAddresses();
}

/// The window's commands are also for a window that stays open beside it, but for the keys that this has itself.
void Main_Window_Dev::shareKeys(QWidget& dialog) {
  QList<QKeySequence> taken;
  for (const QShortcut* const shortcut : dialog.findChildren<QShortcut*>()) {
    taken.append(shortcut->key());
  }
  for (QAction* const action : actions()) {
    if (!action->shortcut().isEmpty() && !taken.contains(action->shortcut())) {
      dialog.addAction(action);
    }
  }
}

void Main_Window_Dev::connectResults(Result_Dialog& dialog) {
  connect(&dialog, &Result_Dialog::addressChosen, this, &Main_Window_Dev::showAddress);
  connect(&dialog, &Result_Dialog::pageChosen, this, &Main_Window_Dev::showPage);
  connect(&dialog, &Result_Dialog::childChosen, this, &Main_Window_Dev::showChild);
  shareKeys(dialog);
}

void Main_Window_Dev::onEdit_Search_Unused() {
  resultDialog(mAddressSearch).bringUp();
}

void Main_Window_Dev::onEdit_CheckValidAddress() {
  resultDialog(mInvalidAddresses).bringUp();
}

void Main_Window_Dev::onEdit_Search() {
  search(false);
}

void Main_Window_Dev::onEditFindReplace() {
  search(true);
}

void Main_Window_Dev::search(bool isReplacing) {
  mEditTarget->commit();
  Project_Search_Dialog& dialog = resultDialog(mProjectSearch);
  dialog.setReplaceMode(isReplacing);
  dialog.bringUp();
}

void Main_Window_Dev::onEditCut() {
  mEditTarget->run(Edit_Target::Command::Cut);
}

void Main_Window_Dev::onEditCopy() {
  mEditTarget->run(Edit_Target::Command::Copy);
}

void Main_Window_Dev::onEdit_Paste() {
  mEditTarget->run(Edit_Target::Command::Paste);
}

void Main_Window_Dev::onEditDelete() {
  mEditTarget->run(Edit_Target::Command::Delete);
}

void Main_Window_Dev::onEditDuplicate() {
  mEditTarget->run(Edit_Target::Command::Duplicate);
}

void Main_Window_Dev::onEditSelectAll() {
  mEditTarget->run(Edit_Target::Command::SelectAll);
}

void Main_Window_Dev::onEditChangeView() {
  showProjectPage();
  if (!pageTabs().showOtherKind()) {
    showInfo(tr("Das Projekt hat keine Seite, zu der gewechselt werden kann."));
  }
}

void Main_Window_Dev::onShowPalette() {
  mPalette->bringUp();
}

void Main_Window_Dev::onPagePrevious() {
  showProjectPage();
  pageTabs().showPrevious();
}

void Main_Window_Dev::onPageNext() {
  showProjectPage();
  pageTabs().showNext();
}

void Main_Window_Dev::onPageClose() {
  pageTabs().closeCurrent();
}

void Main_Window_Dev::onShowWork() {
  enterWork();
}

void Main_Window_Dev::onShowNavigation() {
  enterNavigation();
}

void Main_Window_Dev::onShowVariables() {
  enterVariables();
}

void Main_Window_Dev::onExtrasSettingsDev() {
  Dev_Settings_Dlg(mSettings, this).exec();
}

void Main_Window_Dev::onSelectLanguage(QAction* action) {
  const QString code = action->data().toString();
  if (code == mSettings.languageDev()) {
    return;
  }
  mSettings.setLanguageDev(code);
  showInfo(tr("Die Sprache \"%1\" gilt ab dem nächsten Start.").arg(action->iconText()));
}

void Main_Window_Dev::onShowAboutDlg() {
  About_Dlg(this).exec();
}

void Main_Window_Dev::closeEvent(QCloseEvent* event) {
  if (!mLifecycle->isFreeOfAssistant() || !mLink->mayEnd() || !mLifecycle->mayQuit()) {
    event->ignore();
    return;
  }
  rememberViews();
  event->accept();
}
