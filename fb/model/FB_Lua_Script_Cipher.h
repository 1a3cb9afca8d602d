#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// Bytes locked by a password: key from PBKDF2-HMAC-SHA256 (RFC 8018) with a random salt, the bytes XORed with
/// HMAC-SHA256 over a counter, and an HMAC-SHA256 over salt and result (encrypt, then authenticate), cut to 128 bits.
namespace FB_Lua_Script_Cipher {

inline constexpr int cSaltSize = 16;

struct Locked {
  QByteArray mCheck; ///< 32 hexadecimal characters, lower case
  QByteArray mBytes; ///< the salt, then as many bytes as there were
};

[[nodiscard]] Locked lock(const QByteArray& plain, const QString& password);
/// Empty for another password, and for bytes that were changed since.
[[nodiscard]] std::optional<QByteArray> unlock(const Locked& locked, const QString& password);

} // namespace FB_Lua_Script_Cipher
