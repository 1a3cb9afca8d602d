#include "base/datapoint/Bit_Codec.h"

#include "base/datapoint/Big_Endian.h"
#include "base/datapoint/Codec_Error.h"
#include "base/datapoint/Number_Text.h"
#include "base/datapoint/Part_Layout.h"

#include <cmath>

namespace {

using Codec_Error::refuse;
using Codec_Error::tr;
using Kind = Part_Layout::Kind;
using Scalar = Datapoint_Value::Scalar;

constexpr int cByteMax = 255;
constexpr double cPercentMax = 100;
constexpr int cBitsPerDigit = 4;
constexpr int cModes = 3;

quint64 lowBits(int count) {
  return (quint64(1) << count) - 1;
}

quint64 bit(int number) {
  return number >= 0 ? quint64(1) << number : 0;
}

bool isMarkedInvalid(const Part_Layout& part, quint64 payload) {
  return part.mMark >= 0 && ((payload & bit(part.mMark)) != 0) == part.mMarkIsInvalid;
}

QString keyOf(const Part_Layout& part) {
  return QString::fromLatin1(part.mKey);
}

/// The limits of a part in its unit.
std::pair<double, double> rangeOf(const Part_Layout& part) {
  switch (part.mKind) {
  case Kind::Percent:
    return {0, cPercentMax};
  case Kind::Mode:
    return {0, cModes - 1};
  case Kind::Signed:
    return {-static_cast<double>(bit(part.mBits - 1)), static_cast<double>(lowBits(part.mBits - 1))};
  default:
    return {0, (part.mMax >= 0 ? static_cast<double>(part.mMax) : static_cast<double>(lowBits(part.mBits))) *
                   part.mFactor};
  }
}

QString rangeFault(const Part_Layout& part, double value) {
  const auto [min, max] = rangeOf(part);
  return value >= min && value <= max
             ? QString()
             : Codec_Error::outOfRange(QStringLiteral("%1=%2").arg(keyOf(part), Number_Text::shortest(value)),
                                       Number_Text::shortest(min), Number_Text::shortest(max));
}

bool areDecimals(QStringView digits) {
  return std::all_of(digits.begin(), digits.end(), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

std::optional<Scalar> fromRaw(const Part_Layout& part, quint64 raw, QString* error) {
  if (part.isText()) {
    const QString digits = QStringLiteral("%1").arg(raw, part.mBits / cBitsPerDigit, 16, QLatin1Char('0')).toUpper();
    return part.mKind == Kind::Decimals && !areDecimals(digits)
               ? std::optional<Scalar>(refuse(error, tr("%1 hat nicht nur Dezimalziffern.").arg(digits)))
               : digits;
  }
  if (part.mKind == Kind::Mode) {
    const bool isOne = raw == 1 || raw == 2 || raw == 4;
    return isOne ? std::optional<Scalar>(qint64(raw / 2))
                 : refuse(error, tr("Von den drei Bits des Modus muss genau eines gesetzt sein."));
  }
  if (part.mKind == Kind::Percent) {
    return static_cast<double>(raw) * cPercentMax / cByteMax;
  }
  const qint64 whole =
      part.mKind == Kind::Signed ? Big_Endian::signExtended(raw, part.mBits) : static_cast<qint64>(raw);
  const QString why = rangeFault(part, static_cast<double>(whole * part.mFactor));
  return why.isEmpty() ? std::optional<Scalar>(whole * part.mFactor) : refuse(error, why);
}

std::optional<quint64> toRaw(const Part_Layout& part, const Scalar& scalar, QString* error) {
  if (part.isText()) {
    const QString* const text = std::get_if<QString>(&scalar);
    const int digits = part.mBits / cBitsPerDigit;
    const std::optional<quint32> raw = text ? Number_Text::parseHex(*text, digits) : std::nullopt;
    if (raw && (part.mKind == Kind::Hex || areDecimals(*text))) {
      return *raw;
    }
    return refuse(error, (part.mKind == Kind::Hex ? tr("%1 muss aus %2 hexadezimalen Ziffern bestehen.")
                                                  : tr("%1 muss aus %2 Dezimalziffern bestehen."))
                             .arg(keyOf(part))
                             .arg(digits));
  }
  const std::optional<double> number = Datapoint_Value::number(scalar);
  if (!number || !std::isfinite(*number)) {
    return refuse(error, tr("%1 muss eine Zahl sein.").arg(keyOf(part)));
  }
  const QString why = rangeFault(part, *number);
  if (!why.isEmpty()) {
    return refuse(error, why);
  }
  switch (part.mKind) {
  case Kind::Percent:
    return static_cast<quint64>(std::llround(*number * cByteMax / cPercentMax));
  case Kind::Mode:
    return bit(static_cast<int>(std::lround(*number)));
  default:
    return static_cast<quint64>(std::llround(*number / part.mFactor)) & lowBits(part.mBits);
  }
}

} // namespace

std::optional<Datapoint_Value> Bit_Codec::decode(const Datapoint_Type& type, QByteArrayView payload, QString* error) {
  const std::span<const Part_Layout> parts = Part_Layout::of(type);
  const quint64 bits = Big_Endian::read(payload);
  quint64 used = 0;
  for (const Part_Layout& part : parts) {
    used |= lowBits(part.mBits) << part.mLow | bit(part.mMark);
  }
  if (bits & ~used) {
    return refuse(error, tr("Reservierte Bits sind gesetzt."));
  }
  Datapoint_Value value;
  for (const Part_Layout& part : parts) {
    const std::optional<Scalar> scalar =
        isMarkedInvalid(part, bits) ? Scalar() : fromRaw(part, bits >> part.mLow & lowBits(part.mBits), error);
    if (!scalar) {
      return std::nullopt;
    }
    value.mParts.append({keyOf(part), *scalar});
  }
  return value;
}

std::optional<QByteArray> Bit_Codec::encode(const Datapoint_Type& type, const Datapoint_Value& value, QString* error) {
  const std::span<const Part_Layout> parts = Part_Layout::of(type);
  quint64 bits = 0;
  quint64 valid = 0;
  quint64 invalid = 0;
  for (const Part_Layout& part : parts) {
    const Scalar* const scalar = value.part(keyOf(part));
    if (!scalar) {
      return refuse(error, tr("%1 fehlt.").arg(keyOf(part)));
    }
    const bool isValid = !std::holds_alternative<std::monostate>(*scalar);
    (isValid ? valid : invalid) |= bit(part.mMark);
    if (!isValid && part.mMark == Part_Layout::cNoMark) {
      return refuse(error, tr("%1 lässt sich nicht als ungültig kennzeichnen.").arg(keyOf(part)));
    }
    if (valid & invalid) {
      return refuse(error, tr("%1 ist nur zusammen mit dem vorigen Teil gültig oder ungültig.").arg(keyOf(part)));
    }
    if (isValid) {
      const std::optional<quint64> raw = toRaw(part, *scalar, error);
      if (!raw) {
        return std::nullopt;
      }
      bits |= *raw << part.mLow;
    }
    if (isValid != part.mMarkIsInvalid) {
      bits |= bit(part.mMark);
    }
  }
  return Big_Endian::write(bits, type.bytes());
}
