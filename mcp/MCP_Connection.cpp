#include "mcp/MCP_Connection.h"

#include "mcp/Http_Reply.h"
#include "mcp/MCP_Dispatcher.h"
#include "mcp/MCP_Log.h"
#include "mcp/MCP_Server.h"
#include "mcp/MCP_SseSession.h"
#include "mcp/MCP_Studio.h"

#include <QJsonDocument>
#include <QTcpSocket>
#include <QTimer>

#include <chrono>
#include <utility>

namespace {

constexpr int cOk = 200;
constexpr int cAccepted = 202;
constexpr int cNoContent = 204;
constexpr int cForbidden = 403;
constexpr int cNotFound = 404;
constexpr std::chrono::seconds cPatience(2);

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
  if (mIsTaken) { // one request per connection
    if (mUnread > 0 && (mUnread -= bytes.size()) <= 0) {
      mSocket->disconnectFromHost();
    }
    return;
  }
  mRequest.add(bytes);
  if (!mRequest.hasHead() || (needsBody() && !mRequest.isComplete())) {
    return;
  }
  mIsTaken = true;
  route();
}

bool MCP_Connection::isForbidden() const {
  return mRequest.isForeign() && mServer.checksOrigin();
}

bool MCP_Connection::opensStream() const {
  return mRequest.method() == u"GET" && mRequest.path() == u"/sse";
}

bool MCP_Connection::needsBody() const {
  return !isForbidden() && !opensStream() && mRequest.method() != u"OPTIONS";
}

void MCP_Connection::route() {
  const QString& method = mRequest.method();
  const QString& path = mRequest.path();
  if (isForbidden()) {
    answer(cForbidden, R"({"error":"Forbidden"})");
  } else if (method == u"OPTIONS") {
    answer(cNoContent, {});
  } else if (opensStream()) {
    openStream();
  } else if (method == u"POST" && path == u"/mcp") {
    handle(&MCP_Connection::onMcp);
  } else if (method == u"POST" && path.startsWith(u"/messages")) {
    handle(&MCP_Connection::onMessages);
  } else {
    log(QStringLiteral("Unbekannter Pfad: %1 %2").arg(method, path));
    answer(cNotFound, R"({"error":"Not Found"})");
  }
}

/// A tool may wait for the controller, which it could not while the link is being read. A request that is whole is
/// carried out also when its client does not stay for the answer.
void MCP_Connection::handle(void (MCP_Connection::*handler)()) {
  mIsHandling = true;
  mServer.studio().runOutsideReading(this, [this, handler] {
    (this->*handler)();
    mIsHandling = false;
    if (mIsClosed) {
      deleteLater();
    }
  });
}

void MCP_Connection::openStream() {
  mSocket->disconnect(this);
  mSocket->setParent(nullptr);
  auto* const session = new MCP_SseSession(std::exchange(mSocket, nullptr), &mServer);
  log(QStringLiteral("SSE-Verbindung geoeffnet, Session: %1").arg(session->id()));
  mServer.addSession(session);
  session->open();
  deleteLater();
}

void MCP_Connection::onMcp() {
  QJsonParseError error;
  const QJsonDocument document = QJsonDocument::fromJson(mRequest.body(), &error);
  if (!document.isObject()) {
    const bool isOther = error.error == QJsonParseError::NoError;
    const QString reason = isOther ? QStringLiteral("kein Objekt") : error.errorString();
    log(QStringLiteral("POST /mcp Parse-Fehler: %1").arg(reason));
    answer(cOk, R"({"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":"Parse error"}})");
    return;
  }
  if (const std::optional<QByteArray> response = dispatch(document.object())) {
    answer(cOk, response->isEmpty() ? QByteArray("{}") : *response);
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
    const std::optional<QByteArray> response = dispatch(document.object());
    if (!response) {
      return;
    }
    MCP_SseSession* const session = mServer.session(id); // may have gone meanwhile
    if (session && !response->isEmpty()) {
      session->send(*response);
    }
  }
  answer(cAccepted, {});
}

std::optional<QByteArray> MCP_Connection::dispatch(const QJsonObject& request) {
  const bool wasClosed = mIsClosed;
  QByteArray response = mServer.dispatcher().answer(request);
  return mIsClosed == wasClosed ? std::optional(response) : std::nullopt;
}

void MCP_Connection::answer(int status, const QByteArray& body) {
  if (mSocket->state() != QAbstractSocket::ConnectedState) {
    return;
  }
  mSocket->write(Http_Reply::write(status, body));
  mUnread = mRequest.missing();
  if (mUnread == 0) {
    mSocket->disconnectFromHost();
    return;
  }
  mSocket->flush(); // the client may end its side, and with it what is not sent yet
  // Closed with bytes unread, the client would see a reset while it sends, and not look at the answer.
  QTimer::singleShot(cPatience, this, [this] { mSocket->disconnectFromHost(); });
}

void MCP_Connection::onDisconnected() {
  mIsClosed = true;
  if (!mIsHandling) {
    deleteLater();
  }
}

void MCP_Connection::log(const QString& text) const {
  if (mServer.isDebug()) {
    MCP_Log::write(text);
  }
}
