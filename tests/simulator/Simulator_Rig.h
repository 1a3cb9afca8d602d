#pragma once

#include "net/Controller_Link.h"
#include "simulator/Simulator_Server.h"
#include "tests/db/Session_Rig.h"

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
    return QTest::qWaitFor([this] { return mLink.isOnline(); }, 3000);
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
