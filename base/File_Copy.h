#pragma once

#include <QString>

namespace File_Copy {

/// Copies the bytes of `from` to `to`, so that `to` is at every moment the whole old file or the whole new one, also
/// when the disk is full or the process is killed: they go beside it, are flushed, renamed over it, and the folder is
/// flushed where the system allows. On failure `to` is as it was and `error` holds the system's text.
[[nodiscard]] bool replace(const QString& from, const QString& to, QString& error);

} // namespace File_Copy
