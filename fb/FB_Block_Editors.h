#pragma once

#include "fb/FB_Block_Editor.h"

#include <QHash>
#include <QObject>
#include <QPointer>

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

signals:
  void helpRequested(const QString& page);
  void statusText(const QString& text);

private:
  /// Closes those whose block is gone and that hold nothing unsaved, and tells the others.
  void follow();

  Project_Session& mSession;
  App_Settings& mSettings;
  QWidget* mWindows;
  QHash<QUuid, QPointer<FB_Block_Editor>> mOpen; ///< by block
};
