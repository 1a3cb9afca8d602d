#pragma once

#include "mcp/MCP_Connection.h"
#include "mcp/MCP_Server.h"
#include "tests/mcp/Raw_Client.h"
#include "tests/mcp/Tool_Rig.h"

/// A running server on a windowless studio.
class Server_Rig : public Tool_Rig {
public:
  explicit Server_Rig(MCP_Catalogue catalogue = MCP_Catalogue()) : mServer(std::make_unique<MCP_Server>()) {
    if (!mServer->start(0, mStudio, mState, std::move(catalogue))) {
      qFatal("the server does not listen");
    }
  }

  [[nodiscard]] quint16 port() const { return mServer->serverPort(); }
  [[nodiscard]] qsizetype connectionCount() const { return mServer->findChildren<MCP_Connection*>().size(); }

  /// All that the server answers to these bytes, until it closes.
  [[nodiscard]] QByteArray exchange(const QByteArray& request) const {
    return Raw_Client::beside([port = port(), &request] { return exchange(port, request); });
  }
  /// The same in a thread of the caller's.
  [[nodiscard]] static QByteArray exchange(quint16 port, const QByteArray& request) {
    const Raw_Client client(port);
    client.send(request);
    return client.readAll();
  }

  std::unique_ptr<MCP_Server> mServer;
};
