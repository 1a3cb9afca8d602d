#pragma once

#include <cstddef>
#include <span>

/// The cipher of the link: AES-256 in ECB mode (FIPS 197, NIST SP 800-38A), each block of 16 bytes by itself, under the
/// key that studio and controller share. No initialisation vector, no chaining, no padding of its own.
namespace Network_Cipher {

inline constexpr std::size_t cBlock = 16;

/// Both work in place; the size must be a multiple of 16. False when the library refuses, then the bytes are undefined.
[[nodiscard]] bool encipher(std::span<char> bytes);
[[nodiscard]] bool decipher(std::span<char> bytes);

} // namespace Network_Cipher
