#include "mcp/MCP_SseSession.h"

#include "mcp/Http_Reply.h"

#include <QTcpSocket>
#include <QUuid>

MCP_SseSession::MCP_SseSession(QTcpSocket* socket, QObject* parent)
    : QObject(parent),
      mSocket(socket),
      mId(QUuid::createUuid().toString(QUuid::Id128)) {
  mSocket->setParent(this);
  connect(mSocket, &QTcpSocket::disconnected, this, &MCP_SseSession::onDisconnected);
  // What the client sends on its stream means nothing, and is not kept.
  connect(mSocket, &QTcpSocket::readyRead, this, [this] { mSocket->skip(mSocket->bytesAvailable()); });
}

void MCP_SseSession::open() {
  mSocket->write(Http_Reply::streamHead());
  mSocket->write(Http_Reply::event("endpoint", "/messages?sessionId=" + mId.toLatin1()));
  mSocket->flush();
}

void MCP_SseSession::send(const QByteArray& response) {
  if (mSocket->state() == QAbstractSocket::ConnectedState) {
    mSocket->write(Http_Reply::event("message", response));
    mSocket->flush();
  }
}

void MCP_SseSession::onDisconnected() {
  emit sessionClosed(mId);
  deleteLater();
}
