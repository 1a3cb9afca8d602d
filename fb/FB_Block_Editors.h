#pragma once

#include "fb/FB_Block_Editor.h"

#include <QHash>
#include <QObject>
#include <QPointer>

class FB_Lua_Script_Editor;
class QDateTime;

/// The windows in which blocks are edited: which type has one, and at most one for each block. Session, settings and
/// the parent of the windows outlive it.
class FB_Block_Editors : public QObject {
  Q_OBJECT

public:
  FB_Block_Editors(Project_Session& session, App_Settings& settings, QWidget* windows);

  /// Whether blocks of that type have a window of their own.
  [[nodiscard]] static bool has(int type);
  /// What opening it is called in menus and on buttons: "Script bearbeiten"; empty for a type without one.
  [[nodiscard]] static QString commandText(int type);

  /// Opens the window of the block, or brings it to the front; null for a block that has none.
  FB_Block_Editor* open(const QUuid& block);
  /// Asks each to `finish`; false as soon as the user wants to go on editing in one.
  [[nodiscard]] bool finishAll();

  // What the controller tells of running scripts goes to the windows of their blocks; without one it is dropped.
  void setConnected(bool isConnected);
  void showRun(const QUuid& block, const QString& error);
  void addTrace(const QUuid& block, const QDateTime& time, const QString& text);
  void setVariable(const QUuid& block, const QString& name, const QString& value);

signals:
  void helpRequested(const QString& page);
  void statusText(const QString& text);
  // Of the windows of scripts.
  void runWanted(const QUuid& block, const QString& script);
  void keepAliveWanted(const QUuid& block);

private:
  /// Closes those whose block is gone and that hold nothing unsaved, and tells the others.
  void follow();
  void connectScript(FB_Lua_Script_Editor& editor);
  /// Null when none is open for that block.
  [[nodiscard]] FB_Lua_Script_Editor* script(const QUuid& block) const;

  Project_Session& mSession;
  App_Settings& mSettings;
  QWidget* mWindows;
  bool mIsConnected = false;
  QHash<QUuid, QPointer<FB_Block_Editor>> mOpen; ///< by block
};
