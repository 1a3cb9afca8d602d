#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <vector>

/// Looks for a text in other texts, as an editor does: the characters as they are typed, no wildcards. Matches are told
/// from left to right and do not overlap.
///
/// Letters are the same in any normal form ("ü" as one character or as two); without `mMatchCase` also in any case, and
/// "ß" is "ss". A match never begins or ends inside such a letter. Made for hundreds of thousands of short texts.
class Text_Search {
public:
  struct Options {
    bool mMatchCase = false;
    bool mWholeWords = false; ///< no letter, digit or underscore goes on before and behind
    friend bool operator==(const Options&, const Options&) = default;
  };

  /// Counted in UTF-16 units.
  struct Match {
    qsizetype mStart = 0;
    qsizetype mLength = 0;
    friend bool operator==(const Match&, const Match&) = default;
  };

  Text_Search() = default;
  explicit Text_Search(const QString& text) : Text_Search(text, Options()) {}
  Text_Search(const QString& text, Options options);

  /// Finds nothing then.
  [[nodiscard]] bool isEmpty() const { return mNeedle.isEmpty(); }
  [[nodiscard]] std::vector<Match> find(QStringView text) const;
  [[nodiscard]] int count(QStringView text) const;
  /// With `by` in the place of each match, taken as it is.
  [[nodiscard]] QString replaced(const QString& text, const QString& by) const;

private:
  /// Every letter below this is one character that folds to one character, but for "ß".
  static constexpr char16_t cPlainEnd = 0x130;

  template <class On_Match>
  void visit(QStringView text, On_Match&& onMatch) const;
  template <class On_Match>
  void visitPlain(QStringView text, QStringView folded, On_Match&& onMatch) const;
  template <class On_Match>
  void visitAny(QStringView text, On_Match&& onMatch) const;
  [[nodiscard]] bool isWanted(QStringView text, const Match& match) const;
  [[nodiscard]] QString folded(const QString& text) const;

  QString mNeedle; ///< folded
  Options mOptions;
  std::array<char16_t, cPlainEnd> mPlain{}; ///< what a character folds to; 0 where that takes more than looking up
};
