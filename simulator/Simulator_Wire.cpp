#include "simulator/Simulator_Wire.h"

#include "net/Network_Frame.h"

#include <QTcpSocket>

#include <algorithm>
#include <utility>

using Kind = Simulator_Faults::Kind;

Simulator_Wire::Simulator_Wire(QTcpSocket& socket, const Simulator_Faults& faults, QObject* parent)
    : QObject(parent),
      mSocket(socket),
      mFaults(faults) {
  mTimer.setSingleShot(true);
  mTimer.setTimerType(Qt::PreciseTimer);
  connect(&mTimer, &QTimer::timeout, this, [this] {
    write(mPieces.dequeue().mBytes);
    pump();
  });
  mGathering.setSingleShot(true);
  connect(&mGathering, &QTimer::timeout, this, [this] { write(std::exchange(mGathered, {})); });
}

void Simulator_Wire::send(quint32 command, QByteArrayView payload) {
  if (mFaults.has(Kind::Silence)) {
    return;
  }
  const QByteArray message = Network_Frame::pack(command, payload);
  if (const std::optional<int> time = mFaults.value(Kind::Together, command)) {
    mGathered += message;
    if (!mGathering.isActive()) {
      mGathering.start(*time);
    }
    return;
  }
  const bool isIdle = mPieces.isEmpty();
  for (const Simulator_Faults::Piece& piece : mFaults.pieces(command, message)) {
    mPieces.enqueue(piece);
  }
  if (isIdle) {
    pump();
  }
}

void Simulator_Wire::pump() {
  while (!mPieces.isEmpty()) {
    const Simulator_Faults::Piece& next = mPieces.head();
    if (next.mDelayMs > 0 || next.mIsAlone) {
      mTimer.start(next.mDelayMs);
      return;
    }
    write(mPieces.dequeue().mBytes);
  }
}

void Simulator_Wire::write(const QByteArray& bytes) {
  const std::optional<int> most = mFaults.value(Kind::Close, 0);
  const qsizetype size = most ? std::clamp<qint64>(*most - mSent, 0, bytes.size()) : bytes.size();
  mSocket.write(bytes.constData(), size);
  mSent += size;
  if (!mFaults.isEmpty()) {
    // A segment is what the socket is told to send at once.
    mSocket.flush();
  }
  if (most && mSent >= *most) {
    mSocket.disconnectFromHost();
  }
}
