// What the window of a script consists of, and what it shows.
#include "db/Project_Session.h"
#include "fb/lua/FB_Lua_Code_Edit.h"
#include "fb/lua/FB_Lua_Command_Menu.h"
#include "fb/lua/FB_Lua_Find_Bar.h"
#include "fb/lua/FB_Lua_Notice.h"
#include "fb/lua/FB_Lua_Script_Editor.h"
#include "fb/lua/FB_Lua_Trace_View.h"
#include "ui/Theme.h"

#include <QDateTime>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include <functional>

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
  showTitle(tr("Script"));
  setWindowModified(isUnsaved());
  const bool wasReadOnly = mEdit->isReadOnly();
  mEdit->setReadOnly(isOperating);
  mSave->setEnabled(!isOperating && record());
  mCommands->setEnabled(!isOperating);
  mImport->setEnabled(!isOperating && record());
  if (isOperating != wasReadOnly) {
    mNotice->showText(isOperating ? Session_State::operatingModeRefusal() : QString());
  }
}

void FB_Lua_Script_Editor::setConnected(bool isConnected) {
  const QString hint =
      isConnected ? tr("Noch nichts empfangen.") : tr("Werte kommen mit der Verbindung zur Steuerung.");
  mConsole->setHint(hint + u'\n' + tr("sys_debug_print schreibt hierher."));
  mVariables->setHint(hint + u'\n' + tr("sys_debug_watch zeigt hier einen Wert."));
  if (mIsConnected == isConnected) {
    return;
  }
  mIsConnected = isConnected;
  if (isConnected) {
    mKeepAlive.start();
    onDebugKeepAlive();
  } else {
    mKeepAlive.stop();
  }
}

void FB_Lua_Script_Editor::showRun(const QString& error) {
  if (error.isEmpty()) {
    mNotice->showText({});
    emit statusText(tr("Die Steuerung führt das Script von \"%1\" aus.").arg(blockName()));
  } else {
    mNotice->showText(tr("Die Steuerung führt das Script nicht aus: %1").arg(error));
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
