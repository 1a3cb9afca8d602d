#pragma once

#include <QString>

#include <optional>
#include <span>

/// The language in which the formula of a block is written. Its words stand in `FB_Formula_Words`.
///
/// Values are the inputs E1 to E8, numbers, "pi" and "e"; a number has a decimal point or comma ("0.5", "0,5"), no
/// thousands separators and no exponent. Functions take their values in brackets, divided by ";". Order of operators,
/// from what is computed first: ^ (from the right), signs and "not", * / %, + -, < <= > >=, = <>, "and", "or",
/// "a ? b : c". Something is true when it is not 0. Upper and lower case are alike, blanks and line breaks mean
/// nothing. The language of the system plays no part.
namespace FB_Formula_Language {

inline constexpr int cMostInputs = 8;
/// Characters of a formula at most, and brackets inside of each other.
inline constexpr qsizetype cLongest = 2000;
inline constexpr int cDeepest = 32;

/// What is wrong with a formula. Nothing when the text is empty.
struct Fault {
  qsizetype mAt = 0;     ///< first wrong character, from 0; behind the last one where something is missing
  qsizetype mLength = 0; ///< how many are wrong
  QString mText;         ///< German, a sentence

  explicit operator bool() const { return !mText.isEmpty(); }
};

struct Result {
  std::optional<double> mNumber; ///< finite
  QString mError;                ///< German; empty when there is a number
};

/// Of a block with so many inputs.
[[nodiscard]] Fault check(const QString& formula, int inputs);
/// With these values of the inputs, one each.
[[nodiscard]] Result evaluate(const QString& formula, std::span<const double> values);

/// Rounded to so many decimals, half away from zero; below 0 as it is.
[[nodiscard]] double rounded(double value, int decimals);

/// The words with signature, description and example as HTML with the simple tags of a help page, for the page
/// "formula_language.html".
[[nodiscard]] QString referenceHtml();

} // namespace FB_Formula_Language
