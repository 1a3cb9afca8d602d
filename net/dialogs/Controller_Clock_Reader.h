#pragma once

#include "net/dialogs/Controller_Clock.h"
#include "net/dialogs/Exchange_Runner.h"

#include <QDateTime>
#include <QObject>
#include <QTimer>

#include <functional>

class Request_Queue;

/// Asks the controller for its clock and sets it; ticks while it is shown.
class Controller_Clock_Reader : public QObject {
  Q_OBJECT

public:
  /// Both outlive it.
  Controller_Clock_Reader(const Controller_Access& access, Request_Queue& queue, QObject* parent);

  [[nodiscard]] const Controller_Clock& clock() const { return mClock; }
  /// Adds the request to the queue.
  void read();
  /// `time` is asked when the message is sent; milliseconds since 1970 (UTC).
  void set(Exchange_Runner& runner, const std::function<qint64()>& time, const std::function<void()>& done);

  /// Of this computer's zone: "22.11.2026 14:03:07".
  [[nodiscard]] static QString text(const QDateTime& time);
  [[nodiscard]] static QString text(qint64 ms);
  [[nodiscard]] static qint64 now();

signals:
  /// Several times a second, and when the controller has answered.
  void ticked();

private:
  Controller_Access mAccess;
  Request_Queue& mQueue;
  Controller_Clock mClock;
  QTimer mTimer;
};
