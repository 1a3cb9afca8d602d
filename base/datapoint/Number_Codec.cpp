#include "base/datapoint/Number_Codec.h"

#include "base/Datapoint_Types.h"
#include "base/datapoint/Big_Endian.h"
#include "base/datapoint/Codec_Error.h"
#include "base/datapoint/Number_Text.h"

#include <bit>
#include <cmath>
#include <limits>

namespace {

using Codec_Error::refuse;
using Codec_Error::tr;
using Scalar = Datapoint_Value::Scalar;

constexpr int cByteMax = 255;
constexpr double cTwoToThe63 = 9223372036854775808.0;

// 0.01 * mantissa * 2^exponent: sign, 4 bits of exponent, 11 bits that make a two's complement with the sign.
namespace Float16 {
constexpr quint64 cInvalid = 0x7fff;
constexpr int cMantissaBits = 11;
constexpr int cMantissaMin = -2048;
constexpr int cMantissaMax = 2047;
constexpr double cPerUnit = 100;

double read(quint64 bits) {
  const quint64 mantissa = (bits >> 15) << cMantissaBits | (bits & 0x7ff);
  const int exponent = static_cast<int>(bits >> cMantissaBits & 15);
  return std::ldexp(static_cast<double>(Big_Endian::signExtended(mantissa, cMantissaBits + 1)), exponent) / cPerUnit;
}

/// Of a number in the range of the format; with the smallest exponent, which keeps most digits.
quint64 write(double value) {
  int exponent = 0;
  double mantissa = std::round(value * cPerUnit);
  while (mantissa < cMantissaMin || mantissa > cMantissaMax) {
    ++exponent;
    mantissa = std::round(std::ldexp(value * cPerUnit, -exponent));
  }
  const auto bits = static_cast<quint64>(static_cast<qint64>(mantissa));
  return (bits >> 63) << 15 | static_cast<quint64>(exponent) << cMantissaBits | (bits & 0x7ff);
}
} // namespace Float16

/// Half a step above the largest float a number is still rounded to that.
bool isFloat32(double value) {
  constexpr double cFirstTooLarge = 0x1.ffffffp+127;
  return std::abs(value) < cFirstTooLarge;
}

bool isWholeStep(const Datapoint_Type& type) {
  return type.mStep >= 1 && type.mStep == std::floor(type.mStep) && !Number_Codec::isFractionOfByte(type);
}

bool isInRange(const Datapoint_Type& type, const Scalar& number) {
  if (const qint64* const whole = std::get_if<qint64>(&number)) {
    // The limits of 64 bits are no doubles; every whole number keeps them.
    return type.mBits == 64 || (static_cast<double>(*whole) >= type.mMin && static_cast<double>(*whole) <= type.mMax);
  }
  const double value = std::get<double>(number);
  if (type.mFormat == Datapoint_Format::Float32) {
    return isFloat32(value);
  }
  return value >= type.mMin && value <= type.mMax && value < cTwoToThe63;
}

/// "0=Aus, 1=Ein": what an enumeration allows, cut when it is long.
QString allowedValues(const Datapoint_Type& type) {
  constexpr qsizetype cMostListed = 8;
  const QList<Datapoint_Types::Value_Text> texts = Datapoint_Types::valueTexts(type);
  QStringList list;
  for (const Datapoint_Types::Value_Text& row : texts.first(std::min(texts.size(), cMostListed))) {
    list.append(QStringLiteral("%1=%2").arg(row.mValue).arg(row.mText));
  }
  if (texts.size() > cMostListed) {
    list.append(tr("… bis %1").arg(texts.back().mValue));
  }
  return list.join(QStringLiteral(", "));
}

/// Why a number is none of this type; empty when it is one.
QString fault(const Datapoint_Type& type, const Scalar& number) {
  // All digits, not those of the type: 100.00001 is beyond 100.
  const double* const real = std::get_if<double>(&number);
  const QString text = real ? Number_Text::shortest(*real) : Number_Codec::toText(type, number);
  if (Number_Codec::isEnumerated(type.mFormat)) {
    const double value = *Datapoint_Value::number(number);
    const bool isListed = value == std::floor(value) && isInRange(type, number) &&
                          !Datapoint_Types::valueText(type, static_cast<qint64>(value)).isEmpty();
    return isListed ? QString() : tr("%1 ist kein Wert dieses Typs. Erlaubt sind %2.").arg(text, allowedValues(type));
  }
  if (isInRange(type, number)) {
    return {};
  }
  const QString unit = *type.mUnit ? u' ' + type.unit() : QString();
  const bool isLong = type.mBits == 64;
  const Scalar min = isLong ? Scalar(std::numeric_limits<qint64>::min()) : Scalar(type.mMin);
  const Scalar max = isLong ? Scalar(std::numeric_limits<qint64>::max()) : Scalar(type.mMax);
  return Codec_Error::outOfRange(text + unit, Number_Codec::toText(type, min) + unit,
                                 Number_Codec::toText(type, max) + unit);
}

Scalar fromRaw(const Datapoint_Type& type, qint64 raw) {
  if (Number_Codec::isFractionOfByte(type)) {
    return static_cast<double>(raw) * type.mMax / cByteMax;
  }
  if (isWholeStep(type)) {
    return raw * static_cast<qint64>(type.mStep);
  }
  // Divided, because 0.01 is no double: 7 / 100 is the number nearest to 0.07, 7 * 0.01 is not.
  return static_cast<double>(raw) / std::round(1 / type.mStep);
}

qint64 toRaw(const Datapoint_Type& type, const Scalar& number) {
  const qint64* const whole = std::get_if<qint64>(&number);
  if (whole && type.mStep == 1) {
    return *whole;
  }
  const double value = *Datapoint_Value::number(number);
  if (Number_Codec::isFractionOfByte(type)) {
    return std::llround(value * cByteMax / type.mMax);
  }
  return std::llround(isWholeStep(type) ? value / type.mStep : value * std::round(1 / type.mStep));
}

} // namespace

bool Number_Codec::isEnumerated(Datapoint_Format format) {
  return format == Datapoint_Format::Bool || format == Datapoint_Format::Enum2 || format == Datapoint_Format::Enum8;
}

bool Number_Codec::isFractionOfByte(const Datapoint_Type& type) {
  return type.mFormat == Datapoint_Format::Unsigned && type.mBits == 8 && type.mStep != 1;
}

std::optional<Datapoint_Value> Number_Codec::decode(const Datapoint_Type& type, QByteArrayView payload,
                                                    QString* error) {
  const quint64 bits = Big_Endian::read(payload);
  Scalar number;
  if (type.mFormat == Datapoint_Format::Float16) {
    if (bits == Float16::cInvalid) {
      return refuse(error, tr("7FFF steht für einen ungültigen Wert."));
    }
    number = Float16::read(bits);
  } else if (type.mFormat == Datapoint_Format::Float32) {
    const auto value = std::bit_cast<float>(static_cast<quint32>(bits));
    if (!std::isfinite(value)) {
      return refuse(error, tr("%1 ist keine endliche Zahl.").arg(QLatin1String(payload.toByteArray().toHex())));
    }
    number = value == 0 ? 0.0 : static_cast<double>(value); // texts know no zero with a sign
  } else {
    const bool isSigned = type.mFormat == Datapoint_Format::Signed;
    number = fromRaw(type, isSigned ? Big_Endian::signExtended(bits, type.mBits) : static_cast<qint64>(bits));
  }
  const QString why = fault(type, number);
  if (!why.isEmpty()) {
    return refuse(error, why);
  }
  return Datapoint_Value{number, {}};
}

std::optional<QByteArray> Number_Codec::encode(const Datapoint_Type& type, const Datapoint_Value& value,
                                               QString* error) {
  const std::optional<double> number = value.number();
  if (!number || !std::isfinite(*number)) {
    return refuse(error, tr("Für diesen Typ ist eine Zahl anzugeben."));
  }
  const QString why = fault(type, value.mScalar);
  if (!why.isEmpty()) {
    return refuse(error, why);
  }
  quint64 bits = 0;
  if (type.mFormat == Datapoint_Format::Float16) {
    bits = Float16::write(*number);
  } else if (type.mFormat == Datapoint_Format::Float32) {
    constexpr double cMost = std::numeric_limits<float>::max();
    bits = std::bit_cast<quint32>(static_cast<float>(std::clamp(*number, -cMost, cMost)));
  } else {
    bits = static_cast<quint64>(toRaw(type, value.mScalar));
  }
  return Big_Endian::write(bits, type.bytes());
}

QString Number_Codec::toText(const Datapoint_Type& type, const Scalar& number) {
  if (const qint64* const whole = std::get_if<qint64>(&number)) {
    return QString::number(*whole);
  }
  const double value = std::get<double>(number);
  if (type.mFormat == Datapoint_Format::Float32 && isFloat32(value)) {
    constexpr double cMost = std::numeric_limits<float>::max();
    return Number_Text::shortest(static_cast<float>(std::clamp(value, -cMost, cMost)));
  }
  return isFractionOfByte(type) ? Number_Text::rounded(value, 4) : Number_Text::shortest(value);
}
