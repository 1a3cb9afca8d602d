#include "net/Telegram_Batch.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

constexpr quint8 cMark = 0x40;
constexpr quint8 cHighestService = DB_Address_Network_Telegram::Write;

quint8 byteAt(QByteArrayView bytes, qsizetype at) {
  return static_cast<quint8>(bytes[at]);
}

} // namespace

void Telegram_Batch::append(QByteArray& batch, const DB_Address_Network_Telegram& telegram) {
  const qsizetype length = std::min(telegram.mData.size(), DB_Address_Network_Telegram::cMostData);
  std::array<char, cHead> head{};
  head[0] = static_cast<char>(cMark + std::min<quint32>(telegram.mService, cHighestService));
  qToLittleEndian(static_cast<quint16>(telegram.mMain), head.data() + 1);
  head[3] = static_cast<char>(telegram.mMiddle);
  head[4] = static_cast<char>(telegram.mSub);
  head[5] = static_cast<char>(length);
  batch.append(head.data(), cHead);
  batch.append(telegram.mData.constData(), length);
}

qsizetype Telegram_Batch::decode(QByteArrayView payload, qsizetype length, qsizetype offset, qsizetype mostData,
                                 DB_Address_Network_Telegram& telegram) {
  const qsizetype end = std::min(length, payload.size());
  if (offset < 0 || offset > end || end - offset < cHead) {
    return 0;
  }
  const QByteArrayView record = payload.sliced(offset, end - offset);
  const quint8 first = byteAt(record, 0);
  const qsizetype dataLength = byteAt(record, 5);
  if (first < cMark || first > cMark + cHighestService || dataLength > mostData || cHead + dataLength > record.size()) {
    return 0;
  }
  telegram = {};
  telegram.mService = first - cMark;
  telegram.mMain = qFromLittleEndian<quint16>(record.data() + 1);
  telegram.mMiddle = byteAt(record, 3);
  telegram.mSub = byteAt(record, 4);
  telegram.mData = record.sliced(cHead, dataLength).toByteArray();
  return cHead + dataLength;
}
