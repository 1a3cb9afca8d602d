#pragma once

#include <QString>
#include <QStringView>

#include <optional>

/// Numbers as people read and type them.
namespace Decimal_Text {

/// Reads digits with an optional sign and one decimal comma or point, blanks around them and a "°" behind; no thousands
/// separators and no exponent. Empty for anything else.
[[nodiscard]] std::optional<double> parse(QStringView text);

/// With the decimal sign of the chosen language and as many digits as needed, at most 6 behind it.
[[nodiscard]] QString print(double value);

/// A whole number with the thousands separators of the chosen language.
[[nodiscard]] QString count(qsizetype value);

} // namespace Decimal_Text
