#pragma once

#include "net/Controller_Link.h"
#include "simulator/Simulator_Server.h"
#include "tests/db/Session_Rig.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QTimer>

#include <utility>

/// A stand-in on a free port, and a studio's project and link to it, in one thread: the test runs the event loop.
class Simulator_Rig : public Session_Rig {
public:
  explicit Simulator_Rig(Simulator_Options options = {}) : mServer(adapted(std::move(options))) {
    if (!create() || !mServer.listen()) {
      qFatal("no project, or no port to listen on");
    }
  }

  [[nodiscard]] DB_Connections::ITEM connection() const {
    DB_Connections::ITEM item;
    item.mKind = mServer.controller().options().mIsRelay ? 1 : 0;
    item.mAddress = QStringLiteral("127.0.0.1:%1").arg(mServer.port());
    item.mUser = mServer.controller().options().mUser;
    item.mPassword = mServer.controller().options().mPassword;
    return item;
  }
  /// Dials and logs on; false when it is not online in time.
  bool goOnline() {
    mLink.connectTo(connection());
    return waitFor([this] { return mLink.isOnline(); });
  }
  /// Unlike QTest::qWaitFor it does not sleep between events: both ends are in this thread, and each hop would cost it.
  template <class Predicate>
  [[nodiscard]] static bool waitFor(Predicate isTrue, int ms = 5000) {
    QTimer wake;
    wake.start(10);
    const QDeadlineTimer end(ms);
    while (!isTrue() && !end.hasExpired()) {
      QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
      QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    return isTrue();
  }
  [[nodiscard]] Main_Network_Client& client() { return mLink.client(); }
  [[nodiscard]] Simulator_Controller& controller() { return mServer.controller(); }

private:
  static Simulator_Options adapted(Simulator_Options options) {
    options.mPort = 0;
    options.mDiscovers = false;
    options.mRestartMs = 20;
    return options;
  }

public:
  Simulator_Server mServer;
  Controller_Link mLink{mSession};
};
