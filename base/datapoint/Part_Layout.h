#pragma once

#include "base/Datapoint_Type.h"

#include <span>

/// One part of a compound type: what it is called and, unless the format has a codec of its own, which bits it takes.
struct Part_Layout {
  enum class Kind : quint8 {
    Whole,    ///< raw number times `mFactor`
    Signed,   ///< the same, two's complement
    Percent,  ///< 0..255 stand for 0..100 %
    Mode,     ///< one of three bits, its number is the value
    Hex,      ///< text of hexadecimal digits
    Decimals, ///< text of decimal digits, 4 bits each
    Number,   ///< any number; only in formats with a codec of their own, as the next two
    Text,
    Bare_Text, ///< written without its key
  };
  static constexpr int cNoMark = -1;

  const char* mKey = "";
  const char* mName = ""; ///< German; empty where the texts of the values say it all
  Kind mKind = Kind::Whole;
  int mLow = 0; ///< the lowest bit, counted from the end of the payload
  int mBits = 1;
  int mMark = cNoMark; ///< the bit that tells whether the part is valid
  bool mMarkIsInvalid = false;
  qint64 mMax = -1; ///< raw; -1 for all that the bits can hold
  int mFactor = 1;
  const char* mUnit = "";
  const char* mTexts = "";    ///< "0=Aus|1=Ein"
  bool mHasTypeTexts = false; ///< the type's own texts are this part's

  [[nodiscard]] constexpr bool isText() const { return mKind >= Kind::Hex && mKind != Kind::Number; }

  /// The parts of a compound type in order; empty for a simple type.
  [[nodiscard]] static std::span<const Part_Layout> of(const Datapoint_Type& type);
};
