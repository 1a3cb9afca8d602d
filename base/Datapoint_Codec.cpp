#include "base/Datapoint_Codec.h"

#include "base/Datapoint_Types.h"
#include "base/datapoint/Bit_Codec.h"
#include "base/datapoint/Codec_Error.h"
#include "base/datapoint/Metering_Codec.h"
#include "base/datapoint/Number_Codec.h"
#include "base/datapoint/Number_Text.h"
#include "base/datapoint/Part_Layout.h"
#include "base/datapoint/Text_Codec.h"
#include "base/datapoint/Time_Codec.h"

namespace {

using Codec_Error::refuse;
using Codec_Error::tr;
using Kind = Part_Layout::Kind;
using Scalar = Datapoint_Value::Scalar;

enum class Family : quint8 { Number, Text, Time, Metering, Bits };

Family familyOf(const Datapoint_Type& type) {
  switch (type.mFormat) {
  case Datapoint_Format::Time:
  case Datapoint_Format::Date:
  case Datapoint_Format::Date_Time:
    return Family::Time;
  case Datapoint_Format::Metering:
    return Family::Metering;
  case Datapoint_Format::Serial:
  case Datapoint_Format::Locale:
  case Datapoint_Format::Language:
    return Family::Text;
  default:
    break;
  }
  if (Text_Codec::isFreeText(type.mFormat)) {
    return Family::Text;
  }
  return Part_Layout::of(type).empty() ? Family::Number : Family::Bits;
}

QString scalarText(const Datapoint_Type& type, const Scalar& scalar) {
  if (const QString* const text = std::get_if<QString>(&scalar)) {
    return *text;
  }
  if (std::holds_alternative<std::monostate>(scalar)) {
    return QStringLiteral("-");
  }
  const double* const number = std::get_if<double>(&scalar);
  if (number && familyOf(type) == Family::Bits) {
    return Number_Text::rounded(*number, 4);
  }
  return Number_Codec::toText(type, scalar);
}

Datapoint_Value simpleFromText(const Datapoint_Type& type, QStringView text) {
  if (familyOf(type) != Family::Number) {
    return Datapoint_Value::ofText((Text_Codec::isFreeText(type.mFormat) ? text : text.trimmed()).toString());
  }
  const Scalar number = Number_Text::parse(text);
  const bool hasNoTexts = type.mFormat == Datapoint_Format::Bitset8;
  if (!std::holds_alternative<std::monostate>(number) || hasNoTexts) {
    return {number, {}};
  }
  const std::optional<int> value = Datapoint_Types::valueOfText(type, text.trimmed());
  return value ? Datapoint_Value::ofWhole(*value) : Datapoint_Value();
}

std::optional<Scalar> partFromText(const Part_Layout& part, QStringView text) {
  if (part.isText()) {
    return text.toString();
  }
  if (text == u"-") {
    return Scalar();
  }
  const Scalar number = Number_Text::parse(text);
  return std::holds_alternative<std::monostate>(number) ? std::nullopt : std::optional(number);
}

/// The first part without a value that a word can belong to; null when there is none.
const Part_Layout* partOf(std::span<const Part_Layout> parts, QStringView key, const Datapoint_Value& value) {
  for (const Part_Layout& part : parts) {
    const QString partKey = QString::fromLatin1(part.mKey);
    const bool isIt = key.isEmpty() ? part.mKind == Kind::Bare_Text : key == partKey;
    if (isIt && !value.part(partKey)) {
      return &part;
    }
  }
  return nullptr;
}

std::optional<Datapoint_Value> compoundFromText(const Datapoint_Type& type, QStringView text, QString* error) {
  const std::span<const Part_Layout> parts = Part_Layout::of(type);
  Datapoint_Value read;
  for (const QStringView word : text.trimmed().split(u' ', Qt::SkipEmptyParts)) {
    const qsizetype sign = std::max<qsizetype>(word.indexOf(u'='), 0);
    const Part_Layout* const part = partOf(parts, word.first(sign), read);
    const std::optional<Scalar> scalar = part ? partFromText(*part, word.mid(sign > 0 ? sign + 1 : 0)) : std::nullopt;
    if (!scalar) {
      QStringList keys;
      for (const Part_Layout& known : parts) {
        keys.append(QString::fromLatin1(known.mKey));
      }
      return refuse(error,
                    tr("\"%1\" ist keine Angabe für diesen Typ. Erlaubt ist je einmal NAME=WERT mit den Namen %2.")
                        .arg(word.left(40).toString(), keys.join(QStringLiteral(", "))));
    }
    read.mParts.append({QString::fromLatin1(part->mKey), *scalar});
  }
  Datapoint_Value value;
  for (const Part_Layout& part : parts) {
    if (const Scalar* const scalar = read.part(QString::fromLatin1(part.mKey))) {
      value.mParts.append({QString::fromLatin1(part.mKey), *scalar});
    }
  }
  return value;
}

} // namespace

std::optional<Datapoint_Value> Datapoint_Codec::decode(const Datapoint_Type& type, QByteArrayView payload,
                                                       QString* error) {
  if (type.bytes() > 0 && payload.size() != type.bytes()) {
    return refuse(
        error,
        tr("%1 hat %2 Byte, erhalten wurden %3.").arg(type.mId.toString()).arg(type.bytes()).arg(payload.size()));
  }
  switch (familyOf(type)) {
  case Family::Number:
    return Number_Codec::decode(type, payload, error);
  case Family::Text:
    return Text_Codec::decode(type, payload, error);
  case Family::Time:
    return Time_Codec::decode(type, payload, error);
  case Family::Metering:
    return Metering_Codec::decode(payload, error);
  case Family::Bits:
    return Bit_Codec::decode(type, payload, error);
  }
  return std::nullopt;
}

std::optional<QByteArray> Datapoint_Codec::encode(const Datapoint_Type& type, const Datapoint_Value& value,
                                                  QString* error) {
  switch (familyOf(type)) {
  case Family::Number:
    return Number_Codec::encode(type, value, error);
  case Family::Text:
    return Text_Codec::encode(type, value, error);
  case Family::Time:
    return Time_Codec::encode(type, value, error);
  case Family::Metering:
    return Metering_Codec::encode(value, error);
  case Family::Bits:
    return Bit_Codec::encode(type, value, error);
  }
  return std::nullopt;
}

QString Datapoint_Codec::toText(const Datapoint_Type& type, const Datapoint_Value& value) {
  const std::span<const Part_Layout> parts = Part_Layout::of(type);
  if (parts.empty()) {
    return scalarText(type, value.mScalar);
  }
  QStringList words;
  for (const Part_Layout& part : parts) {
    const QString key = QString::fromLatin1(part.mKey);
    const Scalar* const scalar = value.part(key);
    const QString text = scalar ? scalarText(type, *scalar) : QStringLiteral("-");
    words.append(part.mKind == Kind::Bare_Text ? text : QStringLiteral("%1=%2").arg(key, text));
  }
  return words.join(u' ');
}

std::optional<Datapoint_Value> Datapoint_Codec::fromText(const Datapoint_Type& type, QStringView text, QString* error) {
  const std::optional<Datapoint_Value> value =
      Part_Layout::of(type).empty() ? simpleFromText(type, text) : compoundFromText(type, text, error);
  return value && encode(type, *value, error) ? value : std::nullopt;
}
