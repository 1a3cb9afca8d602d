#include "simulator/Simulator_Faults.h"

#include "net/Network_Frame.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Kind = Simulator_Faults::Kind;

enum class Value { None, Needed };

struct Row {
  const char* mName;
  Kind mKind;
  Value mValue;
};
constexpr Row cRows[] = {
    {"bytes", Kind::Bytes, Value::None},
    {"together", Kind::Together, Value::Needed},
    {"pause-header", Kind::Pause_Header, Value::Needed},
    {"pause-payload", Kind::Pause_Payload, Value::Needed},
    {"magic", Kind::Magic, Value::None},
    {"length-odd", Kind::Length_Odd, Value::None},
    {"length-short", Kind::Length_Short, Value::None},
    {"length-huge", Kind::Length_Huge, Value::None},
    {"garbage", Kind::Garbage, Value::Needed},
    {"gap", Kind::Gap, Value::Needed},
    {"silence", Kind::Silence, Value::None},
    {"close", Kind::Close, Value::Needed},
    {"refuse", Kind::Refuse, Value::Needed},
    {"mute", Kind::Mute, Value::Needed},
};
constexpr int cUsualGapMs = 60;
constexpr int cMostValue = 1'000'000;
constexpr qsizetype cHalfHeader = Network_Message::cSize / 2;
constexpr quint32 cOddLength = 24;
constexpr quint32 cBlock = 16;

/// A header alone, with these lengths.
QByteArray header(quint32 magic, quint32 padded, quint32 data) {
  Network_Message message = Network_Message::make(1, 0);
  message.mMagic = magic;
  message.mPaddedLength = padded;
  message.mDataLength = data;
  return Network_Frame::pack(message, {});
}

} // namespace

bool Simulator_Faults::add(const QString& text, QString* error) {
  const auto fail = [&] {
    if (error) {
      *error = QCoreApplication::translate("Simulator_Faults", "Den Fehler \"%1\" gibt es nicht.").arg(text);
    }
    return false;
  };
  const QString fault = text.section(u'@', 0, 0);
  const QString name = fault.section(u'=', 0, 0);
  const auto* const row = std::ranges::find_if(cRows, [&](const Row& row) { return name == QLatin1String(row.mName); });
  if (row == std::end(cRows) || text.count(u'@') > 1) {
    return fail();
  }
  Fault wanted{row->mKind, 0, 0};
  bool isNumber = true;
  if (text.contains(u'@')) {
    wanted.mCommand = text.section(u'@', 1).toUInt(&isNumber);
  }
  if (!isNumber || fault.contains(u'=') != (row->mValue == Value::Needed)) {
    return fail();
  }
  if (row->mValue == Value::Needed) {
    wanted.mValue = fault.section(u'=', 1).toInt(&isNumber);
    if (!isNumber || wanted.mValue < 0 || wanted.mValue > cMostValue) {
      return fail();
    }
  }
  mFaults.append(wanted);
  return true;
}

std::optional<int> Simulator_Faults::value(Kind kind, quint32 command) const {
  for (const Fault& fault : mFaults) {
    if (fault.mKind == kind && (fault.mCommand == 0 || fault.mCommand == command)) {
      ++mHits;
      return fault.mValue;
    }
  }
  return std::nullopt;
}

bool Simulator_Faults::concerns(Kind kind, quint32 command) const {
  const bool isConcerned = std::ranges::any_of(mFaults, [&](const Fault& fault) {
    return fault.mKind == kind && static_cast<quint32>(fault.mValue) == command;
  });
  mHits += isConcerned ? 1 : 0;
  return isConcerned;
}

QByteArray Simulator_Faults::before(quint32 command) const {
  QByteArray bytes;
  if (value(Kind::Magic, command)) {
    bytes += header(Network_Message::cMagic + 1, 0, 0);
  }
  if (value(Kind::Length_Odd, command)) {
    bytes += header(Network_Message::cMagic, cOddLength, cBlock);
  }
  if (value(Kind::Length_Short, command)) {
    bytes += header(Network_Message::cMagic, cBlock, cBlock + 1);
  }
  if (value(Kind::Length_Huge, command)) {
    bytes += header(Network_Message::cMagic, Network_Message::cMostPadded + cBlock, cBlock);
  }
  if (const std::optional<int> count = value(Kind::Garbage, command)) {
    bytes += QByteArray(*count, '\x5a');
  }
  return bytes;
}

QList<Simulator_Faults::Piece> Simulator_Faults::pieces(quint32 command, const QByteArray& message) const {
  QList<Piece> pieces;
  int delay = 0;
  const QByteArray foreign = before(command);
  if (!foreign.isEmpty()) {
    pieces.append({foreign, 0, false});
    delay = value(Kind::Gap, command).value_or(cUsualGapMs);
  }
  if (value(Kind::Bytes, command)) {
    for (const char byte : message) {
      pieces.append({QByteArray(1, byte), delay, true});
      delay = 0;
    }
    return pieces;
  }
  qsizetype at = 0;
  const auto cut = [&](qsizetype end, int nextDelay) {
    pieces.append({message.sliced(at, end - at), delay, false});
    at = end;
    delay = nextDelay;
  };
  if (const std::optional<int> pause = value(Kind::Pause_Header, command)) {
    cut(cHalfHeader, *pause);
  }
  const std::optional<int> pause = value(Kind::Pause_Payload, command);
  if (pause && message.size() > Network_Message::cSize) {
    cut((Network_Message::cSize + message.size()) / 2, *pause);
  }
  cut(message.size(), 0);
  return pieces;
}
