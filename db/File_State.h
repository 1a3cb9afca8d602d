#pragma once

#include <QString>

#include <optional>

/// What tells whether somebody has written a file since one last looked: its size and the time of its last change.
struct File_State {
  bool mExists = false;
  qint64 mSize = 0;     ///< bytes
  qint64 mModified = 0; ///< milliseconds since 1970, UTC
  friend bool operator==(const File_State&, const File_State&) = default;

  [[nodiscard]] static File_State of(const QString& path);

  /// Keeps the state in a small file of its own, and reads it again; none when it is not there or no such file.
  bool write(const QString& path) const;
  [[nodiscard]] static std::optional<File_State> read(const QString& path);
};
