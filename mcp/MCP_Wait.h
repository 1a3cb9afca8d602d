#pragma once

#include <QEventLoop>
#include <QTimer>

/// Waits in a local event loop until `done` is called or the time is over; true when it was called. While it waits the
/// user goes on working and other requests are answered: look up anew afterwards what you work on.
///
///     MCP_Wait wait(std::chrono::seconds(10));
///     QObject::connect(&sender, &Sender::finished, &wait, &MCP_Wait::done);
///     const bool came = wait.run();
class MCP_Wait : public QObject {
  Q_OBJECT

public:
  explicit MCP_Wait(std::chrono::milliseconds most) {
    mTimer.setSingleShot(true);
    mTimer.setTimerType(Qt::PreciseTimer); // never shorter than asked for
    connect(&mTimer, &QTimer::timeout, &mLoop, &QEventLoop::quit);
    mTimer.setInterval(most);
  }

  bool run() {
    if (!mIsDone) {
      mTimer.start();
      mLoop.exec();
    }
    return mIsDone;
  }

public slots:
  void done() {
    mIsDone = true;
    mLoop.quit();
  }

private:
  QEventLoop mLoop;
  QTimer mTimer;
  bool mIsDone = false;
};
