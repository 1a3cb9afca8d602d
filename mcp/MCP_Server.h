#pragma once

#include "mcp/MCP_Catalogue.h"

#include <QMap>
#include <QString>
#include <QTcpServer>

#include <memory>

class MCP_Dispatcher;
class MCP_SseSession;
class MCP_Studio;
class Session_State;

/// The studio's Model Context Protocol server (version 2024-11-05) on the loopback interface, for an assistant on the
/// same machine: `POST /mcp` with the answer in the reply, and the older `GET /sse` with `POST /messages?sessionId=`.
/// It lives in the event loop of the window, one request per connection.
class MCP_Server : public QTcpServer {
  Q_OBJECT

public:
  explicit MCP_Server(QObject* parent = nullptr);
  ~MCP_Server() override;

  /// Listens on 127.0.0.1; port 0 takes a free one. On failure nothing runs, and nobody is told. Studio and state
  /// outlive the server.
  bool start(quint16 port, MCP_Studio& studio, Session_State& state, MCP_Catalogue catalogue = MCP_Catalogue());
  void stop();

  /// Each request is told in the program's log.
  void setDebug(bool on);
  [[nodiscard]] bool isDebug() const { return mIsDebug; }
  /// Requests of web pages are answered 403; see `Http_Request::isForeign`.
  void setChecksOrigin(bool on) { mChecksOrigin = on; }
  [[nodiscard]] bool checksOrigin() const { return mChecksOrigin; }

  [[nodiscard]] MCP_Dispatcher& dispatcher() const { return *mDispatcher; }
  [[nodiscard]] MCP_Studio& studio() const { return *mStudio; }
  /// Null when there is none of that id.
  [[nodiscard]] MCP_SseSession* session(const QString& id) const { return mSessions.value(id); }
  [[nodiscard]] qsizetype sessionCount() const { return mSessions.size(); }
  void addSession(MCP_SseSession* session);

protected:
  void incomingConnection(qintptr descriptor) override;

private slots:
  void onSessionClosed(const QString& id);

private:
  std::unique_ptr<MCP_Dispatcher> mDispatcher;
  MCP_Studio* mStudio = nullptr;
  QMap<QString, MCP_SseSession*> mSessions; ///< by their ids; children of the server
  bool mIsDebug = false;
  bool mChecksOrigin = true;
};
