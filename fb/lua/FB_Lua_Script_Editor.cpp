#include "fb/lua/FB_Lua_Script_Editor.h"

#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/lua/FB_Lua_Code_Edit.h"
#include "fb/lua/FB_Lua_Find_Bar.h"
#include "fb/lua/FB_Lua_Notice.h"
#include "fb/lua/FB_Lua_Script_Exchange.h"
#include "fb/lua/FB_Lua_Trace_View.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Lua_Functions.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Types.h"
#include "ui/Message_Box.h"

#include <QDir>
#include <QElapsedTimer>
#include <QInputDialog>
#include <QPushButton>
#include <QSplitter>
#include <QToolBar>

#include <algorithm>
#include <utility>

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

QString FB_Lua_Script_Editor::script() const {
  return mEdit->toPlainText();
}

QString FB_Lua_Script_Editor::storedScript() const {
  return parameter(record(), cScript);
}

QString FB_Lua_Script_Editor::blockName() const {
  const DB_FB_Control* const block = record();
  return block ? FB_Geometry::title(*block).simplified() : QString();
}

bool FB_Lua_Script_Editor::isUnsaved() const {
  return mEdit->document()->isModified() && script() != storedScript();
}

void FB_Lua_Script_Editor::onSave() {
  if (!save(true)) {
    return;
  }
  if (mIsConnected) {
    emit statusText(tr("Script gespeichert. Die Steuerung übernimmt es …"));
    emit runWanted(block(), script());
    onDebugKeepAlive();
  } else {
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
  if (!record()) {
    const bool isDiscarded = mayDiscard();
    mEdit->document()->setModified(!isDiscarded);
    return isDiscarded;
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
  updateState();
  const bool wasGone = std::exchange(mIsGone, !record());
  if (mIsGone) {
    mNotice->showText(goneText());
    return;
  }
  const QString stored = storedScript();
  if (stored == mStored) {
    if (wasGone) {
      mNotice->showText({});
    }
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
