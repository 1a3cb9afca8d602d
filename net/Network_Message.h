#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The header of every message between studio and controller, 32 bytes, all numbers little-endian:
///
///     0  command         u32
///     4  padded length   u32   payload bytes that follow, a multiple of 16
///     8  data length     u32   meaningful payload bytes
///     12 magic           u32   8562
///     16 seconds         i64   when the message was made, since 1970-01-01 UTC
///     24 microseconds    i64   0..999999
struct Network_Message {
  static constexpr qsizetype cSize = 32;
  static constexpr quint32 cMagic = 8562;
  static constexpr quint32 cMostPadded = 256U * 1024 * 1024; ///< a longer payload is taken for a stream out of step

  quint32 mCommand = 0;
  quint32 mPaddedLength = 0;
  quint32 mDataLength = 0;
  quint32 mMagic = 0; ///< 0 where no header is meant
  qint64 mSeconds = 0;
  qint64 mMicroseconds = 0;

  /// A header for so many payload bytes, stamped with that time (microseconds since 1970, UTC).
  [[nodiscard]] static Network_Message make(quint32 command, quint32 dataLength, qint64 nowMicroseconds);
  /// The same, stamped with the present time.
  [[nodiscard]] static Network_Message make(quint32 command, quint32 dataLength);
  /// The length rounded up to whole cipher blocks of 16 bytes.
  [[nodiscard]] static constexpr quint64 padded(quint64 length) { return (length + 15) / 16 * 16; }

  /// From 32 deciphered bytes.
  [[nodiscard]] static Network_Message fromBytes(QByteArrayView bytes);
  [[nodiscard]] QByteArray toBytes() const;

  /// The right magic and lengths that can be: padded to whole blocks, room for the data, at most `cMostPadded`. A
  /// header without payload bytes is possible whatever its data length says.
  [[nodiscard]] bool isPossible() const;

  friend bool operator==(const Network_Message&, const Network_Message&) = default;
};
