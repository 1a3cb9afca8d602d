#pragma once

#include "db/History.h"
#include "net/Controller_Exchange.h"

#include <QObject>
#include <QString>

class Controller_Link;
class Program_Transfer;
class Project_Session;

/// Into the operating mode and out of it. With a link the program goes to the controller first, if it has another one,
/// and is started there; the window stays usable meanwhile, and what is edited then goes over as well. Without a link
/// only the mode changes. A program that does not get over leaves the mode off.
class Program_Play : public QObject {
  Q_OBJECT

public:
  /// Both outlive it.
  Program_Play(Project_Session& session, Controller_Link& link, QObject* parent = nullptr);

  /// Also gives up a program that is on its way.
  void toggle();
  /// For an assistant, which no box is shown to. Into the mode: with a link the program goes over also when the mode is
  /// on already, `isForced` even when the controller has it. Out of it: also gives up a program that is on its way.
  /// Nothing while one is on its way into it.
  void setOn(bool isOn, bool isForced);
  void cancel();
  [[nodiscard]] bool isRunning() const { return mTransfer != nullptr; }
  /// How long a reply is waited for.
  void setTimeout(int ms) { mTimeoutMs = ms; }

signals:
  /// A program is on its way, and then no longer.
  void progress(const QString& label, int value, int maximum);
  void ended();
  /// For the status bar.
  void info(const QString& text);
  /// Why the mode stays off; comes from the event loop.
  void failed(const QString& text);
  /// Nothing is on its way any more; `error` is empty when the mode is as it was wanted.
  void settled(const QString& error);

private:
  void enter();
  void leave();
  void start();
  void tellFailure(const QString& text);
  void onFinished(Controller_Exchange::End end);

  Project_Session& mSession;
  Controller_Link& mLink;
  Program_Transfer* mTransfer = nullptr; ///< on its way
  History::State mSent;                  ///< of the records as they were when they were packed
  bool mWasSent = false;
  bool mIsForced = false; ///< it is sent even when the controller has it
  bool mIsQuiet = false;  ///< an assistant wants it
  int mTimeoutMs = Controller_Exchange::cTimeoutMs;
};
