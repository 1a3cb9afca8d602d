#include "simulator/Simulator_Session.h"

#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "simulator/Simulator_Server.h"

#include <QTcpSocket>
#include <QTimer>

#include <algorithm>
#include <optional>

namespace {

constexpr int cCloseMs = 1000;

} // namespace

Simulator_Session::Simulator_Session(QTcpSocket* socket, Simulator_Server& server, QObject* parent)
    : QObject(parent),
      mSocket(socket),
      mServer(server),
      mWire(*socket, server.faults()) {
  mSocket->setParent(this);
  mSocket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
  // The system holds back what is not read here, and with it who sends.
  mSocket->setReadBufferSize(cReadBuffer);
  mReader.setMostPayload(cMostBeforeLogOn);
  connect(mSocket, &QTcpSocket::readyRead, this, &Simulator_Session::onReadyRead);
  // What was not taken because too much was waiting; later, as this may come while something is being sent.
  connect(mSocket, &QTcpSocket::bytesWritten, this, &Simulator_Session::onReadyRead, Qt::QueuedConnection);
  connect(mSocket, &QTcpSocket::disconnected, this, [this] {
    mIsClosing = true;
    emit closed(this);
  });
  QTimer::singleShot(cLogOnMs, this, [this] {
    if (!mIsLoggedOn) {
      close();
    }
  });
}

void Simulator_Session::setLoggedOn() {
  mIsLoggedOn = true;
  mReader.setMostPayload(Network_Message::cMostPadded);
}

void Simulator_Session::countRefusedLogOn() {
  if (++mRefusedLogOns >= cMostRefusedLogOns) {
    close();
  }
}

void Simulator_Session::onReadyRead() {
  if (mIsAnswering || mIsClosing) {
    return;
  }
  mIsAnswering = true;
  while (!mIsClosing && mSocket->state() == QAbstractSocket::ConnectedState && mWire.waiting() <= cMostWaiting) {
    if (const std::optional<Simulator_Frame_Reader::Message> message = mReader.next()) {
      mServer.answer(*this, message->mCommand, message->mPayload);
    } else if (mReader.isTooLong()) {
      close();
    } else if (mSocket->bytesAvailable() == 0) {
      break;
    } else if (const QByteArray bytes = mSocket->readAll(); !mServer.faults().has(Simulator_Faults::Kind::Silence)) {
      mReader.append(bytes);
    }
  }
  mIsAnswering = false;
}

void Simulator_Session::tell(quint32 command, QByteArrayView payload) {
  if (!mIsLoggedOn || mIsClosing) {
    return;
  }
  mTold = std::min(mTold, mWire.waiting()) + payload.size();
  if (mTold > cMostTold) {
    mIsClosing = true;
    mSocket->abort();
    return;
  }
  send(command, payload);
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
  mIsClosing = true;
  mSocket->disconnectFromHost();
  // It waits for who reads; who does not would be waited for until the end.
  QTimer::singleShot(cCloseMs, mSocket, &QTcpSocket::abort);
}

QString Simulator_Session::text(QByteArrayView payload) {
  const qsizetype end = payload.indexOf('\0');
  return QString::fromUtf8(end < 0 ? payload : payload.first(end));
}
