#include "net/Network_Message.h"

#include <QtEndian>

#include <chrono>

namespace {

constexpr qint64 cMicrosecondsInSecond = 1'000'000;

template <class Number>
Number take(QByteArrayView bytes, qsizetype at) {
  return qFromLittleEndian<Number>(bytes.data() + at);
}

template <class Number>
void put(QByteArray& bytes, qsizetype at, Number number) {
  qToLittleEndian<Number>(number, bytes.data() + at);
}

} // namespace

Network_Message Network_Message::make(quint32 command, quint32 dataLength, qint64 nowMicroseconds) {
  Network_Message message;
  message.mCommand = command;
  message.mPaddedLength = static_cast<quint32>(padded(dataLength));
  message.mDataLength = dataLength;
  message.mMagic = cMagic;
  message.mSeconds = nowMicroseconds / cMicrosecondsInSecond;
  message.mMicroseconds = nowMicroseconds % cMicrosecondsInSecond;
  return message;
}

Network_Message Network_Message::make(quint32 command, quint32 dataLength) {
  using namespace std::chrono;
  return make(command, dataLength, duration_cast<microseconds>(system_clock::now().time_since_epoch()).count());
}

Network_Message Network_Message::fromBytes(QByteArrayView bytes) {
  Q_ASSERT(bytes.size() >= cSize);
  Network_Message message;
  message.mCommand = take<quint32>(bytes, 0);
  message.mPaddedLength = take<quint32>(bytes, 4);
  message.mDataLength = take<quint32>(bytes, 8);
  message.mMagic = take<quint32>(bytes, 12);
  message.mSeconds = take<qint64>(bytes, 16);
  message.mMicroseconds = take<qint64>(bytes, 24);
  return message;
}

QByteArray Network_Message::toBytes() const {
  QByteArray bytes(cSize, Qt::Uninitialized);
  put(bytes, 0, mCommand);
  put(bytes, 4, mPaddedLength);
  put(bytes, 8, mDataLength);
  put(bytes, 12, mMagic);
  put(bytes, 16, mSeconds);
  put(bytes, 24, mMicroseconds);
  return bytes;
}

bool Network_Message::isPossible() const {
  if (mMagic != cMagic) {
    return false;
  }
  return mPaddedLength == 0 ||
         (mPaddedLength % 16 == 0 && mPaddedLength >= mDataLength && mPaddedLength <= cMostPadded);
}
