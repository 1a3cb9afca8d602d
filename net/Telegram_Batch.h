#pragma once

#include "net/DB_Address_Network_Telegram.h"

/// The compact form in which the controller sends many telegrams at once, one record after another:
///
///     0  mark and service  u8    0x40 + service (0 read, 1 response, 2 write); any other first byte ends the batch
///     1  main group        u16   little-endian
///     3  middle group      u8
///     4  sub group         u8
///     5  data length       u8    0..255
///     6  data
namespace Telegram_Batch {

inline constexpr qsizetype cHead = 6;

/// Appends the telegram; groups and data beyond what the form can hold are cut.
void append(QByteArray& batch, const DB_Address_Network_Telegram& telegram);

/// Reads the record at `offset` of the first `length` bytes of the payload, with at most `mostData` data bytes. Returns
/// the number of bytes it takes, 0 when there is no further record there: the end, another first byte, a record that is
/// cut off or has more data than allowed. The telegram gets address, service and data; the rest is its default.
[[nodiscard]] qsizetype decode(QByteArrayView payload, qsizetype length, qsizetype offset, qsizetype mostData,
                               DB_Address_Network_Telegram& telegram);

} // namespace Telegram_Batch
