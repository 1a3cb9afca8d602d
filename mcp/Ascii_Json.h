#pragma once

#include <QByteArray>
#include <QJsonObject>

/// Compact JSON in pure ASCII: every UTF-16 unit from 128 up is written as a backslash, "u" and four lower-case
/// hexadecimal digits (RFC 8259, section 7), so a character outside the basic plane as its two surrogates.
namespace Ascii_Json {

[[nodiscard]] QByteArray write(const QJsonObject& object);

} // namespace Ascii_Json
