#pragma once

#include "net/dialogs/Exchange_Runner.h"

#include <QObject>

#include <functional>
#include <memory>
#include <vector>

/// Asks the controller one thing after another while a dialog is open, without a window of its own: what a dialog shows
/// when it opens. The first failure ends the rest.
class Request_Queue : public QObject {
  Q_OBJECT

public:
  using Done = std::function<void(Controller_Request&)>;

  Request_Queue(const Controller_Access& access, QObject* parent);

  void add(const Exchange_Runner::Request& request, const Done& done);
  [[nodiscard]] bool isRunning() const { return mRunning != nullptr; }
  /// When the one that is being answered was sent; milliseconds since 1970 (UTC).
  [[nodiscard]] qint64 askedMs() const { return mAskedMs; }
  /// Nothing that was added is told any more.
  void clear();

signals:
  /// The last one was answered. Comes from the event loop, as `failed`.
  void finished();
  void failed(const QString& text);

private:
  struct Entry {
    Exchange_Runner::Request mRequest;
    Done mDone;
  };
  void next();
  void onFinished(Controller_Exchange::End end);

  Controller_Access mAccess;
  std::vector<Entry> mEntries; ///< the first is the one that runs
  Controller_Request* mRunning = nullptr;
  qint64 mAskedMs = 0;
};
