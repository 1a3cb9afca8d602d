#include "simulator/Simulator_Wire.h"

#include "net/Network_Frame.h"

#include <QTcpSocket>

#include <algorithm>
#include <utility>

using Kind = Simulator_Faults::Kind;

namespace {

constexpr int cAloneAtOnce = 16;

} // namespace

Simulator_Wire::Simulator_Wire(QTcpSocket& socket, const Simulator_Faults& faults, QObject* parent)
    : QObject(parent),
      mSocket(socket),
      mFaults(faults) {
  mTimer.setSingleShot(true);
  mTimer.setTimerType(Qt::PreciseTimer);
  connect(&mTimer, &QTimer::timeout, this, [this] {
    // Each goes out by itself; a few at once, so that a long message does not take minutes.
    for (int i = 0; i < cAloneAtOnce && !mPieces.isEmpty() && (i == 0 || mPieces.head().mDelayMs == 0); ++i) {
      writeNext();
    }
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
    mInPieces += piece.mBytes.size();
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
    writeNext();
  }
}

void Simulator_Wire::writeNext() {
  const QByteArray bytes = mPieces.dequeue().mBytes;
  mInPieces -= bytes.size();
  write(bytes);
}

qint64 Simulator_Wire::waiting() const {
  return mSocket.bytesToWrite() + mInPieces + mGathered.size();
}

void Simulator_Wire::write(const QByteArray& bytes) {
  if (mSocket.state() != QAbstractSocket::ConnectedState) {
    return;
  }
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
