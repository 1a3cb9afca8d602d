#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

#include <chrono>

class Project_Lifecycle;
class Project_Session;
class Session_State;

/// Brings the records of the open project into its working file now and then, so that a crash loses little. The project
/// file is written by saving only.
///
/// The clock runs only while the working file lacks something. What the user or an assistant is in the middle of (a
/// mouse button held down, an edit, a tool call, a lifecycle operation) is never interrupted: it is waited for. A box
/// that stands open is none of these; somebody may have gone to lunch.
class Autosave : public QObject {
  Q_OBJECT

public:
  struct Times {
    std::chrono::milliseconds mInterval = std::chrono::minutes(3); ///< from the first change, and after a failure
    std::chrono::milliseconds mRetry = std::chrono::seconds(1);    ///< while something is not to be interrupted
  };

  /// All of them must outlive this object. It is on until switched off.
  Autosave(Project_Session& session, const Session_State& state, const Project_Lifecycle& lifecycle,
           QObject* parent = nullptr);
  Autosave(Project_Session& session, const Session_State& state, const Project_Lifecycle& lifecycle, Times times,
           QObject* parent = nullptr);

  void setEnabled(bool on);

signals:
  /// For the status bar: a failure, once until the next success.
  void info(const QString& text);

private:
  void onChanged();
  void onTimeout();
  [[nodiscard]] bool isInterrupting() const;

  Project_Session& mSession;
  const Session_State& mState;
  const Project_Lifecycle& mLifecycle;
  const Times mTimes;
  QTimer mTimer;
  bool mIsEnabled = true;
  bool mIsFailureTold = false;
};
