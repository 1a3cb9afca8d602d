#include "db/Statistic_Words.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace {

using Recording = DB_Statistic::Recording;
using Statistic_Words::Unit;
using Statistic_Words::Word;

constexpr Word cTriggers[] = {
    {Recording::cOnChange, "change", QT_TRANSLATE_NOOP("Statistic_Words", "Bei Änderung")},
    {Recording::cOnTelegram, "telegram", QT_TRANSLATE_NOOP("Statistic_Words", "Bei jedem Telegramm")},
    {Recording::cPeriodically, "time", QT_TRANSLATE_NOOP("Statistic_Words", "Zyklisch")},
};

constexpr Unit cUnits[] = {
    {{0, "seconds", QT_TRANSLATE_NOOP("Statistic_Words", "s")}, 1, "sek|sekunde|sekunden"},
    {{1, "minutes", QT_TRANSLATE_NOOP("Statistic_Words", "min")}, 60, "m|minute|minuten"},
    {{2, "hours", QT_TRANSLATE_NOOP("Statistic_Words", "h")}, 3600, "std|stunde|stunden"},
    {{3, "days", QT_TRANSLATE_NOOP("Statistic_Words", "d")}, 86400, "t|tag|tage"},
};

template <class Table>
auto byKey(const Table& table, const QString& text) {
  const QString wanted = text.trimmed();
  const auto at = std::ranges::find_if(table, [&wanted](const Word& word) {
    return wanted.compare(QLatin1String(word.mKey), Qt::CaseInsensitive) == 0 || wanted == QString::number(word.mValue);
  });
  return at == std::end(table) ? nullptr : &*at;
}

template <class Table>
auto byValue(const Table& table, int value) {
  const auto at = std::ranges::find(table, value, &Word::mValue);
  return at == std::end(table) ? nullptr : &*at;
}

template <class Table>
QString keysOf(const Table& table) {
  QStringList keys;
  for (const Word& word : table) {
    keys.append(QString::fromLatin1(word.mKey));
  }
  return keys.join(QStringLiteral(", "));
}

bool isCalled(const Unit& unit, const QString& word) {
  return word == Statistic_Words::text(unit.mText) || QString::fromLatin1(unit.mOthers).split(u'|').contains(word);
}

} // namespace

std::span<const Word> Statistic_Words::triggers() {
  return cTriggers;
}

std::span<const Unit> Statistic_Words::units() {
  return cUnits;
}

const Word* Statistic_Words::trigger(const QString& keyOrNumber) {
  return byKey(cTriggers, keyOrNumber);
}

const Unit* Statistic_Words::unit(const QString& keyOrNumber) {
  return byKey(cUnits, keyOrNumber);
}

const Word* Statistic_Words::trigger(int value) {
  return byValue(cTriggers, value);
}

const Unit* Statistic_Words::unit(int value) {
  return byValue(cUnits, value);
}

QString Statistic_Words::text(const char* germanText) {
  return QCoreApplication::translate("Statistic_Words", germanText);
}

QString Statistic_Words::triggerKeys() {
  return keysOf(cTriggers);
}

QString Statistic_Words::unitKeys() {
  return keysOf(cUnits);
}

QString Statistic_Words::interval(const Recording& recording) {
  const Unit* shown = unit(recording.mTriggerTimeType);
  if (!shown || recording.mTriggerTimeSecs % shown->mSeconds != 0) {
    shown = &cUnits[0];
  }
  return QStringLiteral("%1 %2").arg(recording.mTriggerTimeSecs / shown->mSeconds).arg(text(shown->mText));
}

std::optional<Statistic_Words::Interval> Statistic_Words::parseInterval(const QString& text) {
  static const QRegularExpression numberAndUnit(QStringLiteral(R"(^\s*(\d{1,9})\s*(\pL*)\.?\s*$)"));
  const QRegularExpressionMatch match = numberAndUnit.match(text);
  if (!match.hasMatch()) {
    return std::nullopt;
  }
  const QString word = match.captured(2).toLower();
  for (const Unit& unit : cUnits) {
    const qint64 seconds = match.captured(1).toLongLong() * unit.mSeconds;
    if ((word.isEmpty() || isCalled(unit, word)) && seconds <= std::numeric_limits<int>::max()) {
      return Interval{unit.mValue, static_cast<int>(seconds)};
    }
  }
  return std::nullopt;
}
