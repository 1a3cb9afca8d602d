#include "mcp/MCP_Server.h"

#include "mcp/MCP_Connection.h"
#include "mcp/MCP_Dispatcher.h"
#include "mcp/MCP_Log.h"
#include "mcp/MCP_SseSession.h"

#include <QHostAddress>

#include <utility>

namespace {

constexpr int cBacklog = 1024; ///< clients that wait while a tool works

} // namespace

MCP_Server::MCP_Server(QObject* parent) : QTcpServer(parent) {
  setListenBacklogSize(cBacklog);
}

MCP_Server::~MCP_Server() {
  stop();
}

bool MCP_Server::start(quint16 port, MCP_Studio& studio, Session_State& state, MCP_Catalogue catalogue) {
  mStudio = &studio;
  mDispatcher = std::make_unique<MCP_Dispatcher>(studio, state, std::move(catalogue));
  mDispatcher->setDebug(mIsDebug);
  if (listen(QHostAddress::LocalHost, port)) {
    return true;
  }
  mDispatcher.reset();
  return false;
}

void MCP_Server::stop() {
  if (isListening()) {
    close();
  }
}

void MCP_Server::setDebug(bool on) {
  mIsDebug = on;
  if (mDispatcher) {
    mDispatcher->setDebug(on);
  }
}

void MCP_Server::incomingConnection(qintptr descriptor) {
  if (mIsDebug) {
    MCP_Log::write(QStringLiteral("Neue TCP-Verbindung"));
  }
  new MCP_Connection(descriptor, *this);
}

void MCP_Server::addSession(MCP_SseSession* session) {
  session->setParent(this);
  mSessions.insert(session->id(), session);
  connect(session, &MCP_SseSession::sessionClosed, this, &MCP_Server::onSessionClosed);
}

void MCP_Server::onSessionClosed(const QString& id) {
  if (mIsDebug) {
    MCP_Log::write(QStringLiteral("SSE-Session getrennt: %1").arg(id));
  }
  mSessions.remove(id);
}
