#pragma once

#include "net/Controller_Exchange.h"

#include <QObject>
#include <QString>

class Controller_Link;
class Project_Session;
class Project_Transfer;

/// Writes the open project to the controller for an assistant: without a box, progress in the status bar. The user goes
/// on working meanwhile.
class Project_Write : public QObject {
  Q_OBJECT

public:
  /// Both outlive it.
  Project_Write(Project_Session& session, Controller_Link& link, QObject* parent = nullptr);

  /// Nothing while one runs.
  void start();
  void cancel();
  [[nodiscard]] bool isRunning() const { return mTransfer != nullptr; }
  /// How long a reply is waited for.
  void setTimeout(int ms) { mTimeoutMs = ms; }

signals:
  void progress(const QString& label, int value, int maximum);
  /// The controller runs the project; resources follow.
  void started(int generation);
  /// It is over; `error` is empty after success. Comes from the event loop.
  void ended(const QString& error);
  /// For the status bar.
  void info(const QString& text);

private:
  void onFinished(Controller_Exchange::End end);

  Project_Session& mSession;
  Controller_Link& mLink;
  Project_Transfer* mTransfer = nullptr; ///< on its way
  int mTimeoutMs = Controller_Exchange::cTimeoutMs;
};
