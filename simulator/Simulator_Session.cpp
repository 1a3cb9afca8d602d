#include "simulator/Simulator_Session.h"

#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "simulator/Simulator_Server.h"

#include <QTcpSocket>

#include <optional>

Simulator_Session::Simulator_Session(QTcpSocket* socket, Simulator_Server& server, QObject* parent)
    : QObject(parent),
      mSocket(socket),
      mServer(server),
      mWire(*socket, server.faults()) {
  mSocket->setParent(this);
  mSocket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  mReader.setMostPayload(cMostBeforeLogOn);
  connect(mSocket, &QTcpSocket::readyRead, this, &Simulator_Session::onReadyRead);
  connect(mSocket, &QTcpSocket::disconnected, this, [this] { emit closed(this); });
}

void Simulator_Session::setLoggedOn() {
  mIsLoggedOn = true;
  mReader.setMostPayload(Network_Message::cMostPadded);
}

void Simulator_Session::onReadyRead() {
  const QByteArray bytes = mSocket->readAll();
  if (mServer.faults().has(Simulator_Faults::Kind::Silence)) {
    return;
  }
  mReader.append(bytes);
  while (const std::optional<Simulator_Frame_Reader::Message> message = mReader.next()) {
    mServer.answer(*this, message->mCommand, message->mPayload);
    if (mSocket->state() != QAbstractSocket::ConnectedState) {
      return;
    }
  }
  if (mReader.isTooLong()) {
    close();
  }
}

void Simulator_Session::send(quint32 command, QByteArrayView payload) {
  mServer.log(false, command, payload.size());
  mWire.send(command, payload);
}

void Simulator_Session::sendText(quint32 command, const QString& text) {
  send(command, text.toUtf8() + '\0');
}

void Simulator_Session::sendStream(quint32 beginCommand, quint32 dataCommand, QByteArrayView bytes,
                                   const QString& name) {
  send(beginCommand, Byte_Stream::announce(bytes, name).toData());
  for (const QByteArrayView chunk : Byte_Stream::chunks(bytes)) {
    send(dataCommand, chunk);
  }
}

void Simulator_Session::refuse(quint32 command, const QString& reason) {
  DB_Refusal refusal;
  refusal.mCommand = static_cast<int>(command);
  refusal.mReason = reason;
  send(Controller_Command::Refused, refusal.toData());
}

void Simulator_Session::close() {
  mSocket->disconnectFromHost();
}

QString Simulator_Session::text(QByteArrayView payload) {
  const qsizetype end = payload.indexOf('\0');
  return QString::fromUtf8(end < 0 ? payload : payload.first(end));
}
