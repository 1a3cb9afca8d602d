#include "fb/lua/FB_Lua_Script_Editor.h"

#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/lua/FB_Lua_Code_Edit.h"
#include "fb/lua/FB_Lua_Command_Menu.h"
#include "fb/lua/FB_Lua_Find_Bar.h"
#include "fb/lua/FB_Lua_Notice.h"
#include "fb/lua/FB_Lua_Script_Exchange.h"
#include "fb/lua/FB_Lua_Trace_View.h"
#include "fb/model/FB_Lua_Functions.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "ui/Message_Box.h"
#include "ui/Theme.h"

#include <QDateTime>
#include <QDir>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <functional>

namespace {

constexpr int cScript = 0; // the block's parameters
constexpr int cInputs = 1;
constexpr int cOutputs = 2;
constexpr int cCheckMs = 300;
constexpr int cPausePerCheck = 20; // times as long as the last check took
constexpr int cKeepAliveMs = 5'000;
constexpr QSize cSize(1000, 720);
const QString cViewName = QStringLiteral("FB_Lua_Script_Editor");
const QString cSplitterName = QStringLiteral("FB_Lua_Script_Editor_Splitter");

QString parameter(const DB_FB_Control* block, int index) {
  return block ? block->mParams.value(index) : QString();
}

} // namespace

FB_Lua_Script_Editor::FB_Lua_Script_Editor(Project_Session& session, App_Settings& settings, const QUuid& block,
                                           QWidget* parent)
    : FB_Block_Editor(session, settings, block, parent),
      mToolBar(addToolBar(tr("Script"))),
      mEdit(new FB_Lua_Code_Edit),
      mFind(new FB_Lua_Find_Bar(*mEdit, this)),
      mNotice(new FB_Lua_Notice),
      mStatus(new QPushButton),
      mConsole(new FB_Lua_Trace_View(tr("Konsole"), {tr("Zeitstempel"), tr("Daten")}, this)),
      mVariables(new FB_Lua_Trace_View(tr("Variablen"), {tr("Variable"), tr("Wert")}, this)),
      mStored(storedScript()) {
  buildToolBar();
  buildContents();
  mEdit->setPlainText(mStored);
  mEdit->document()->setModified(false);

  mCheckTimer.setSingleShot(true);
  mCheckTimer.setInterval(cCheckMs);
  connect(&mCheckTimer, &QTimer::timeout, this, &FB_Lua_Script_Editor::checkNow);
  connect(mEdit, &QPlainTextEdit::textChanged, &mCheckTimer, qOverload<>(&QTimer::start));
  connect(mEdit->document(), &QTextDocument::modificationChanged, this, &FB_Lua_Script_Editor::updateState);
  connect(mStatus, &QPushButton::clicked, this, [this] {
    mEdit->goToLine(mCheck.mLine);
    mEdit->setFocus();
  });
  connect(mNotice, &FB_Lua_Notice::pressed, this, &FB_Lua_Script_Editor::showProjectText);
  connect(mConsole, &FB_Lua_Trace_View::clearRequested, this, &FB_Lua_Script_Editor::onTraceClear);
  connect(mConsole, &FB_Lua_Trace_View::copyRequested, this, &FB_Lua_Script_Editor::onTraceCopy);
  connect(mVariables, &FB_Lua_Trace_View::clearRequested, this, &FB_Lua_Script_Editor::onVarClear);
  connect(mVariables, &FB_Lua_Trace_View::copyRequested, this, &FB_Lua_Script_Editor::onVarCopy);
  mKeepAlive.setInterval(cKeepAliveMs);
  connect(&mKeepAlive, &QTimer::timeout, this, &FB_Lua_Script_Editor::onDebugKeepAlive);
  connect(&session.state(), &Session_State::operatingModeChanged, this, &FB_Lua_Script_Editor::updateState);

  resize(cSize);
  restoreGeometry(settings.viewState(cViewName));
  mSplitter->restoreState(settings.viewState(cSplitterName));
  setConnected(false);
  checkNow();
  updateState();
  mEdit->setFocus();
}

FB_Lua_Script_Editor::~FB_Lua_Script_Editor() {
  settings().setViewState(cViewName, saveGeometry());
  settings().setViewState(cSplitterName, mSplitter->saveState());
}

QAction* FB_Lua_Script_Editor::addCommand(const QString& text, const QString& icon, const QKeySequence& keys,
                                          void (FB_Lua_Script_Editor::*slot)()) {
  QAction* const action = mToolBar->addAction(Theme::icon(icon), text);
  action->setShortcut(keys);
  connect(action, &QAction::triggered, this, slot);
  return action;
}

void FB_Lua_Script_Editor::addKeys(const QKeySequence& keys, const std::function<void()>& run) {
  connect(new QShortcut(keys, this), &QShortcut::activated, this, run);
}

void FB_Lua_Script_Editor::buildToolBar() {
  mToolBar->setObjectName(QStringLiteral("toolbar"));
  mToolBar->setMovable(false);
  mToolBar->setContextMenuPolicy(Qt::PreventContextMenu);
  mSave = addCommand(tr("Speichern und ausführen"), QStringLiteral("file_save_white"), QKeySequence::Save,
                     &FB_Lua_Script_Editor::onSave);
  static_cast<QToolButton*>(mToolBar->widgetForAction(mSave))->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  mToolBar->addSeparator();
  mCommands = new QPushButton(tr("Befehle/Funktion"));
  mCommands->setFocusPolicy(Qt::TabFocus);
  connect(mCommands, &QPushButton::clicked, this, &FB_Lua_Script_Editor::onShowCmdMenu);
  mToolBar->addWidget(mCommands);
  mToolBar->addSeparator();
  QAction* const find = mToolBar->addAction(Theme::icon(QStringLiteral("search-white")), tr("Suchen"));
  find->setShortcut(QKeySequence::Find);
  connect(find, &QAction::triggered, this, [this] { mFind->bringUp(false); });
  QAction* const replace = mToolBar->addAction(Theme::icon(QStringLiteral("find_replace_white")), tr("Ersetzen"));
  replace->setShortcut(Qt::CTRL | Qt::Key_H);
  connect(replace, &QAction::triggered, this, [this] { mFind->bringUp(true); });
  addCommand(tr("Gehe zu Zeile"), QStringLiteral("number_white"), Qt::CTRL | Qt::Key_G,
             &FB_Lua_Script_Editor::onGoToLine);
  mToolBar->addSeparator();
  mImport = addCommand(tr("Importieren"), QStringLiteral("import_white"), {}, &FB_Lua_Script_Editor::onImport);
  addCommand(tr("Exportieren"), QStringLiteral("export_white"), {}, &FB_Lua_Script_Editor::onExport);
  addCommand(tr("Hilfe"), QStringLiteral("help_context_white"), QKeySequence::HelpContents,
             &FB_Lua_Script_Editor::onHelp);
  for (QAction* const action : mToolBar->actions()) {
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    action->setToolTip(keys.isEmpty() ? action->text() : QStringLiteral("%1 (%2)").arg(action->text(), keys));
  }

  addKeys(Qt::Key_F3, [this] { mFind->findNext(); });
  addKeys(Qt::SHIFT | Qt::Key_F3, [this] { mFind->findPrevious(); });
  for (const Qt::Key key : {Qt::Key_Minus, Qt::Key_NumberSign}) {
    addKeys(Qt::CTRL | key, [this] { mEdit->toggleComment(); });
  }
  addKeys(Qt::CTRL | Qt::Key_0, [this] { mEdit->setZoom(10); });
}

void FB_Lua_Script_Editor::buildContents() {
  mStatus->setFlat(true);
  mStatus->setStyleSheet(QStringLiteral("text-align: left; padding: 4px 8px;"));
  mStatus->setFocusPolicy(Qt::TabFocus);
  auto* const upper = new QWidget;
  auto* const column = new QVBoxLayout(upper);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(mNotice);
  column->addWidget(mEdit, 1);
  column->addWidget(mFind);
  column->addWidget(mStatus);
  auto* const lower = new QSplitter(Qt::Horizontal);
  lower->addWidget(mConsole);
  lower->addWidget(mVariables);
  lower->setStretchFactor(0, 3);
  lower->setStretchFactor(1, 2);
  mSplitter = new QSplitter(Qt::Vertical);
  mSplitter->addWidget(upper);
  mSplitter->addWidget(lower);
  mSplitter->setStretchFactor(0, 4);
  mSplitter->setStretchFactor(1, 1);
  mSplitter->setCollapsible(0, false);
  setCentralWidget(mSplitter);
}

QString FB_Lua_Script_Editor::script() const {
  return mEdit->toPlainText();
}

QString FB_Lua_Script_Editor::storedScript() const {
  return parameter(record(), cScript);
}

QString FB_Lua_Script_Editor::blockName() const {
  const DB_FB_Control* const block = record();
  if (!block) {
    return {};
  }
  return block->mTitle.isEmpty() ? FB_Types::name(block->mType) : block->mTitle;
}

bool FB_Lua_Script_Editor::isUnsaved() const {
  return mEdit->document()->isModified() && script() != storedScript();
}

void FB_Lua_Script_Editor::onSave() {
  if (save(true)) {
    emit statusText(tr("Script gespeichert. Ausgeführt wird es, sobald eine Verbindung zur Steuerung besteht."));
  }
}

bool FB_Lua_Script_Editor::save(bool isAskingForErrors) {
  checkNow();
  const QString question = tr("Das Script hat in Zeile %1 einen Fehler: %2.").arg(mCheck.mLine).arg(mCheck.mMessage) +
                           u'\n' + tr("Die Steuerung kann es so nicht ausführen. Trotzdem speichern?");
  if (isAskingForErrors && !mCheck && !Message_Box::askYesNo(this, question)) {
    return false;
  }
  const QString text = script();
  if (text != storedScript()) {
    const Edit_Result result = FB_Page_Edits::setParameter(session(), block(), cScript, text);
    if (!result) {
      Message_Box::showMessage(this, result.mError);
      return false;
    }
  }
  mStored = storedScript();
  mEdit->document()->setModified(false);
  mNotice->showText({});
  updateState();
  return true;
}

bool FB_Lua_Script_Editor::finish() {
  if (!isUnsaved()) {
    return true;
  }
  checkNow();
  QString question = tr("Das Script von \"%1\" ist nicht gespeichert.").arg(blockName());
  if (!mCheck) {
    question += u'\n' + tr("Es hat in Zeile %1 einen Fehler: %2.").arg(mCheck.mLine).arg(mCheck.mMessage);
  }
  raise();
  switch (Message_Box::choose(this, question, {tr("&Speichern"), tr("&Verwerfen"), tr("&Abbrechen")})) {
  case 0:
    return save(false);
  case 1:
    showProjectText();
    return true;
  default:
    return false;
  }
}

void FB_Lua_Script_Editor::follow() {
  const QString stored = storedScript();
  updateState();
  if (stored == mStored) {
    return;
  }
  const bool isTakenOver = !mEdit->document()->isModified();
  mStored = stored;
  if (isTakenOver) {
    showProjectText();
  } else if (stored == script()) {
    mEdit->document()->setModified(false);
  } else {
    mNotice->showText(tr("Das Script wurde außerhalb dieses Fensters geändert. Gezeigt ist, was hier getippt wurde."),
                      tr("Änderung &übernehmen"));
  }
}

void FB_Lua_Script_Editor::showProjectText() {
  mStored = storedScript();
  mEdit->replaceAll(mStored);
  mEdit->document()->setModified(false);
  mNotice->showText({});
  checkNow();
  updateState();
}

void FB_Lua_Script_Editor::checkNow() {
  mCheckTimer.stop();
  QElapsedTimer timer;
  timer.start();
  const QString text = script();
  mCheck = FB_Lua_Check::check(text);
  mEdit->setError(mCheck.mLine, mCheck.mMessage);
  mEdit->learnWords(text);
  // A long script waits for a longer pause, so that typing never does.
  mCheckTimer.setInterval(std::max(cCheckMs, cPausePerCheck * static_cast<int>(timer.elapsed())));
  showCheck();
}

void FB_Lua_Script_Editor::showCheck() {
  const bool isGood = static_cast<bool>(mCheck);
  mStatus->setIcon(Theme::icon(isGood ? QStringLiteral("info_white") : QStringLiteral("error_white")));
  mStatus->setText(
      isGood ? tr("Keine Fehler in der Schreibweise")
             : tr("Zeile %1: %2").arg(mCheck.mLine).arg(QString(mCheck.mMessage).replace(u'&', QStringLiteral("&&"))));
  mStatus->setToolTip(isGood ? QString() : tr("Zur Zeile mit dem Fehler"));
  mStatus->setAttribute(Qt::WA_TransparentForMouseEvents, isGood);
  mStatus->setFocusPolicy(isGood ? Qt::NoFocus : Qt::TabFocus);
}

void FB_Lua_Script_Editor::updateState() {
  const bool isOperating = session().state().operatingMode();
  const DB_FB_Page* const page = record() ? session().database().mFbPages.page(record()->mPageGuid) : nullptr;
  const bool isNamed = page && !page->mCaption.isEmpty();
  setWindowTitle(isNamed ? tr("%1 – %2[*]").arg(blockName(), page->mCaption) : tr("%1[*]").arg(blockName()));
  setWindowModified(isUnsaved());
  const bool wasReadOnly = mEdit->isReadOnly();
  mEdit->setReadOnly(isOperating);
  mSave->setEnabled(!isOperating);
  mCommands->setEnabled(!isOperating);
  mImport->setEnabled(!isOperating);
  if (isOperating != wasReadOnly) {
    mNotice->showText(isOperating ? Session_State::operatingModeRefusal() : QString());
  }
}

void FB_Lua_Script_Editor::setConnected(bool isConnected) {
  const QString hint =
      isConnected ? tr("Noch nichts empfangen.") : tr("Werte kommen mit der Verbindung zur Steuerung.");
  mConsole->setHint(hint + u'\n' + tr("sys_debug_print schreibt hierher."));
  mVariables->setHint(hint + u'\n' + tr("sys_debug_watch zeigt hier einen Wert."));
  if (isConnected) {
    mKeepAlive.start();
  } else {
    mKeepAlive.stop();
  }
}

void FB_Lua_Script_Editor::onDebugKeepAlive() {
  emit keepAliveWanted(block());
}

void FB_Lua_Script_Editor::addTrace(const QDateTime& time, const QString& text) {
  mConsole->append({time.toLocalTime().toString(QStringLiteral("dd.MM.yyyy hh:mm:ss.zzz")), text});
}

void FB_Lua_Script_Editor::setVariable(const QString& name, const QString& value) {
  mVariables->set({name, value});
}

void FB_Lua_Script_Editor::onTraceClear() {
  mConsole->clear();
}

void FB_Lua_Script_Editor::onTraceCopy() {
  mConsole->copy();
}

void FB_Lua_Script_Editor::onVarClear() {
  mVariables->clear();
}

void FB_Lua_Script_Editor::onVarCopy() {
  mVariables->copy();
}

void FB_Lua_Script_Editor::onShowCmdMenu() {
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FB_Lua_Command_Menu::fill(*menu, [this](const QString& text) {
    mEdit->insertPlainText(text);
    mEdit->setFocus();
  });
  menu->popup(mCommands->mapToGlobal(QPoint(0, mCommands->height())));
}

void FB_Lua_Script_Editor::onImport() {
  const auto imported = FB_Lua_Script_Exchange::importScript(this, settings());
  if (!imported || mEdit->isReadOnly() || !record()) {
    return;
  }
  mEdit->replaceAll(imported->mText);
  mEdit->document()->setModified(true);
  checkNow();
  updateState();
  emit statusText(tr("Script importiert. Es gilt erst, wenn es gespeichert ist."));
  const auto isMissing = [this](int index, int wanted) { return parameter(record(), index).toInt() < wanted; };
  if (!isMissing(cInputs, imported->mInputs) && !isMissing(cOutputs, imported->mOutputs)) {
    return;
  }
  const QString question = tr("Das Script ist für %1 Eingänge und %2 Ausgänge geschrieben, der Baustein hat %3 und %4. "
                              "Fehlende hinzufügen?")
                               .arg(imported->mInputs)
                               .arg(imported->mOutputs)
                               .arg(parameter(record(), cInputs), parameter(record(), cOutputs));
  if (!Message_Box::askYesNo(this, question, true)) {
    return;
  }
  for (const auto& [index, wanted] : {std::pair(cInputs, imported->mInputs), {cOutputs, imported->mOutputs}}) {
    if (!isMissing(index, wanted)) {
      continue;
    }
    // Both in one turn of the event loop: one step.
    if (const Edit_Result result = FB_Page_Edits::setParameter(session(), block(), index, QString::number(wanted));
        !result) {
      Message_Box::showMessage(this, result.mError);
      return;
    }
  }
}

void FB_Lua_Script_Editor::onExport() {
  const FB_Lua_Script_File::Script what{script(), parameter(record(), cInputs).toInt(),
                                        parameter(record(), cOutputs).toInt()};
  const QString path = FB_Lua_Script_Exchange::exportScript(this, settings(), what, blockName());
  if (!path.isEmpty()) {
    emit statusText(tr("Script exportiert: %1").arg(QDir::toNativeSeparators(path)));
  }
}

void FB_Lua_Script_Editor::onGoToLine() {
  bool isChosen = false;
  const int line = QInputDialog::getInt(this, tr("Gehe zu Zeile"), tr("Zeile (1 bis %1)").arg(mEdit->blockCount()),
                                        mEdit->textCursor().blockNumber() + 1, 1, mEdit->blockCount(), 1, &isChosen);
  if (isChosen) {
    mEdit->goToLine(line);
    mEdit->setFocus();
  }
}

void FB_Lua_Script_Editor::onHelp() {
  const QString word = mEdit->word();
  const bool isKnown = FB_Lua_Functions::find(word) || FB_Lua_Functions::findCallback(word);
  emit helpRequested(isKnown ? QStringLiteral("lua_functions.html#") + word
                             : FB_Types::helpFileName(record() ? record()->mType : 0));
}
