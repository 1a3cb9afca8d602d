#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

class Ets_Collector;
class QIODevice;

/// The text in the bytes of an ESF or CSV export.
///
/// A byte order mark tells UTF-8 or UTF-16; without one it is UTF-8 where the bytes are, else Windows-1252.
namespace Ets_Text {

/// These formats are decoded as a whole.
inline constexpr qint64 cSizeLimit = qint64(256) * 1024 * 1024;

/// Empty with a German `error` when the bytes are no text: not of the encoding that the mark tells, not defined in
/// Windows-1252, or control characters other than tab and line break.
[[nodiscard]] std::optional<QString> decode(const QByteArray& bytes, QString& error);

/// Decodes leniently what is only looked at.
[[nodiscard]] QString preview(const QByteArray& bytes);

/// The whole text of a file; empty with an error in the collector. Takes the first half of the progress.
[[nodiscard]] std::optional<QString> read(QIODevice& device, Ets_Collector& collector);

/// A text of a record without the characters that `decode` refuses.
[[nodiscard]] QString permitted(const QString& text);

/// In Windows-1252, as ETS writes it; in UTF-8 with a byte order mark where that cannot hold the text, or would be
/// taken for UTF-8 when read.
[[nodiscard]] QByteArray encode(const QString& text);

} // namespace Ets_Text
