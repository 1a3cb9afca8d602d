#include "mcp/Ascii_Json.h"

#include <QJsonDocument>
#include <QString>

QByteArray Ascii_Json::write(const QJsonObject& object) {
  const QByteArray utf8 = QJsonDocument(object).toJson(QJsonDocument::Compact);
  QByteArray ascii;
  ascii.reserve(utf8.size());
  const auto* const begin = utf8.constBegin();
  const auto* const end = utf8.constEnd();
  constexpr char digits[] = "0123456789abcdef";
  for (const auto* at = begin; at < end;) {
    const auto* const plain = at;
    while (at < end && uchar(*at) < 0x80) {
      ++at;
    }
    ascii.append(plain, at - plain);
    const auto* const other = at;
    while (at < end && uchar(*at) >= 0x80) {
      ++at;
    }
    for (const QChar unit : QString::fromUtf8(other, at - other)) {
      const ushort code = unit.unicode();
      const char escape[] = {
          '\\', 'u', digits[code >> 12], digits[code >> 8 & 15], digits[code >> 4 & 15], digits[code & 15]};
      ascii.append(escape, sizeof escape);
    }
  }
  return ascii;
}
