#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The form in which DATA texts stand in the project file: base64 (RFC 4648, section 4) with an alphabet of our own and
/// '!' as padding. It keeps texts from being read at a glance and is no encryption.
namespace DB_Scramble {

struct Findings {
  bool mIsWhole = false; ///< the text is one that `scramble` makes: whole groups, and nothing behind the padding
  bool mIsAscii = false; ///< no byte of the result is above 127
};

[[nodiscard]] QByteArray scramble(QByteArrayView plain);

/// Stops at the first '!' or any other character that is not of the alphabet; a last group of two or three characters
/// yields one or two bytes, a single left-over character none.
[[nodiscard]] QByteArray unscramble(QByteArrayView scrambled, Findings* findings = nullptr);

} // namespace DB_Scramble
