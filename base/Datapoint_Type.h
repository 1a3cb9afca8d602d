#pragma once

#include "base/Datapoint_Id.h"

#include <QString>

/// How the bytes of a datapoint type are laid out. Where several sizes share a word, the type tells its bits.
enum class Datapoint_Format : quint8 {
  Bool,
  Control,
  Step,
  Char,
  Unsigned,
  Signed,
  Status,
  Float16,
  Time,
  Date,
  Float32,
  Access,
  String_Ascii,
  String_Latin1,
  Scene,
  Scene_Control,
  Date_Time,
  Enum8,
  Bitset8,
  Enum2,
  Scene_Info,
  Bitset32,
  String_Utf8,
  Version,
  Serial,
  Scaling_Speed,
  Tariff_Next,
  Metering,
  Locale,
  Rgb,
  Language,
  Tariff_Energy,
  Scene_Config,
  Dali,
  Flagged_Scaling,
  Positions,
  Sab_Status,
  Xyy,
  Xyy_Transition,
  Brightness_Ct_Transition,
  Brightness_Ct_Control,
  Rgbw,
  Rgbw_Control,
  Xyy_Control,
  Rgb_Control,
};

/// One KNX datapoint type (KNX Standard, 3/7/2 "Datapoint Types"). Its texts are the German facts of the standard and
/// the same in every language of the studio; UTF-8, never null, alive as long as the program.
struct Datapoint_Type {
  Datapoint_Id mId;
  const char* mName = "";
  Datapoint_Format mFormat = Datapoint_Format::Bool;
  int mBits = 0;           ///< of the payload; 0 when its length varies
  const char* mUnit = "";  ///< of the number, of `mMin`, `mMax` and `mStep`; of compounds their main field's
  double mMin = 0;         ///< both 0 when the type has no range of numbers
  double mMax = 0;         ///< included
  double mStep = 0;        ///< the smallest difference of two values; 0 when it is not the same everywhere
  const char* mTexts = ""; ///< "0=Aus|1=Ein": of numbers, of bit numbers in 21.x, of the first field in compounds

  /// The size of the payload; types under 8 bits take a byte of their own. 0 when it varies.
  [[nodiscard]] constexpr int bytes() const { return (mBits + 7) / 8; }

  [[nodiscard]] QString name() const { return QString::fromUtf8(mName); }
  [[nodiscard]] QString unit() const { return QString::fromUtf8(mUnit); }
};
