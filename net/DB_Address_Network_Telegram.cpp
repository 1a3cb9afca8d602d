#include "net/DB_Address_Network_Telegram.h"

#include <QtEndian>

#include <algorithm>
#include <array>

namespace {

using Telegram = DB_Address_Network_Telegram;

/// The words of the head with their places.
struct Word {
  qsizetype mAt;
  quint32 Telegram::*mField;
};
constexpr std::array<Word, 10> cWords = {{{0, &Telegram::mKind},
                                          {4, &Telegram::mService},
                                          {8, &Telegram::mPriority},
                                          {12, &Telegram::mSourceArea},
                                          {16, &Telegram::mSourceLine},
                                          {20, &Telegram::mSourceDevice},
                                          {24, &Telegram::mMain},
                                          {28, &Telegram::mMiddle},
                                          {32, &Telegram::mSub},
                                          {36, &Telegram::mTime}}};
constexpr qsizetype cLengthAt = 40;
constexpr qsizetype cValidAt = 44;

} // namespace

Telegram Telegram::to(const Group_Address& address, Service service, const QByteArray& data) {
  Telegram telegram;
  telegram.mService = service;
  telegram.mMain = static_cast<quint32>(address.main());
  telegram.mMiddle = static_cast<quint32>(address.middle());
  telegram.mSub = static_cast<quint32>(address.sub());
  telegram.mIsValid = data.isEmpty() ? 0 : 1;
  telegram.mData = data.left(cMostData);
  return telegram;
}

Group_Address Telegram::address() const {
  return {static_cast<int>(mMain), static_cast<int>(mMiddle), static_cast<int>(mSub)};
}

QByteArray Telegram::toBytes() const {
  const qsizetype length = std::min(mData.size(), cMostData);
  QByteArray bytes(cHead + length, '\0');
  for (const Word& word : cWords) {
    qToLittleEndian(this->*word.mField, bytes.data() + word.mAt);
  }
  qToLittleEndian(static_cast<quint32>(length), bytes.data() + cLengthAt);
  bytes[cValidAt] = static_cast<char>(mIsValid);
  std::ranges::copy(QByteArrayView(mData).first(length), bytes.begin() + cHead);
  return bytes;
}

Telegram Telegram::fromBytes(QByteArrayView bytes) {
  Telegram telegram;
  telegram.read(bytes);
  return telegram;
}

void Telegram::read(QByteArrayView bytes) {
  const QByteArrayView record = bytes.first(std::min(bytes.size(), cSize));
  const QByteArrayView data = record.sliced(std::min(record.size(), cHead));
  std::array<char, cHead> head{};
  std::ranges::copy(record.first(record.size() - data.size()), head.begin());
  for (const Word& word : cWords) {
    this->*word.mField = qFromLittleEndian<quint32>(head.data() + word.mAt);
  }
  const auto length = static_cast<qsizetype>(qFromLittleEndian<quint32>(head.data() + cLengthAt));
  mIsValid = static_cast<quint8>(head[cValidAt]);
  const QByteArrayView used = data.first(std::min(data.size(), length));
  mData.resize(used.size());
  std::ranges::copy(used, mData.begin());
}
