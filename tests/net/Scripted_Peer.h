#pragma once

#include "db/DB_Connections.h"
#include "net/Network_Cipher.h"
#include "net/Network_Frame.h"

#include <QHostAddress>
#include <QList>
#include <QPointer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QtTest>

#include <algorithm>
#include <functional>

/// The controller's end of the link, on a free port of this machine: keeps what arrives, and sends what the test says.
/// Lives in the test's thread, so the test runs the event loop (QTRY_...).
class Scripted_Peer : public QObject {
public:
  struct Message {
    quint32 mCommand = 0;
    QByteArray mData; ///< without the padding
  };

  Scripted_Peer() {
    connect(&mServer, &QTcpServer::newConnection, this, [this] { accept(); });
    if (!mServer.listen(QHostAddress::LocalHost, 0)) {
      qFatal("no port to listen on");
    }
  }

  [[nodiscard]] quint16 port() const { return mServer.serverPort(); }
  [[nodiscard]] QString address() const { return QStringLiteral("127.0.0.1:%1").arg(port()); }
  [[nodiscard]] DB_Connections::ITEM connection() const {
    DB_Connections::ITEM item;
    item.mName = QStringLiteral("Test");
    item.mUser = QStringLiteral("root");
    item.mPassword = QStringLiteral("geheim");
    item.mAddress = address();
    return item;
  }
  /// An address of this machine where nobody listens.
  [[nodiscard]] static QString deadAddress() {
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    return QStringLiteral("127.0.0.1:%1").arg(server.serverPort());
  }

  void send(quint32 command, QByteArrayView data = {}) { sendRaw(Network_Frame::pack(command, data)); }
  void sendRaw(const QByteArray& bytes) {
    if (mSocket) {
      mSocket->write(bytes);
      mSocket->flush();
    }
  }
  /// Ends the link in order, after what was sent.
  void close() {
    if (mSocket) {
      mSocket->disconnectFromHost();
    }
  }
  void stopListening() { mServer.close(); }
  [[nodiscard]] bool isConnected() const { return mSocket && mSocket->state() == QAbstractSocket::ConnectedState; }

  /// How often that command has come.
  [[nodiscard]] int count(quint32 command) const {
    return static_cast<int>(std::ranges::count(mMessages, command, &Message::mCommand));
  }
  /// The data of that command's last message; null when none came.
  [[nodiscard]] QByteArray last(quint32 command) const {
    for (auto message = mMessages.crbegin(); message != mMessages.crend(); ++message) {
      if (message->mCommand == command) {
        return message->mData;
      }
    }
    return {};
  }

  QList<Message> mMessages;
  int mAccepted = 0;                              ///< links so far; a new one takes the place of the old
  std::function<void(const Message&)> mOnMessage; ///< answers
  std::function<void()> mOnAccept;
  QPointer<QTcpSocket> mSocket;

private:
  void accept() {
    while (QTcpSocket* const socket = mServer.nextPendingConnection()) {
      if (mSocket) {
        mSocket->disconnect(this);
        mSocket->deleteLater();
      }
      mSocket = socket;
      mInput.clear();
      ++mAccepted;
      connect(socket, &QTcpSocket::readyRead, this, [this] { read(); });
      if (mOnAccept) {
        mOnAccept();
      }
    }
  }

  void read() {
    mInput.append(mSocket->readAll());
    while (mInput.size() >= Network_Message::cSize) {
      const auto header = Network_Frame::header(mInput);
      if (!header) {
        qFatal("the client sent no possible header");
      }
      const qsizetype whole = Network_Message::cSize + static_cast<qsizetype>(header->mPaddedLength);
      if (mInput.size() < whole) {
        return;
      }
      QByteArray data = mInput.mid(Network_Message::cSize, whole - Network_Message::cSize);
      if (!Network_Cipher::decipher({data.data(), static_cast<std::size_t>(data.size())})) {
        qFatal("no cipher");
      }
      data.truncate(header->mDataLength);
      mInput.remove(0, whole);
      mMessages.append({header->mCommand, data});
      if (mOnMessage) {
        mOnMessage(Message(mMessages.constLast()));
      }
    }
  }

  QTcpServer mServer;
  QByteArray mInput;
};
