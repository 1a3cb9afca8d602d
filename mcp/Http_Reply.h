#pragma once

#include <QByteArray>
#include <QByteArrayView>

/// The bytes of the answers that the assistant's server gives (HTTP/1.1, RFC 9112; Server-Sent Events, WHATWG).
namespace Http_Reply {

/// Of every request that does not open a stream.
[[nodiscard]] QByteArray write(int status, QByteArrayView body);
/// Opens an event stream.
[[nodiscard]] QByteArray streamHead();
/// One event of a stream; `data` in one line.
[[nodiscard]] QByteArray event(QByteArrayView name, QByteArrayView data);

} // namespace Http_Reply
