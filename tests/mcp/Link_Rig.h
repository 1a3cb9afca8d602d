#pragma once

#include "net/Controller_Values.h"
#include "simulator/Simulator_Server.h"
#include "tests/mcp/Tool_Rig.h"

/// Tools on a project with a link, and a stand-in on a free port that the project's one connection leads to.
class Link_Rig : public Tool_Rig {
public:
  Link_Rig() : mServer(options()) {
    mStudio.mLink = &mLink;
    if (!mServer.listen()) {
      qFatal("no port to listen on");
    }
    DB_Connections& connections = mSession.database().mConnections;
    connections.mSelected = 0;
    connections.mItems.at(0).mAddress = QStringLiteral("127.0.0.1:%1").arg(mServer.port());
  }

  [[nodiscard]] static Simulator_Options options() {
    Simulator_Options options;
    options.mPort = 0;
    options.mDiscovers = false;
    options.mRestartMs = 20;
    return options;
  }
  [[nodiscard]] bool goOnline() { return call(QStringLiteral("connect_runtime")).value(u"connected").toBool(); }

  Simulator_Server mServer;
  Controller_Link mLink{mSession};
  Controller_Values mValues{mSession, mLink};
};
