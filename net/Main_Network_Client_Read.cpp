#include "net/Controller_Command.h"
#include "net/Main_Network_Client.h"
#include "net/Main_Network_Client_Guards.h"
#include "net/Telegram_Batch.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTcpSocket>

#include <algorithm>

namespace {

constexpr int cWaitSliceMs = 50;
constexpr int cLongestWaitMs = 499;
constexpr int cPollMs = 5;
constexpr int cYieldMs = 150;
constexpr int cTelegramsWithoutYield = 150;
/// After that long the event loop serves other sockets and the user before reading goes on.
constexpr int cPassMs = 100;
/// So often the clock is looked at.
constexpr int cTelegramsOfLook = 16;
/// What the user does may open a box, which would hold up reading until it closes: he is served between the passes, and
/// within one only when a batch of telegrams makes it too long to wait for.
constexpr int cLongPassMs = 200;

} // namespace

void Main_Network_Client::setReadLimit(qint64 limit) {
  // A socket whose buffer was full listens again only when the limit is another one.
  mSocket->setReadBufferSize(mSocket->readBufferSize() == limit ? limit + 1 : limit);
}

void Main_Network_Client::read(Reading reading) {
  if (mReading) {
    return;
  }
  mReading = true;
  const Same_Link link(this);
  mPass.start();
  int waitedMs = 0;
  int telegrams = 0;
  for (;;) {
    const Message_Reader::Step step = mReader.next(*mSocket);
    if (step == Message_Reader::Step::OutOfStep) {
      break;
    }
    if (step == Message_Reader::Step::Missing) {
      if (!mReader.isPending() || reading == Reading::WholeRest || waitedMs > cLongestWaitMs) {
        break;
      }
      waitForPayload(link);
      if (link.isGone()) {
        return;
      }
      if (mSocket->bytesAvailable() < mReader.pendingLength()) {
        break;
      }
      waitedMs += cWaitSliceMs;
      continue;
    }
    // Out of the reader, which reads for another link or is gone when a receiver says so.
    Network_Message message = mReader.message();
    QByteArray payload;
    payload.swap(mReader.payload());
    dispatch(message, payload, link);
    if (link.isGone()) {
      return;
    }
    if (payload.size() <= cReadBuffer) {
      payload.swap(mReader.payload()); // the next one needs no memory of its own
    }
    waitedMs = 0;
    // The clock takes longer to look at than a telegram to read.
    const bool isClockDue = message.mCommand != Controller_Command::Telegram || ++telegrams % cTelegramsOfLook == 0;
    if (isClockDue && reading == Reading::Timely && !mIsClosing && mPass.hasExpired(cPassMs)) {
      mGoOn->start();
      break;
    }
  }
  mReading = false;
  if (mIsClosing) {
    mIsClosing = false;
    onSocketConnectionClosed();
    return;
  }
  setReadLimit(std::max(cReadBuffer, mReader.pendingLength()));
}

void Main_Network_Client::waitForPayload(const Same_Link& link) {
  setReadLimit(std::max(cReadBuffer, mReader.pendingLength()));
  QElapsedTimer slice;
  slice.start();
  const auto isOver = [&] {
    return link.isGone() || mSocket->bytesAvailable() >= mReader.pendingLength() ||
           mSocket->state() != QAbstractSocket::ConnectedState;
  };
  // Waiting for the socket alone brings in what has come; the event loop, which could wait for ever, serves the rest.
  while (!isOver() && !slice.hasExpired(cWaitSliceMs)) {
    mSocket->waitForReadyRead(cPollMs);
    if (!isOver()) {
      serveOthers(cWaitSliceMs);
    }
  }
}

void Main_Network_Client::serveOthers(int ms) {
  QEventLoop::ProcessEventsFlags flags = QEventLoop::ExcludeSocketNotifiers;
  flags.setFlag(QEventLoop::ExcludeUserInputEvents, !mPass.hasExpired(cLongPassMs));
  QCoreApplication::processEvents(flags, ms);
}

void Main_Network_Client::dispatch(Network_Message& message, QByteArray& payload, const Same_Link& link) {
  if (message.mPaddedLength == 0) {
    emit onProcessNetworkRead(&message, nullptr);
    return;
  }
  if (message.mCommand == Controller_Command::Telegram) {
    if (message.mDataLength >= DB_Address_Network_Telegram::cHead) {
      mTelegram.read(QByteArrayView(payload).first(message.mDataLength));
      deliver(mTelegram, link);
    }
    return;
  }
  if (message.mCommand != Controller_Command::Telegram_Batch) {
    emit onProcessNetworkRead(&message, reinterpret_cast<uchar*>(payload.data()));
    return;
  }
  DB_Address_Network_Telegram telegram;
  qsizetype offset = 0;
  while (!link.isGone()) {
    const qsizetype taken =
        Telegram_Batch::decode(payload, message.mDataLength, offset, DB_Address_Network_Telegram::cMostData, telegram);
    if (taken == 0) {
      return;
    }
    offset += taken;
    telegram.mKind = DB_Address_Network_Telegram::cKindRuntime;
    telegram.mIsValid = 1;
    deliver(telegram, link);
  }
}

void Main_Network_Client::deliver(const DB_Address_Network_Telegram& telegram, const Same_Link& link) {
  if (!telegram.isAddressed()) {
    return;
  }
  emit onProcessNetworkRead(telegram);
  if (!link.isGone() && mDelivered++ > cTelegramsWithoutYield) {
    mDelivered = 0;
    serveOthers(cYieldMs);
  }
}
