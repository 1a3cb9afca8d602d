#pragma once

#include <QString>

/// One word that is typed to find addresses: "1/2/3" is that address and no longer one; "1/2/*", "1/2" and "1/*" are a
/// group and everything in it.
class Address_Pattern {
public:
  /// A pattern that is none and matches nothing when the word is not written like an address.
  explicit Address_Pattern(const QString& word = {});

  [[nodiscard]] bool isValid() const { return !mText.isEmpty(); }
  /// `address` as "1/2/3", "1/2/*" or "1/*".
  [[nodiscard]] bool matches(const QString& address) const;
  /// The same by the numbers; a group has none of the lower levels.
  [[nodiscard]] bool matches(int main, int middle = cNone, int sub = cNone) const;

private:
  static constexpr int cNone = -1;
  static constexpr int cNowhere = -2; ///< a number that no address has

  QString mText; ///< "1/2/3", or "1/2/" of a group
  int mMain = cNone;
  int mMiddle = cNone;
  int mSub = cNone;
};
