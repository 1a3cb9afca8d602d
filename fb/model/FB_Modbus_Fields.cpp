#include "fb/model/FB_Modbus_Fields.h"

#include "base/Decimal_Text.h"
#include "db/DB_Text.h"

#include <QCoreApplication>
#include <QLocale>

#include <array>
#include <cmath>

namespace {

using namespace FB_Modbus_Fields;
using FB_Modbus_Words::Choice;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Modbus_Fields", text);
}

constexpr double cMostFactor = 1e9;

constexpr std::array<Info, cCount> cInfos = {{
    {Field::Active, Kind::Flag, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Aktiv"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields",
                       "Ob das Register gelesen oder geschrieben wird. Seinen Anschluss behält es."),
     "active|enabled"},
    {Field::Name, Kind::Text, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Name"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "So heißt der Anschluss des Registers am Baustein."),
     "name|bezeichnung|beschreibung|description"},
    {Field::Function, Kind::Choice, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Funktion"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Womit gelesen oder geschrieben wird. Gelesenes ist ein Ausgang des "
                                           "Bausteins, Geschriebenes ein Eingang."),
     "function_code|funktionscode|function|fc"},
    {Field::Address, Kind::Integer, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Adresse"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Erstes Register, ab 0 gezählt; auch hexadezimal (0x10)."),
     "address|register|registeradresse|addr", 0, 65535},
    {Field::Data_Type, Kind::Choice, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Datentyp"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Was die Worte des Registers enthalten."),
     "datatype|data type|typ|type|format"},
    {Field::Byte_Order, Kind::Choice, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Reihenfolge"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "In welcher Reihenfolge die Bytes eines Wertes kommen."),
     "byte_order|byte order|byteorder|bytereihenfolge"},
    {Field::Count, Kind::Integer, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Anzahl"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Werte dieses Typs hintereinander, jeder mit eigenem Anschluss."),
     "count|quantity", 1, 1000},
    {Field::Factor, Kind::Real, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Faktor"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Wert = Registerinhalt · Faktor + Offset."), "factor|scale|skalierung",
     -cMostFactor, cMostFactor},
    {Field::Offset, Kind::Real, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Offset"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Wert = Registerinhalt · Faktor + Offset."), "offset", -cMostFactor,
     cMostFactor},
    {Field::Interval, Kind::Integer, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Intervall"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Abstand, in dem gelesen oder zyklisch geschrieben wird."),
     "polling_interval|polling|abfrageintervall|interval", 50, 3'600'000, "ms"},
    {Field::Write_Mode, Kind::Choice, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Schreiben"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Wann ein Wert zum Gerät geschrieben wird."), "write_mode|schreibmodus"},
    {Field::On_Change, Kind::Flag, QT_TRANSLATE_NOOP("FB_Modbus_Fields", "Nur Änderungen"),
     QT_TRANSLATE_NOOP("FB_Modbus_Fields",
                       "Ob der Ausgang nur sendet, wenn sich der gelesene Wert ändert, oder nach jeder Abfrage."),
     "update_on_change|bei änderung"},
}};

std::span<const Choice> plainChoices(Field field) {
  return field == Field::Byte_Order ? FB_Modbus_Words::byteOrders() : FB_Modbus_Words::writeModes();
}

/// Calls `visit` for each choice of the field, until it answers true.
template <class Visit>
void visitChoices(Field field, Visit&& visit) {
  const auto walk = [&visit](const auto& list) { return std::ranges::any_of(list, visit); };
  if (field == Field::Function) {
    walk(FB_Modbus_Words::functions());
  } else if (field == Field::Data_Type) {
    walk(FB_Modbus_Words::dataTypes());
  } else if (info(field).mKind == Kind::Choice) {
    walk(plainChoices(field));
  }
}

/// -1 for what is none of the choices.
int chosen(const DB_Modbus_Register& item, Field field) {
  switch (field) {
  case Field::Function:
    return item.mFunctionCode;
  case Field::Data_Type: {
    const auto* const type = FB_Modbus_Words::dataTypeOf(item);
    return type ? type->mValue : -1;
  }
  case Field::Byte_Order:
    return item.mByteOrder;
  default:
    return item.mWriteMode;
  }
}

double number(const DB_Modbus_Register& item, Field field) {
  switch (field) {
  case Field::Address:
    return item.mAddress;
  case Field::Count:
    return item.mCount;
  case Field::Factor:
    return item.mFactor;
  case Field::Offset:
    return item.mOffset;
  default:
    return item.mPollingInterval;
  }
}

/// With the words of the choice, or its short key.
QString choiceText(const DB_Modbus_Register& item, Field field, bool isShort) {
  const int value = chosen(item, field);
  QString found;
  visitChoices(field, [&](const Choice& choice) {
    if (choice.mValue == value) {
      const bool isNumber = field == Field::Function || field == Field::Write_Mode;
      found = !isShort   ? FB_Modbus_Words::text(choice.mText)
              : isNumber ? QString::number(value)
                         : QString::fromLatin1(choice.mKey);
    }
    return !found.isEmpty();
  });
  if (!found.isEmpty()) {
    return found;
  }
  if (field == Field::Data_Type) {
    return QStringLiteral("%1/%2/%3").arg(item.mDataType).arg(item.mWordCount).arg(item.mSigned ? 1 : 0);
  }
  return QString::number(value);
}

void setChosen(DB_Modbus_Register& item, Field field, int value) {
  switch (field) {
  case Field::Function:
    item.mFunctionCode = value;
    if (FB_Modbus_Words::function(value)->mIsBits) {
      FB_Modbus_Words::setDataType(item, *FB_Modbus_Words::dataType(u"bool"));
    }
    break;
  case Field::Data_Type:
    FB_Modbus_Words::setDataType(item, FB_Modbus_Words::dataTypes()[static_cast<size_t>(value)]);
    break;
  case Field::Byte_Order:
    item.mByteOrder = value;
    break;
  default:
    item.mWriteMode = value;
    break;
  }
}

QString setChoice(DB_Modbus_Register& item, Field field, const QString& text) {
  std::optional<int> value;
  visitChoices(field, [&](const Choice& choice) {
    const QString words = FB_Modbus_Words::text(choice.mText);
    const bool isNumber = field != Field::Data_Type && text == QString::number(choice.mValue);
    if (isNumber || text.compare(QLatin1String(choice.mKey), Qt::CaseInsensitive) == 0 ||
        text.compare(words, Qt::CaseInsensitive) == 0) {
      value = choice.mValue;
    }
    return value.has_value();
  });
  if (!value) {
    QStringList keys;
    visitChoices(field, [&](const Choice& choice) {
      keys.append(field == Field::Function ? QString::number(choice.mValue) : QString::fromLatin1(choice.mKey));
      return false;
    });
    return tr("\"%1\" gibt es bei \"%2\" nicht, zur Wahl stehen %3.")
        .arg(text.left(40), tr(info(field).mTitle), keys.join(QStringLiteral(", ")));
  }
  setChosen(item, field, *value);
  return {};
}

QString outOfRange(Field field, const QString& value) {
  return tr("\"%1\" ist bei \"%2\" nicht möglich, erlaubt ist %3.")
      .arg(value.left(40), tr(info(field).mTitle), rangeText(field));
}

std::optional<double> parseNumber(Field field, const QString& text) {
  if (field == Field::Address && text.startsWith(u"0x", Qt::CaseInsensitive)) {
    bool isNumber = false;
    const uint value = text.mid(2).toUInt(&isNumber, 16);
    return isNumber ? std::optional<double>(value) : std::nullopt;
  }
  return Decimal_Text::parse(text);
}

bool isInRange(Field field, double value) {
  const Info& range = info(field);
  const bool isWhole = range.mKind == Kind::Real || std::floor(value) == value;
  return isWhole && value >= range.mMinimum && value <= range.mMaximum && (field != Field::Factor || value != 0);
}

QString setNumber(DB_Modbus_Register& item, Field field, const QString& text) {
  const std::optional<double> value = parseNumber(field, text);
  if (!value || !isInRange(field, *value)) {
    return outOfRange(field, text);
  }
  switch (field) {
  case Field::Address:
    item.mAddress = static_cast<int>(*value);
    break;
  case Field::Count:
    item.mCount = static_cast<int>(*value);
    break;
  case Field::Factor:
    item.mFactor = *value;
    break;
  case Field::Offset:
    item.mOffset = *value;
    break;
  default:
    item.mPollingInterval = static_cast<int>(*value);
    break;
  }
  return {};
}

QString setFlag(DB_Modbus_Register& item, Field field, const QString& text) {
  static const QStringList cYes{QStringLiteral("1"),   QStringLiteral("ja"),   QStringLiteral("x"),
                                QStringLiteral("yes"), QStringLiteral("true"), QStringLiteral("wahr"),
                                QStringLiteral("ein")};
  static const QStringList cNo{QStringLiteral("0"),     QString(),
                               QStringLiteral("nein"),  QStringLiteral("no"),
                               QStringLiteral("false"), QStringLiteral("falsch"),
                               QStringLiteral("aus")};
  const QString word = text.toLower();
  if (!cYes.contains(word) && !cNo.contains(word)) {
    return tr("\"%1\" ist bei \"%2\" nicht möglich, erlaubt ist \"ja\" oder \"nein\".")
        .arg(text.left(40), tr(info(field).mTitle));
  }
  (field == Field::Active ? item.mActive : item.mUpdateOnChange) = cYes.contains(word);
  return {};
}

/// The shortest text that reads as the same number, with the decimal sign of the language.
QString realText(double value) {
  return QString::number(value, 'g', QLocale::FloatingPointShortest).contains(u'e')
             ? QLocale().toString(value, 'g', QLocale::FloatingPointShortest)
             : QString(QString::number(value, 'f', QLocale::FloatingPointShortest))
                   .replace(u'.', QLocale().decimalPoint());
}

/// What does not go together.
void checkTogether(const DB_Modbus_Register& item, QList<Fault>& faults) {
  const auto* const function = FB_Modbus_Words::function(item.mFunctionCode);
  const auto* const type = FB_Modbus_Words::dataTypeOf(item);
  const auto report = [&faults](Field field, const QString& text) { faults.append({field, text, false}); };
  if (!type) {
    report(Field::Data_Type, tr("Art %1 mit %2 Worten gibt es nicht.").arg(item.mDataType).arg(item.mWordCount));
  }
  if (!function || !type) {
    return;
  }
  if (function->mIsBits && type->mDataType != FB_Modbus_Words::cBit) {
    report(Field::Data_Type, tr("Die Funktion %1 überträgt Bits, der Datentyp dazu ist BOOL.").arg(item.mFunctionCode));
  }
  const qint64 size = qint64(item.mCount) * (function->mIsBits ? 1 : type->mWords);
  if (size > function->mMost) {
    const QString unit = function->mIsBits ? tr("Bits") : tr("Worte");
    report(
        type->mWords > function->mMost ? Field::Data_Type : Field::Count,
        tr("%1 %2 sind für die Funktion %3 zu viel, höchstens %4 passen in ein Telegramm.")
            .arg(QString::number(size), unit, QString::number(item.mFunctionCode), QString::number(function->mMost)));
  }
  if (item.mAddress >= 0 && item.mAddress + size > 65536) {
    report(Field::Address, tr("Das letzte Wort läge hinter der höchsten Adresse 65535."));
  }
}

} // namespace

const Info& FB_Modbus_Fields::info(Field field) {
  return cInfos[static_cast<size_t>(field)];
}

std::optional<Field> FB_Modbus_Fields::fieldOfTitle(const QString& title) {
  QString word = title.toLower();
  for (const QChar open : {u'[', u'('}) {
    word = word.section(open, 0, 0);
  }
  word = word.trimmed();
  for (const Info& candidate : cInfos) {
    if (!word.isEmpty() &&
        (word == tr(candidate.mTitle).toLower() || QString::fromUtf8(candidate.mKeys).split(u'|').contains(word))) {
      return candidate.mField;
    }
  }
  return std::nullopt;
}

QString FB_Modbus_Fields::rangeText(Field field) {
  const Info& range = info(field);
  if (range.mKind != Kind::Integer && range.mKind != Kind::Real) {
    return {};
  }
  const QLocale locale;
  const QString text =
      tr("%1 bis %2").arg(locale.toString(range.mMinimum, 'f', 0), locale.toString(range.mMaximum, 'f', 0));
  return field == Field::Factor ? tr("%1, aber nicht 0").arg(text)
                                : (text + u' ' + QLatin1String(range.mUnit)).trimmed();
}

QStringList FB_Modbus_Fields::choices(Field field) {
  QStringList texts;
  visitChoices(field, [&texts](const Choice& choice) {
    texts.append(FB_Modbus_Words::text(choice.mText));
    return false;
  });
  return texts;
}

QString FB_Modbus_Fields::shown(const DB_Modbus_Register& item, Field field) {
  switch (info(field).mKind) {
  case Kind::Flag:
    return isSet(item, field) ? tr("ja") : tr("nein");
  case Kind::Text:
    return item.mName;
  case Kind::Choice:
    return choiceText(item, field, false);
  case Kind::Integer:
    return QString::number(number(item, field), 'f', 0);
  case Kind::Real:
    return realText(number(item, field));
  }
  return {};
}

QString FB_Modbus_Fields::plain(const DB_Modbus_Register& item, Field field) {
  return info(field).mKind == Kind::Choice ? choiceText(item, field, true) : shown(item, field);
}

bool FB_Modbus_Fields::isSet(const DB_Modbus_Register& item, Field field) {
  return field == Field::Active ? item.mActive : item.mUpdateOnChange;
}

QString FB_Modbus_Fields::set(DB_Modbus_Register& item, Field field, const QString& text) {
  const QString word = text.trimmed();
  switch (info(field).mKind) {
  case Kind::Flag:
    return setFlag(item, field, word);
  case Kind::Choice:
    return setChoice(item, field, word);
  case Kind::Integer:
  case Kind::Real:
    return setNumber(item, field, word);
  case Kind::Text:
    break;
  }
  const QString name = DB_Text::singleLine(word);
  if (name.size() > cNameLimit) {
    return tr("Der Name hat %1 Zeichen, erlaubt sind höchstens %2.").arg(name.size()).arg(cNameLimit);
  }
  item.mName = name;
  return {};
}

QList<Fault> FB_Modbus_Fields::faults(const DB_Modbus_Register& item) {
  QList<Fault> faults;
  for (const Info& range : cInfos) {
    const Field field = range.mField;
    const bool isNumber = range.mKind == Kind::Integer || range.mKind == Kind::Real;
    if (isNumber && !isInRange(field, number(item, field))) {
      faults.append({field, outOfRange(field, shown(item, field)), true});
    } else if (range.mKind == Kind::Choice && field != Field::Data_Type) {
      DB_Modbus_Register copy = item;
      const QString error = setChoice(copy, field, QString::number(chosen(item, field)));
      if (!error.isEmpty()) {
        faults.append({field, error, true});
      }
    } else if (range.mKind == Kind::Text && item.mName.size() > cNameLimit) {
      faults.append({field, tr("Der Name ist zu lang."), true});
    }
  }
  checkTogether(item, faults);
  return faults;
}

bool FB_Modbus_Fields::isSame(const DB_Modbus_Register& a, const DB_Modbus_Register& b, Field field) {
  switch (info(field).mKind) {
  case Kind::Flag:
    return isSet(a, field) == isSet(b, field);
  case Kind::Text:
    return a.mName == b.mName;
  case Kind::Choice:
    return field == Field::Data_Type ? choiceText(a, field, true) == choiceText(b, field, true)
                                     : chosen(a, field) == chosen(b, field);
  case Kind::Integer:
  case Kind::Real:
    return number(a, field) == number(b, field);
  }
  return true;
}
