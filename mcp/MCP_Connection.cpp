#include "mcp/MCP_Connection.h"

#include "mcp/Ascii_Json.h"
#include "mcp/Http_Reply.h"
#include "mcp/MCP_Dispatcher.h"
#include "mcp/MCP_Log.h"
#include "mcp/MCP_Server.h"
#include "mcp/MCP_SseSession.h"
#include "mcp/MCP_Studio.h"

#include <QJsonDocument>
#include <QTcpSocket>

#include <utility>

namespace {

constexpr int cOk = 200;
constexpr int cAccepted = 202;
constexpr int cNoContent = 204;
constexpr int cForbidden = 403;
constexpr int cNotFound = 404;

} // namespace

MCP_Connection::MCP_Connection(qintptr descriptor, MCP_Server& server)
    : QObject(&server),
      mServer(server),
      mSocket(new QTcpSocket(this)) {
  connect(mSocket, &QTcpSocket::readyRead, this, &MCP_Connection::onReadyRead);
  connect(mSocket, &QTcpSocket::disconnected, this, &MCP_Connection::onDisconnected);
  if (!mSocket->setSocketDescriptor(descriptor)) {
    deleteLater();
  }
}

void MCP_Connection::onReadyRead() {
  const QByteArray bytes = mSocket->readAll();
  if (mIsTaken) {
    return; // one request per connection
  }
  mRequest.add(bytes);
  const bool isStream = mRequest.method() == u"GET" && mRequest.path() == u"/sse";
  const bool needsBody = mRequest.method() != u"OPTIONS" && !isStream;
  if (!mRequest.hasHead() ||
      (needsBody && !mRequest.isComplete() && !(mRequest.isForeign() && mServer.checksOrigin()))) {
    return;
  }
  mIsTaken = true;
  route();
}

void MCP_Connection::route() {
  const QString& method = mRequest.method();
  const QString& path = mRequest.path();
  if (mRequest.isForeign() && mServer.checksOrigin()) {
    answer(cForbidden, R"({"error":"Forbidden"})");
  } else if (method == u"OPTIONS") {
    answer(cNoContent, {});
  } else if (method == u"GET" && path == u"/sse") {
    openStream();
  } else if (method == u"POST" && path == u"/mcp") {
    // A tool may wait for the controller, which it could not while the link is being read.
    mServer.studio().runOutsideReading(this, [this] { onMcp(); });
  } else if (method == u"POST" && path.startsWith(u"/messages")) {
    mServer.studio().runOutsideReading(this, [this] { onMessages(); });
  } else {
    log(QStringLiteral("Unbekannter Pfad: %1 %2").arg(method, path));
    answer(cNotFound, R"({"error":"Not Found"})");
  }
}

void MCP_Connection::openStream() {
  mSocket->disconnect(this);
  mSocket->setParent(nullptr);
  auto* const session = new MCP_SseSession(std::exchange(mSocket, nullptr), mServer.isDebug(), &mServer);
  log(QStringLiteral("SSE-Verbindung geoeffnet, Session: %1").arg(session->id()));
  mServer.addSession(session);
  session->open();
  deleteLater();
}

void MCP_Connection::onMcp() {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(mRequest.body(), &error);
  if (!document.isObject()) {
    log(QStringLiteral("POST /mcp Parse-Fehler: %1").arg(error.errorString()));
    answer(cOk, R"({"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":"Parse error"}})");
    return;
  }
  if (const std::optional<QJsonObject> response = dispatch(document.object())) {
    answer(cOk, Ascii_Json::write(*response));
  }
}

void MCP_Connection::onMessages() {
  const QString id = mRequest.sessionId();
  if (!mServer.session(id)) {
    log(QStringLiteral("POST /messages – Session nicht gefunden: %1").arg(id));
    answer(cNotFound, R"({"error":"Session not found"})");
    return;
  }
  const QJsonDocument document = QJsonDocument::fromJson(mRequest.body());
  if (document.isObject()) {
    const std::optional<QJsonObject> response = dispatch(document.object());
    if (!response) {
      return;
    }
    MCP_SseSession* const session = mServer.session(id); // may have gone meanwhile
    if (session && !response->isEmpty()) {
      session->send(Ascii_Json::write(*response));
    }
  }
  answer(cAccepted, {});
}

std::optional<QJsonObject> MCP_Connection::dispatch(const QJsonObject& request) {
  mIsDispatching = true;
  QJsonObject response = mServer.dispatcher().dispatch(request);
  mIsDispatching = false;
  if (mIsClosedInDispatch) {
    deleteLater();
    return std::nullopt;
  }
  return response;
}

void MCP_Connection::answer(int status, const QByteArray& body) {
  if (mSocket->state() == QAbstractSocket::ConnectedState) {
    mSocket->write(Http_Reply::write(status, body));
    mSocket->disconnectFromHost();
  }
}

void MCP_Connection::onDisconnected() {
  if (mIsDispatching) {
    mIsClosedInDispatch = true;
  } else {
    deleteLater();
  }
}

void MCP_Connection::log(const QString& text) const {
  if (mServer.isDebug()) {
    MCP_Log::write(text);
  }
}
