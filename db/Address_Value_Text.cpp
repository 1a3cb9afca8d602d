#include "db/Address_Value_Text.h"

#include "base/Datapoint_Codec.h"
#include "base/Datapoint_Types.h"

#include <QCoreApplication>
#include <QLocale>

#include <algorithm>
#include <limits>

namespace {

constexpr qsizetype cMostBytes = 14; ///< that a standard group telegram carries
constexpr double cFloat16Least = -671'088.64;
constexpr double cFloat16Most = 670'760.96;

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Value_Text", text);
}

Datapoint_Type withRange(Datapoint_Type type, double least, double most) {
  type.mUnit = "";
  type.mTexts = "";
  type.mMin = least;
  type.mMax = most;
  return type;
}

/// What all types of the main number have in common, if values can be read by it.
std::optional<Datapoint_Type> commonType(int main) {
  const std::span<const Datapoint_Type> types = Datapoint_Types::ofMain(main);
  if (types.empty()) {
    return std::nullopt;
  }
  const Datapoint_Type& first = types.front();
  switch (first.mFormat) {
  case Datapoint_Format::Bool:
    return first;
  case Datapoint_Format::Float16:
    return withRange(first, cFloat16Least, cFloat16Most);
  case Datapoint_Format::Float32:
    return withRange(first, std::numeric_limits<float>::lowest(), std::numeric_limits<float>::max());
  case Datapoint_Format::Unsigned:
  case Datapoint_Format::Signed: {
    const auto isPlain = [](const Datapoint_Type& type) { return type.mStep == 1 && *type.mTexts == '\0'; };
    const auto plain = std::find_if(types.begin(), types.end(), isPlain);
    return plain == types.end() ? std::nullopt : std::optional(withRange(*plain, plain->mMin, plain->mMax));
  }
  default:
    return types.size() == 1 ? std::optional(first) : std::nullopt;
  }
}

std::optional<QByteArray> parseBytes(const QString& typed, QString* error) {
  QString digits = typed;
  digits.remove(u' ');
  if (digits.startsWith(QLatin1String("0x"), Qt::CaseInsensitive)) {
    digits.remove(0, 2);
  }
  const bool areDigits = std::all_of(digits.cbegin(), digits.cend(),
                                     [](QChar c) { return QStringLiteral("0123456789abcdefABCDEF").contains(c); });
  if (!areDigits || digits.isEmpty() || digits.size() % 2 != 0 || digits.size() / 2 > cMostBytes) {
    if (error) {
      *error = tr("\"%1\" ist keine Nutzlast. Ohne Datenpunkttyp sind es 1 bis %2 Bytes zu je zwei "
                  "hexadezimalen Ziffern, etwa \"0C 1A\".")
                   .arg(typed)
                   .arg(cMostBytes);
    }
    return std::nullopt;
  }
  return QByteArray::fromHex(digits.toLatin1());
}

} // namespace

std::optional<Datapoint_Type> Address_Value_Text::typeOf(const Datapoint_Id& id) {
  if (id.isNone()) {
    return std::nullopt;
  }
  const Datapoint_Type* const exact = Datapoint_Types::find(id);
  return exact ? std::optional(*exact) : commonType(id.mMain);
}

std::optional<Datapoint_Value> Address_Value_Text::decode(const Datapoint_Id& id, QByteArrayView payload) {
  const std::optional<Datapoint_Type> type = typeOf(id);
  return type ? Datapoint_Codec::decode(*type, payload) : std::nullopt;
}

QString Address_Value_Text::text(const Datapoint_Id& id, const Address_Value& value) {
  const std::optional<Datapoint_Type> type = value.mValue ? typeOf(id) : std::nullopt;
  return type ? Datapoint_Codec::display(*type, *value.mValue) : hex(value.mPayload);
}

QString Address_Value_Text::hex(const QByteArray& payload) {
  return QString::fromLatin1(payload.toHex(' ').toUpper());
}

QString Address_Value_Text::time(const Address_Value& value, const QDateTime& now) {
  const QDateTime at = QDateTime::fromMSecsSinceEpoch(value.mTime);
  const QString clock = QLocale().toString(at.time(), QStringLiteral("HH:mm:ss"));
  const QString text =
      at.date() == now.date() ? clock : QLocale().toString(at.date(), QLocale::ShortFormat) + u' ' + clock;
  return value.mIsStale ? tr("%1, veraltet").arg(text) : text;
}

QString Address_Value_Text::toolTip(const Datapoint_Id& id, const Address_Value& value) {
  const QDateTime at = QDateTime::fromMSecsSinceEpoch(value.mTime);
  QString tip = tr("%1, von %2 am %3.")
                    .arg(text(id, value), value.mSource,
                         QLocale().toString(at.date(), QLocale::ShortFormat) + u' ' +
                             QLocale().toString(at.time(), QStringLiteral("HH:mm:ss")));
  if (!value.mValue) {
    tip += u' ' + (id.isNone() ? tr("Ohne Datenpunkttyp steht hier die Nutzlast.")
                               : tr("Die Nutzlast passt nicht zum Datenpunkttyp %1.").arg(id.toString()));
  }
  if (value.mIsStale) {
    tip += u' ' + tr("Veraltet: seither ging die Verbindung zur Steuerung verloren.");
  }
  return tip;
}

Address_Value_Text::Input Address_Value_Text::inputOf(const Datapoint_Id& id) {
  const std::optional<Datapoint_Type> type = typeOf(id);
  if (!type) {
    return Input::Bytes;
  }
  switch (type->mFormat) {
  case Datapoint_Format::Bool:
  case Datapoint_Format::Enum2:
  case Datapoint_Format::Enum8:
    return Input::Choice;
  case Datapoint_Format::Unsigned:
  case Datapoint_Format::Signed:
  case Datapoint_Format::Float16:
  case Datapoint_Format::Float32:
    return Input::Number;
  default:
    return Input::Text;
  }
}

QString Address_Value_Text::typed(const Datapoint_Id& id, const Address_Value& value) {
  const std::optional<Datapoint_Type> type = typeOf(id);
  if (!type) {
    return hex(value.mPayload);
  }
  if (!value.mValue) {
    return {};
  }
  const QString text = Datapoint_Codec::toText(*type, *value.mValue);
  return inputOf(id) == Input::Number ? QString(text).replace(u'.', QLocale().decimalPoint()) : text;
}

std::optional<QByteArray> Address_Value_Text::parse(const Datapoint_Id& id, const QString& typed, QString* error) {
  const std::optional<Datapoint_Type> type = typeOf(id);
  if (!type) {
    return parseBytes(typed.trimmed(), error);
  }
  const bool isNumber = inputOf(id) == Input::Number;
  const QString text = isNumber ? typed.trimmed().replace(u',', u'.') : typed;
  const std::optional<Datapoint_Value> value = Datapoint_Codec::fromText(*type, text, error);
  return value ? Datapoint_Codec::encode(*type, *value, error) : std::nullopt;
}
