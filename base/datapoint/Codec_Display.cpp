#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"
#include "base/datapoint/Codec_Error.h"
#include "base/datapoint/Number_Codec.h"
#include "base/datapoint/Number_Text.h"
#include "base/datapoint/Part_Layout.h"
#include "base/datapoint/Text_Codec.h"
#include "base/datapoint/Value_List.h"

#include <QDate>
#include <QLocale>

namespace {

using Codec_Error::tr;
using Kind = Part_Layout::Kind;
using Scalar = Datapoint_Value::Scalar;

constexpr int cPercentDecimals = 1;
constexpr int cOutputs = 16;
constexpr qsizetype cMakerDigits = 4; // of a serial number, the rest counts the maker's devices

/// A number written with a decimal point, in the way of the chosen language and with as many decimals.
QString localNumber(double value, const QString& plain) {
  const QLocale locale;
  if (plain.contains(u'e')) {
    return QString(plain).replace(u'.', locale.decimalPoint());
  }
  const qsizetype point = plain.indexOf(u'.');
  return locale.toString(value, 'f', point < 0 ? 0 : static_cast<int>(plain.size() - point - 1));
}

QString withUnit(const QString& number, const QString& unit) {
  return unit.isEmpty() ? number : unit == u"°" ? number + unit : number + u' ' + unit;
}

/// 2026-11-20 with four digits of the year in the order of the chosen language; as it is when there is no such date.
QString localDate(const QString& text) {
  const QDate date = QDate::fromString(text, Qt::ISODate);
  const QLocale locale;
  QString format = locale.dateFormat(QLocale::ShortFormat);
  if (!format.contains(u"yyyy")) {
    format.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
  }
  return date.isValid() ? locale.toString(date, format) : text;
}

QString bitTexts(const Datapoint_Type& type, qint64 bits) {
  QStringList set;
  for (const Datapoint_Types::Value_Text& bit : Datapoint_Types::valueTexts(type)) {
    if (bits >> bit.mValue & 1) {
      set.append(bit.mText);
    }
  }
  return set.isEmpty() ? tr("Nichts gesetzt") : set.join(QStringLiteral(", "));
}

QString displaySimple(const Datapoint_Type& type, const Scalar& scalar) {
  if (const QString* const text = std::get_if<QString>(&scalar)) {
    if (type.mFormat == Datapoint_Format::Date) {
      return localDate(*text);
    }
    return type.mFormat == Datapoint_Format::Serial ? QString(*text).insert(cMakerDigits, u':') : *text;
  }
  if (const qint64* const whole = std::get_if<qint64>(&scalar)) {
    if (type.mFormat == Datapoint_Format::Bitset8) {
      return bitTexts(type, *whole);
    }
    if (type.mFormat == Datapoint_Format::Scene) {
      return tr("Szene %1").arg(*whole + 1);
    }
    const QString text = Datapoint_Types::valueText(type, *whole);
    return text.isEmpty() ? withUnit(QLocale().toString(static_cast<qlonglong>(*whole)), type.unit()) : text;
  }
  const std::optional<double> number = Datapoint_Value::number(scalar);
  if (!number) {
    return tr("Ungültig");
  }
  const QString plain = Number_Codec::isFractionOfByte(type) ? Number_Text::rounded(*number, cPercentDecimals)
                                                             : Number_Codec::toText(type, scalar);
  return withUnit(localNumber(*number, plain), type.unit());
}

/// "Montag, 20.11.2026, 08:30:00", without what a flag declares not valid.
QString displayTime(const Datapoint_Type& type, const Datapoint_Value& value) {
  const auto text = [&value](QStringView key) {
    const Scalar* const scalar = value.part(key);
    const QString* const found = scalar ? std::get_if<QString>(scalar) : nullptr;
    return found ? *found : QString();
  };
  const QStringList flags = text(u"flags").split(u',');
  QStringList words;
  const Scalar* const day = value.part(u"day");
  const qint64* const dayOfWeek = day ? std::get_if<qint64>(day) : nullptr;
  if (dayOfWeek && *dayOfWeek > 0 && !flags.contains(u"NDoW")) {
    words.append(Datapoint_Types::valueText(type, *dayOfWeek));
  }
  if (!text(u"date").isEmpty() && !flags.contains(u"ND")) {
    // Without the year only month and day are told.
    const QString date = text(u"date");
    words.append(flags.contains(u"NY") ? QStringLiteral("%1.%2.").arg(date.right(2), date.mid(5, 2)) : localDate(date));
  }
  if (!flags.contains(u"NT")) {
    words.append(text(u"time"));
  }
  if (flags.contains(u"F")) {
    words.append(tr("Uhr gestört"));
  }
  return words.join(QStringLiteral(", "));
}

/// "12, 14" for the outputs that are on among those of the mask, counted from 1.
QString displayOutputs(const Datapoint_Value& value) {
  const auto bits = [&value](QStringView key) {
    const Scalar* const scalar = value.part(key);
    const QString* const text = scalar ? std::get_if<QString>(scalar) : nullptr;
    return text ? text->toUInt(nullptr, 16) : 0U;
  };
  QStringList on;
  QStringList off;
  for (int output = 0; output < cOutputs; ++output) {
    if (bits(u"mask") >> output & 1) {
      (bits(u"state") >> output & 1 ? on : off).append(QString::number(output + 1));
    }
  }
  const auto list = [](const QStringList& outputs) {
    return outputs.isEmpty() ? QStringLiteral("-") : outputs.join(QStringLiteral(", "));
  };
  return tr("Ein: %1; Aus: %2").arg(list(on), list(off));
}

QString partText(const Datapoint_Type& type, const Part_Layout& part, const Scalar& scalar) {
  if (const QString* const text = std::get_if<QString>(&scalar)) {
    return *text;
  }
  const std::optional<double> number = Datapoint_Value::number(scalar);
  if (!number) {
    return tr("ungültig");
  }
  if (const qint64* const whole = std::get_if<qint64>(&scalar)) {
    const bool isScene = QLatin1String(part.mKey) == QLatin1String("scene");
    const QString text = Value_List::text(part.mHasTypeTexts ? type.mTexts : part.mTexts, *whole);
    return text.isEmpty() ? withUnit(QLocale().toString(static_cast<qlonglong>(isScene ? *whole + 1 : *whole)),
                                     QString::fromUtf8(part.mUnit))
                          : text;
  }
  const QString plain =
      part.mKind == Kind::Percent ? Number_Text::rounded(*number, cPercentDecimals) : Number_Text::shortest(*number);
  return withUnit(localNumber(*number, plain), QString::fromUtf8(part.mUnit));
}

/// "Rot: 255, Grün: 0"; a direction and its step are one: "Rot: Erhöhen 25 %".
QString displayParts(const Datapoint_Type& type, const Datapoint_Value& value) {
  QString text;
  for (const Part_Layout& part : Part_Layout::of(type)) {
    const QString key = QString::fromLatin1(part.mKey);
    const Scalar* const scalar = value.part(key);
    const bool isStep = key.endsWith(u"step");
    if (!scalar || (isStep && std::holds_alternative<std::monostate>(*scalar))) {
      continue;
    }
    if (!text.isEmpty()) {
      text += isStep || key == u"unit" ? QStringLiteral(" ") : QStringLiteral(", ");
    }
    text += *part.mName ? QStringLiteral("%1: ").arg(QString::fromUtf8(part.mName)) : QString();
    text += partText(type, part, *scalar);
  }
  return text;
}

} // namespace

QString Datapoint_Codec::display(const Datapoint_Type& type, const Datapoint_Value& value) {
  switch (type.mFormat) {
  case Datapoint_Format::Time:
  case Datapoint_Format::Date_Time:
    return displayTime(type, value);
  case Datapoint_Format::Bitset32:
    return displayOutputs(value);
  case Datapoint_Format::Control: {
    const std::optional<QByteArray> payload = encode(type, value);
    return payload ? Datapoint_Types::valueText(type, payload->front()) : QString();
  }
  default:
    return Part_Layout::of(type).empty() ? displaySimple(type, value.mScalar) : displayParts(type, value);
  }
}
