#pragma once

#include <QString>

#include <span>

/// A word of the language in which formulas are written: an operator, a function or a constant. Texts are German and
/// translated in the context "FB_Formula_Words".
struct FB_Formula_Word {
  enum class Kind { Operator, Function, Constant };
  /// Computes a result. Not a number where there is none.
  using Call = double (*)(const double* values, int count);

  Kind mKind = Kind::Function;
  const char* mName = "";        ///< "max", "+"; without regard to upper and lower case
  const char* mAlias = "";       ///< another way to write an operator; empty for none
  const char* mSignature = "";   ///< "max(a; b; …)"
  const char* mDescription = ""; ///< a sentence
  const char* mExample = "";     ///< a formula for inputs E1 to E8
  int mFewest = 0;               ///< values that it takes; 1 for an operator in front of its value
  int mMost = 0;
  int mPriority = 0; ///< of an operator: a higher one is computed first
  Call mCall = nullptr;
  double mValue = 0;          ///< of a constant
  const char* mNoResult = ""; ///< why there is no result; empty for a general text
};

/// The one table of the words: completion, list, help and the parser itself read it.
namespace FB_Formula_Words {

[[nodiscard]] std::span<const FB_Formula_Word> all();
/// By name or alias; null for none. An operator that stands in front of its value has a name that another has, too.
[[nodiscard]] const FB_Formula_Word* find(QStringView name, bool isInFront = false);
/// Translates a text of the table.
[[nodiscard]] QString text(const char* germanText);

/// Like "if", of which only the value that is needed is computed.
inline constexpr const char* cIf = "if";

} // namespace FB_Formula_Words
