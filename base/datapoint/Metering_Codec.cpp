#include "base/datapoint/Metering_Codec.h"

#include "base/datapoint/Big_Endian.h"
#include "base/datapoint/Codec_Error.h"
#include "base/datapoint/Number_Text.h"

#include <cmath>
#include <limits>

namespace {

using Codec_Error::refuse;
using Codec_Error::tr;

/// Codes in a row with the same unit, each ten times as coarse as the one before.
struct Coding {
  quint8 mFirst = 0;
  quint8 mCount = 0;
  int mExponent = 0; ///< of the first code's power of ten
  const char* mUnit = "";
};

constexpr Coding cCodings[] = {
    {0x00, 8, -3, "Wh"}, {0x08, 8, 0, "J"},     {0x10, 8, -6, "m³"},     {0x18, 8, -3, "kg"},   {0x28, 8, -3, "W"},
    {0x30, 8, 0, "J/h"}, {0x38, 8, -6, "m³/h"}, {0x40, 8, -7, "m³/min"}, {0x48, 8, -9, "m³/s"}, {0x50, 8, -3, "kg/h"},
    {0x6e, 1, 0, "HCA"}, {0x80, 2, -1, "MWh"},  {0x88, 2, -1, "GJ"},     {0x90, 2, 2, "m³"},    {0x98, 2, 2, "t"},
    {0xa8, 2, -1, "MW"}, {0xb0, 2, -1, "GJ/h"}, {0xba, 1, 0, "1"},
};

constexpr int cStatusDigits = 2;

/// Multiplies or divides by a power of ten that is a double itself, so the result is the nearest one.
double scaled(double value, int exponent) {
  const double power = std::pow(10, std::abs(exponent));
  return exponent < 0 ? value / power : value * power;
}

} // namespace

std::optional<Datapoint_Value> Metering_Codec::decode(QByteArrayView payload, QString* error) {
  const auto raw = static_cast<double>(Big_Endian::signExtended(Big_Endian::read(payload.first(4)), 32));
  const auto code = static_cast<quint8>(payload[4]);
  const QString status = QString::fromLatin1(payload.last(1).toByteArray().toHex().toUpper());
  for (const Coding& coding : cCodings) {
    const int step = code - coding.mFirst;
    if (step >= 0 && step < coding.mCount) {
      return Datapoint_Value{{},
                             {{QStringLiteral("value"), scaled(raw, coding.mExponent + step)},
                              {QStringLiteral("unit"), QString::fromUtf8(coding.mUnit)},
                              {QStringLiteral("status"), status}}};
    }
  }
  return refuse(error, tr("%1 steht für keine Einheit.").arg(code, 2, 16, QLatin1Char('0')));
}

std::optional<QByteArray> Metering_Codec::encode(const Datapoint_Value& value, QString* error) {
  const auto text = [&value](QStringView key) {
    const Datapoint_Value::Scalar* const part = value.part(key);
    const QString* const found = part ? std::get_if<QString>(part) : nullptr;
    return found ? *found : QString();
  };
  const Datapoint_Value::Scalar* const reading = value.part(u"value");
  const std::optional<double> number = reading ? Datapoint_Value::number(*reading) : std::nullopt;
  const std::optional<quint32> status = Number_Text::parseHex(text(u"status"), cStatusDigits);
  if (!number || !std::isfinite(*number) || !status) {
    return refuse(error,
                  tr("Ein Zählerwert braucht eine Zahl, eine Einheit und zwei hexadezimale Ziffern als Status."));
  }
  bool isUnit = false;
  for (const Coding& coding : cCodings) {
    if (text(u"unit") != QString::fromUtf8(coding.mUnit)) {
      continue;
    }
    isUnit = true;
    for (int step = 0; step < coding.mCount; ++step) {
      const double raw = std::round(scaled(*number, -(coding.mExponent + step)));
      if (raw >= std::numeric_limits<qint32>::min() && raw <= std::numeric_limits<qint32>::max()) {
        return Big_Endian::write(static_cast<quint64>(static_cast<qint64>(raw)), 4) +
               static_cast<char>(coding.mFirst + step) + static_cast<char>(*status);
      }
    }
  }
  return refuse(
      error, isUnit ? tr("%1 %2 ist zu groß für einen Zählerwert.").arg(Number_Text::shortest(*number), text(u"unit"))
                    : tr("\"%1\" ist keine Einheit für Zählerwerte.").arg(text(u"unit")));
}
