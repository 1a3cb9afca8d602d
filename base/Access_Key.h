#pragma once

#include <QString>

/// The letter of a menu entry or label that is pressed together with Alt.
namespace Access_Key {

/// The text with "&" before the letter: where it stands as written, or else in the other case. A text without the
/// letter stays as it is.
[[nodiscard]] QString mark(const QString& text, char16_t letter);

/// The marked letter in lower case; null when none is. "&&" is a plain ampersand.
[[nodiscard]] QChar of(const QString& markedText);

} // namespace Access_Key
