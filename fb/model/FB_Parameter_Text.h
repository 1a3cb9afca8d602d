#pragma once

#include "fb/model/FB_Type.h"

#include <QString>

#include <optional>

/// Values of parameters as they are stored, and what there is to say of them. Numbers are stored with a point and no
/// needless digits, checks as "0" or "1", choices by their value.
namespace FB_Parameter_Text {

/// Digits behind the point that are shown of a stored number at most.
inline constexpr int cMostDecimals = 12;

/// The name of the parameter of that index, from 0.
[[nodiscard]] QString name(const FB_Parameter& parameter, int index);

/// The number of a stored text; empty when it is none, or not finite.
[[nodiscard]] std::optional<double> number(const QString& text);
/// As it is stored.
[[nodiscard]] QString ofNumber(double value, int decimals);
/// In the language of the user, without needless digits.
[[nodiscard]] QString shownNumber(double value, int decimals);
/// So many digits behind the point are needed to show the stored number as it is.
[[nodiscard]] int decimals(const QString& text);

/// Whether the value is the type's default, however it is written.
[[nodiscard]] bool isDefault(const FB_Parameter& parameter, const QString& value);
/// What is wrong with a stored value (German, without a point); empty when nothing is.
[[nodiscard]] QString fault(const FB_Parameter& parameter, const QString& value);

/// As a user reads it: "2,5 s", "Ein", "Bei Änderung".
[[nodiscard]] QString shown(const FB_Parameter& parameter, const QString& value);
/// What may be set and what is set at first, in lines.
[[nodiscard]] QString toolTip(const FB_Parameter& parameter);

} // namespace FB_Parameter_Text
