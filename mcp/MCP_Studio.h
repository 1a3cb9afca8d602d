#pragma once

#include "db/Edit_Result.h"
#include "db/New_Project.h"

#include <QObject>
#include <QString>
#include <QUuid>

#include <functional>

class Controller_Link;
class Project_Session;

/// What the assistant's tools need of the studio around the project: the window implements it. Nothing here asks the
/// user anything; a failure comes back as a German sentence.
class MCP_Studio : public QObject {
  Q_OBJECT

public:
  using QObject::QObject;

  [[nodiscard]] virtual Project_Session& session() = 0;

  /// False when the window has been closed and the program is about to end.
  [[nodiscard]] virtual bool hasWindow() const { return true; }

  /// As the window's own commands; without their questions, which count as answered with what loses nothing.
  virtual Edit_Result saveProject() = 0;
  /// Saves and closes what is open before, and keeps it open when the other cannot be opened.
  virtual Edit_Result openProject(const QString& path) = 0;
  virtual Edit_Result saveProjectAs(const QString& path) = 0;
  virtual Edit_Result createProject(const QString& path, const New_Project::Options& options) = 0;
  /// The page of that GUID comes to the front, in the navigation too.
  virtual Edit_Result showPage(const QUuid& page) = 0;

  /// The link to the controller; null in a studio without.
  [[nodiscard]] virtual Controller_Link* link() = 0;
  /// Begins to dial with the project's selected connection, or ends the link; neither shows a dialog.
  virtual Edit_Result connectLink() = 0;
  virtual void disconnectLink() = 0;

  /// Into the operating mode or out of it, see `playSettled`. `force` brings the program over even when the controller
  /// has it already.
  virtual Edit_Result setPlayMode(bool on, bool force) = 0;
  /// The program is on its way; `playSettled` is still to come.
  [[nodiscard]] virtual bool isPlayPending() const = 0;

  /// Begins to write the project to the controller as boot project, see the signals; progress is shown in the status
  /// bar, no box is.
  virtual Edit_Result writeProject() = 0;
  [[nodiscard]] virtual bool isWritingProject() const = 0;

  /// The dialog "Aufzeichnung" is open: it edits a copy of the list that it writes back.
  [[nodiscard]] virtual bool isRecordingDialogOpen() const = 0;

  /// At once, or later when the link is being read at this moment: a tool may wait for the controller. Not at all when
  /// the receiver is gone by then.
  virtual void runOutsideReading(QObject* receiver, const std::function<void()>& what) = 0;

signals:
  /// `error` is empty when the operating mode is as wanted.
  void playSettled(const QString& error);
  /// The controller runs the new project; resources follow.
  void projectStarted(int generation);
  /// All is over; `error` is empty after success.
  void projectWriteEnded(const QString& error);
};
