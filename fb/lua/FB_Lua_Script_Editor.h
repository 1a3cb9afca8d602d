#pragma once

#include "fb/FB_Block_Editor.h"
#include "fb/model/FB_Lua_Check.h"

#include <QTimer>

#include <functional>

class FB_Lua_Code_Edit;
class FB_Lua_Find_Bar;
class FB_Lua_Notice;
class FB_Lua_Trace_View;
class QAction;
class QPushButton;
class QSplitter;
class QToolBar;

/// The window in which the script of a script block is written: parameter 0 of the block. What is typed stays here
/// until it is saved, which is one step of the project's history; the field has a history of its own.
class FB_Lua_Script_Editor : public FB_Block_Editor {
  Q_OBJECT

public:
  FB_Lua_Script_Editor(Project_Session& session, App_Settings& settings, const QUuid& block, QWidget* parent);
  ~FB_Lua_Script_Editor() override;

  [[nodiscard]] bool isUnsaved() const override;
  [[nodiscard]] bool finish() override;
  void follow() override;

  [[nodiscard]] QString script() const;
  /// The running script's values come, or come no longer: the editor keeps the controller telling them, and a saved
  /// script is run.
  void setConnected(bool isConnected);
  /// The controller runs the script, or says why it does not (German).
  void showRun(const QString& error);
  /// A line of the running script's console. `time` is the controller's.
  void addTrace(const QDateTime& time, const QString& text);
  void setVariable(const QString& name, const QString& value);

public slots:
  void onSave();
  void onShowCmdMenu();
  void onTraceClear();
  void onTraceCopy();
  void onVarClear();
  void onVarCopy();
  void onDebugKeepAlive();
  void onImport();
  void onExport();
  void onGoToLine();
  void onHelp();

signals:
  /// While it is connected, again and again: the controller is to go on telling this block's values.
  void keepAliveWanted(const QUuid& block);
  /// While it is connected: the script that was just saved is to run.
  void runWanted(const QUuid& block, const QString& script);

private:
  void buildToolBar();
  void buildContents();
  QAction* addCommand(const QString& text, const QString& icon, const QKeySequence& keys,
                      void (FB_Lua_Script_Editor::*slot)());
  void addKeys(const QKeySequence& keys, const std::function<void()>& run);
  /// False when the user wants to go on writing, or the project refused.
  bool save(bool isAskingForErrors);
  void checkNow();
  void showCheck();
  void showProjectText();
  void updateState();
  [[nodiscard]] QString blockName() const;
  [[nodiscard]] QString storedScript() const;

  QToolBar* mToolBar;
  FB_Lua_Code_Edit* mEdit;
  FB_Lua_Find_Bar* mFind;
  FB_Lua_Notice* mNotice;
  QPushButton* mStatus;
  FB_Lua_Trace_View* mConsole;
  FB_Lua_Trace_View* mVariables;
  QSplitter* mSplitter = nullptr;
  QAction* mSave = nullptr;
  QAction* mImport = nullptr;
  QPushButton* mCommands = nullptr;
  QString mStored;      ///< the project's script as it was last seen
  bool mIsGone = false; ///< the block, when this was told last
  bool mIsConnected = false;
  FB_Lua_Check::Result mCheck;
  QTimer mCheckTimer;
  QTimer mKeepAlive;
};
