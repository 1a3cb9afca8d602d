#include "net/Script_Message.h"

#include <QtEndian>

namespace {

constexpr qsizetype cGuidSize = 16;
constexpr qsizetype cTimeSize = 8;

QUuid guid(QByteArrayView payload) {
  return QUuid::fromRfc4122(payload.first(cGuidSize));
}

QString text(QByteArrayView bytes) {
  const qsizetype end = bytes.indexOf('\0');
  return QString::fromUtf8(end < 0 ? bytes : bytes.first(end));
}

} // namespace

QByteArray Script_Message::ofBlock(const QUuid& block, const QString& text) {
  return block.toRfc4122() + text.toUtf8();
}

QByteArray Script_Message::ofLine(const Line& line) {
  const qint64 time = qToLittleEndian(line.mTime);
  QByteArray payload = line.mBlock.toRfc4122();
  payload.append(reinterpret_cast<const char*>(&time), sizeof time);
  return payload + line.mText.toUtf8();
}

QByteArray Script_Message::ofVariable(const Variable& variable) {
  QByteArray payload = variable.mBlock.toRfc4122() + variable.mName.toUtf8();
  payload.append('\0');
  return payload + variable.mValue.toUtf8();
}

std::optional<Script_Message::Reply> Script_Message::readReply(QByteArrayView payload) {
  if (payload.size() < cGuidSize) {
    return std::nullopt;
  }
  return Reply{guid(payload), text(payload.sliced(cGuidSize))};
}

std::optional<Script_Message::Line> Script_Message::readLine(QByteArrayView payload) {
  if (payload.size() < cGuidSize + cTimeSize) {
    return std::nullopt;
  }
  const auto time = qFromLittleEndian<qint64>(payload.sliced(cGuidSize).data());
  return Line{guid(payload), time, text(payload.sliced(cGuidSize + cTimeSize))};
}

std::optional<Script_Message::Variable> Script_Message::readVariable(QByteArrayView payload) {
  const qsizetype end = payload.indexOf('\0', cGuidSize);
  // The GUID may hold zero bytes itself; the name ends with the first one behind it.
  if (payload.size() < cGuidSize || end < 0) {
    return std::nullopt;
  }
  return Variable{guid(payload), QString::fromUtf8(payload.first(end).sliced(cGuidSize)),
                  text(payload.sliced(end + 1))};
}
