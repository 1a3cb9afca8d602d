#pragma once

#include <QByteArray>

/// Whole numbers in payloads, most significant byte first.
namespace Big_Endian {

/// Of up to 8 bytes.
[[nodiscard]] inline quint64 read(QByteArrayView bytes) {
  quint64 number = 0;
  for (const char byte : bytes) {
    number = number << 8 | static_cast<quint8>(byte);
  }
  return number;
}

/// The lowest `size` bytes of a number.
[[nodiscard]] inline QByteArray write(quint64 number, int size) {
  QByteArray bytes(size, '\0');
  for (qsizetype i = size - 1; i >= 0; --i, number >>= 8) {
    bytes[i] = static_cast<char>(number & 255);
  }
  return bytes;
}

/// The number whose lowest `bits` bits are a two's complement.
[[nodiscard]] constexpr qint64 signExtended(quint64 number, int bits) {
  const int spare = 64 - bits;
  return static_cast<qint64>(number << spare) >> spare;
}

} // namespace Big_Endian
