#pragma once

#include "net/Network_Message.h"

#include <QByteArray>
#include <QByteArrayView>

#include <optional>

/// Whole messages as they travel: the enciphered header, then the payload, filled up with zero bytes to whole blocks
/// and enciphered.
namespace Network_Frame {

/// The bytes of one message; empty when the cipher fails or the data is longer than a message can hold.
[[nodiscard]] QByteArray pack(quint32 command, QByteArrayView data);
/// The same with a header that says what it says, for a peer that misbehaves on purpose.
[[nodiscard]] QByteArray pack(const Network_Message& header, QByteArrayView data);

/// The header in 32 bytes from the wire; empty when they are no possible one.
[[nodiscard]] std::optional<Network_Message> header(QByteArrayView enciphered);

} // namespace Network_Frame
