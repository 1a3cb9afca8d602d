#include "base/datapoint/Time_Codec.h"

#include "base/datapoint/Codec_Error.h"

#include <QDate>

#include <array>

namespace {

using Codec_Error::refuse;
using Codec_Error::tr;

constexpr int cDayMax = 7;
constexpr int cHourBits = 5;
constexpr int cCenturyTurn = 90; // two digits from here on belong to the 20th century
constexpr int cFirstYear = 1900;
constexpr int cLeapYear = 2000;
constexpr quint16 cNoYear = 0x1000;
constexpr quint16 cNoDate = 0x0800;
constexpr quint16 cNoTime = 0x0200;
constexpr quint16 cUsedFlags = 0xffc0;
constexpr int cHighestFlag = 15;

/// All that the three formats are made of; each has some of it.
struct Moment {
  int mYear = 0;
  int mMonth = 0;
  int mDay = 0;
  int mHour = 0;
  int mMinute = 0;
  int mSecond = 0;
  int mDayOfWeek = 0;
  quint16 mFlags = 0;
};

/// Three whole numbers between separators.
std::optional<std::array<int, 3>> three(QStringView text, QChar separator) {
  constexpr qsizetype cMostDigits = 4;
  std::array<int, 3> numbers{};
  const QList<QStringView> parts = text.split(separator);
  if (parts.size() != 3) {
    return std::nullopt;
  }
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const QStringView part = parts[static_cast<qsizetype>(i)];
    if (part.isEmpty() || part.size() > cMostDigits) {
      return std::nullopt;
    }
    for (const QChar c : part) {
      if (c < u'0' || c > u'9') {
        return std::nullopt;
      }
      numbers[i] = numbers[i] * 10 + (c.unicode() - u'0');
    }
  }
  return numbers;
}

QString dateText(const Moment& moment) {
  return QString::asprintf("%04d-%02d-%02d", moment.mYear, moment.mMonth, moment.mDay);
}

QString clockText(const Moment& moment) {
  return QString::asprintf("%02d:%02d:%02d", moment.mHour, moment.mMinute, moment.mSecond);
}

bool fits(int value, int bits) {
  return value >= 0 && value >> bits == 0;
}

QString clockFault(const Moment& moment, bool mayEndDay) {
  const bool isEndOfDay = mayEndDay && moment.mHour == 24 && moment.mMinute == 0 && moment.mSecond == 0;
  const bool isClock = moment.mHour <= 23 && moment.mMinute <= 59 && moment.mSecond <= 59;
  return isClock || isEndOfDay
             ? QString()
             : tr("%1 ist keine Uhrzeit. Erlaubt ist 00:00:00 bis %2.")
                   .arg(clockText(moment), mayEndDay ? QStringLiteral("24:00:00") : QStringLiteral("23:59:59"));
}

QString dateFault(const Moment& moment, int firstYear, int lastYear) {
  const int year = moment.mFlags & cNoYear ? cLeapYear : moment.mYear;
  const bool isDate =
      moment.mYear >= firstYear && moment.mYear <= lastYear && QDate::isValid(year, moment.mMonth, moment.mDay);
  return isDate ? QString()
                : tr("%1 ist kein Datum. Erlaubt ist %2-01-01 bis %3-12-31.")
                      .arg(dateText(moment))
                      .arg(firstYear)
                      .arg(lastYear);
}

/// Why a moment is none of this type; empty when it is one.
QString fault(const Datapoint_Type& type, const Moment& moment) {
  if (moment.mDayOfWeek < 0 || moment.mDayOfWeek > cDayMax) {
    return tr("%1 ist kein Wochentag. Erlaubt ist 1 (Montag) bis 7 (Sonntag) und 0 für keinen.").arg(moment.mDayOfWeek);
  }
  if (type.mFormat == Datapoint_Format::Time) {
    return clockFault(moment, false);
  }
  if (type.mFormat == Datapoint_Format::Date) {
    return dateFault(moment, cFirstYear + cCenturyTurn, cFirstYear + cCenturyTurn + 99);
  }
  // What a flag declares not valid must only fit into its bits.
  const bool hasNoDate =
      (moment.mFlags & cNoDate) && fits(moment.mYear - cFirstYear, 8) && fits(moment.mMonth, 4) && fits(moment.mDay, 5);
  const bool hasNoTime =
      (moment.mFlags & cNoTime) && fits(moment.mHour, cHourBits) && fits(moment.mMinute, 6) && fits(moment.mSecond, 6);
  const QString date = hasNoDate ? QString() : dateFault(moment, cFirstYear, cFirstYear + 255);
  return !date.isEmpty() || hasNoTime ? date : clockFault(moment, true);
}

QString flagsText(quint16 flags) {
  QStringList names;
  int bit = cHighestFlag;
  for (const char* const name : Time_Codec::cFlags) {
    if (flags >> bit-- & 1) {
      names.append(QString::fromLatin1(name));
    }
  }
  return names.isEmpty() ? QStringLiteral("-") : names.join(u',');
}

std::optional<quint16> flagsFromText(const QString& text) {
  quint16 flags = 0;
  if (text == u"-") {
    return flags;
  }
  for (const QString& wanted : text.split(u',')) {
    int bit = cHighestFlag;
    bool isKnown = false;
    for (const char* const name : Time_Codec::cFlags) {
      if (wanted == QLatin1String(name)) {
        flags = static_cast<quint16>(flags | 1U << bit);
        isKnown = true;
      }
      --bit;
    }
    if (!isKnown) {
      return std::nullopt;
    }
  }
  return flags;
}

Moment read(Datapoint_Format format, QByteArrayView payload) {
  const auto byte = [payload](qsizetype at) { return static_cast<int>(static_cast<quint8>(payload[at])); };
  Moment moment;
  if (format == Datapoint_Format::Date) {
    const int century = byte(2) >= cCenturyTurn ? cFirstYear : cFirstYear + 100;
    // Years from 100 on are out of range whichever century they are given.
    moment.mYear = byte(2) > 99 ? byte(2) : century + byte(2);
    moment.mMonth = byte(1);
    moment.mDay = byte(0);
    return moment;
  }
  const qsizetype clock = format == Datapoint_Format::Time ? 0 : 3;
  moment.mDayOfWeek = byte(clock) >> cHourBits;
  moment.mHour = byte(clock) & 31;
  moment.mMinute = byte(clock + 1);
  moment.mSecond = byte(clock + 2);
  if (format == Datapoint_Format::Date_Time) {
    moment.mYear = cFirstYear + byte(0);
    moment.mMonth = byte(1);
    moment.mDay = byte(2);
    moment.mFlags = static_cast<quint16>(byte(6) << 8 | byte(7));
  }
  return moment;
}

/// The moment that the parts of a value tell; empty when one is missing or cannot be read.
std::optional<Moment> fromValue(Datapoint_Format format, const Datapoint_Value& value, QString* error) {
  Moment moment;
  const auto text = [&value, format](QStringView key) {
    const Datapoint_Value::Scalar* const scalar = format == Datapoint_Format::Date ? &value.mScalar : value.part(key);
    const QString* const found = scalar ? std::get_if<QString>(scalar) : nullptr;
    return found ? found->trimmed() : QString();
  };
  if (format != Datapoint_Format::Time) {
    const auto date = three(text(u"date"), u'-');
    if (!date) {
      return refuse(error, tr("\"%1\" ist kein Datum. Erlaubt ist etwa 2026-11-20.").arg(text(u"date").left(40)));
    }
    std::tie(moment.mYear, moment.mMonth, moment.mDay) = std::tuple_cat(*date);
  }
  if (format == Datapoint_Format::Date) {
    return moment;
  }
  const auto clock = three(text(u"time"), u':');
  if (!clock) {
    return refuse(error, tr("\"%1\" ist keine Uhrzeit. Erlaubt ist etwa 08:30:00.").arg(text(u"time").left(40)));
  }
  std::tie(moment.mHour, moment.mMinute, moment.mSecond) = std::tuple_cat(*clock);
  const Datapoint_Value::Scalar* const day = value.part(u"day");
  const qint64* const dayOfWeek = day ? std::get_if<qint64>(day) : nullptr;
  moment.mDayOfWeek = dayOfWeek && *dayOfWeek >= 0 && *dayOfWeek <= cDayMax ? static_cast<int>(*dayOfWeek) : -1;
  if (format == Datapoint_Format::Date_Time) {
    const std::optional<quint16> flags = flagsFromText(text(u"flags"));
    if (!flags) {
      return refuse(error, tr("\"%1\" sind keine Merker. Erlaubt sind -, F, WD, NWD, NY, ND, NDoW, NT, SUTI, CLQ und "
                              "SRC, mit Komma getrennt.")
                               .arg(text(u"flags").left(40)));
    }
    moment.mFlags = *flags;
  }
  return moment;
}

} // namespace

std::optional<Datapoint_Value> Time_Codec::decode(const Datapoint_Type& type, QByteArrayView payload, QString* error) {
  const Moment moment = read(type.mFormat, payload);
  if (moment.mFlags & ~cUsedFlags) {
    return refuse(error, tr("Reservierte Bits sind gesetzt."));
  }
  const QString why = fault(type, moment);
  if (!why.isEmpty()) {
    return refuse(error, why);
  }
  const Datapoint_Value::Part day{QStringLiteral("day"), qint64(moment.mDayOfWeek)};
  const Datapoint_Value::Part time{QStringLiteral("time"), clockText(moment)};
  if (type.mFormat == Datapoint_Format::Date) {
    return Datapoint_Value::ofText(dateText(moment));
  }
  if (type.mFormat == Datapoint_Format::Time) {
    return Datapoint_Value{{}, {day, time}};
  }
  return Datapoint_Value{
      {}, {{QStringLiteral("date"), dateText(moment)}, time, day, {QStringLiteral("flags"), flagsText(moment.mFlags)}}};
}

std::optional<QByteArray> Time_Codec::encode(const Datapoint_Type& type, const Datapoint_Value& value, QString* error) {
  const std::optional<Moment> moment = fromValue(type.mFormat, value, error);
  if (!moment) {
    return std::nullopt;
  }
  const QString why = fault(type, *moment);
  if (!why.isEmpty()) {
    return refuse(error, why);
  }
  const auto bytes = [](std::initializer_list<int> list) {
    QByteArray result;
    for (const int byte : list) {
      result.append(static_cast<char>(byte));
    }
    return result;
  };
  if (type.mFormat == Datapoint_Format::Date) {
    return bytes({moment->mDay, moment->mMonth, moment->mYear % 100});
  }
  const QByteArray clock = bytes({moment->mDayOfWeek << cHourBits | moment->mHour, moment->mMinute, moment->mSecond});
  if (type.mFormat == Datapoint_Format::Time) {
    return clock;
  }
  return bytes({moment->mYear - cFirstYear, moment->mMonth, moment->mDay}) + clock +
         bytes({moment->mFlags >> 8, moment->mFlags & 255});
}
