#pragma once

#include "db/DB_Statistic.h"

#include <QString>

#include <optional>
#include <span>

/// The words for what a recording can be: for people (German, translated in the context "Statistic_Words") and for
/// tools.
namespace Statistic_Words {

struct Word {
  int mValue = 0;
  const char* mKey = "";  ///< as tools write it
  const char* mText = ""; ///< as people read it
};

/// A unit of the interval between two records.
struct Unit : Word {
  int mSeconds = 1;
  const char* mOthers = ""; ///< further words that are typed for it, lower case, divided by '|'
};

[[nodiscard]] std::span<const Word> triggers();
/// In the order of their length.
[[nodiscard]] std::span<const Unit> units();

/// By its key or its number, whatever the case; null for any other text.
[[nodiscard]] const Word* trigger(const QString& keyOrNumber);
[[nodiscard]] const Unit* unit(const QString& keyOrNumber);
/// Null for a number that there is not.
[[nodiscard]] const Word* trigger(int value);
[[nodiscard]] const Unit* unit(int value);

/// Translates a text of the tables.
[[nodiscard]] QString text(const char* germanText);
/// The keys of a table, "change, telegram, time".
[[nodiscard]] QString triggerKeys();
[[nodiscard]] QString unitKeys();

/// "15 min"; in seconds where the unit does not divide the interval.
[[nodiscard]] QString interval(const DB_Statistic::Recording& recording);

struct Interval {
  int mUnit = 0;
  int mSeconds = 0;
};
/// What was typed: a whole number with a unit behind, seconds without one; empty for anything else.
[[nodiscard]] std::optional<Interval> parseInterval(const QString& text);

} // namespace Statistic_Words
