#pragma once

#include <QString>

namespace File_Copy {

/// Copies the bytes of `from` to `to`, so that `to` is at every moment the whole old file or the whole new one, also
/// when the disk is full or the process is killed: they go beside it, are flushed, renamed over it, and the folder is
/// flushed where the system allows. On failure `to` is as it was and `error` holds the system's text.
[[nodiscard]] bool replace(const QString& from, const QString& to, QString& error);

/// Gives a file another name in its folder, in the place of a file of that name: at every moment the one or the other
/// stands there.
[[nodiscard]] bool renameOver(const QString& from, const QString& to);

/// True when both can be read and hold the same bytes.
[[nodiscard]] bool isSame(const QString& one, const QString& other);

/// True when both are paths of one file. It need not be there.
[[nodiscard]] bool isSamePath(const QString& one, const QString& other);

} // namespace File_Copy
