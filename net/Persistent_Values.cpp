#include "net/Persistent_Values.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace {

constexpr qsizetype cShown = 40; // characters of a wrong line in a message

bool isHex(QByteArrayView text) {
  return std::all_of(text.begin(), text.end(), [](char character) {
    return (character >= '0' && character <= '9') || (character >= 'A' && character <= 'F') ||
           (character >= 'a' && character <= 'f');
  });
}

std::optional<Persistent_Values::Value> readLine(QByteArrayView line) {
  const qsizetype divider = line.indexOf(';');
  const QByteArrayView digits = divider < 0 ? QByteArrayView() : line.sliced(divider + 1);
  if (digits.isEmpty() || digits.size() % 2 != 0 || digits.size() / 2 > Persistent_Values::cMostPayload ||
      !isHex(digits)) {
    return std::nullopt;
  }
  const QString text = QString::fromLatin1(line.first(divider));
  const std::optional<Group_Address> address = Group_Address::parse(text);
  if (!address || address->toString() != text) {
    return std::nullopt;
  }
  return Persistent_Values::Value{*address, QByteArray::fromHex(digits.toByteArray())};
}

/// The line's beginning without what a message cannot show.
QString shown(QByteArrayView line) {
  QString text = QString::fromUtf8(line.first(std::min(cShown, line.size())));
  for (QChar& character : text) {
    if (!character.isPrint() || character == QChar::ReplacementCharacter) {
      character = u'·';
    }
  }
  return text;
}

} // namespace

QByteArray Persistent_Values::toBytes() const {
  QByteArray bytes;
  for (const Value& value : mValues) {
    bytes += value.mAddress.toString().toLatin1() + ';' + value.mPayload.toHex().toUpper() + '\n';
  }
  return bytes;
}

std::optional<Persistent_Values> Persistent_Values::fromBytes(QByteArrayView bytes, QString* error) {
  Persistent_Values values;
  QSet<Group_Address> seen;
  for (int number = 1; !bytes.isEmpty(); ++number) {
    const qsizetype end = bytes.indexOf('\n');
    QByteArrayView line = end < 0 ? bytes : bytes.first(end);
    bytes = end < 0 ? QByteArrayView() : bytes.sliced(end + 1);
    if (line.endsWith('\r')) {
      line.chop(1);
    }
    if (line.isEmpty()) {
      continue;
    }
    const std::optional<Value> value = readLine(line);
    if (!value || seen.contains(value->mAddress)) {
      if (error) {
        const QString text =
            value ? QCoreApplication::translate(
                        "Persistent_Values", "Zeile %1 der persistenten Werte nennt eine Gruppenadresse nochmals: %2")
                  : QCoreApplication::translate("Persistent_Values",
                                                "Zeile %1 der persistenten Werte ist nicht lesbar: %2");
        *error = text.arg(QString::number(number), shown(line));
      }
      return std::nullopt;
    }
    seen.insert(value->mAddress);
    values.mValues.push_back(*value);
  }
  return values;
}
