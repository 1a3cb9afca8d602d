#pragma once

#include "base/Datapoint_Value.h"

/// Numbers as the texts of datapoint values write them: decimal point, no separators, the same in every language.
namespace Number_Text {

/// The fewest digits that give the same number again; with an exponent when it is very large or small.
[[nodiscard]] QString shortest(double value);
[[nodiscard]] QString shortest(float value);
/// At most that many decimals, without zeros at the end.
[[nodiscard]] QString rounded(double value, int decimals);

/// Digits with an optional sign, decimal point and exponent, blanks around them; exact for whole numbers of 64 bits.
/// Nothing (`std::monostate`) for anything else, also for NaN and infinities.
[[nodiscard]] Datapoint_Value::Scalar parse(QStringView text);

/// Reads exactly that many hexadecimal digits, at most 8.
[[nodiscard]] std::optional<quint32> parseHex(QStringView text, int digits);

} // namespace Number_Text
