#pragma once

#include <QString>

#include <memory>

class QLockFile;

/// The working file of a project file: the copy in the temporary directory that is opened in its stead, and the lock
/// file beside it that names its owner.
///
/// Its name is "~lock.", the project's file name, ".", eight hexadecimal digits of the MD5 of the lower-cased absolute
/// folder, ".tmp". A second studio on the same project gets a copy of its own, with a number before ".tmp".
class Working_Copy {
public:
  enum class State {
    Free,
    InUse,      ///< a running studio (this one included) has the project open
    LeftBehind, ///< a working file stands there, but its owner is gone
  };

  Working_Copy();
  Working_Copy(const Working_Copy&) = delete;
  Working_Copy& operator=(const Working_Copy&) = delete;
  Working_Copy(Working_Copy&& other) noexcept;
  Working_Copy& operator=(Working_Copy&& other) noexcept;
  /// A claimed copy is released.
  ~Working_Copy();

  /// The first working file's path for number 1; empty for an empty project path.
  [[nodiscard]] static QString pathFor(const QString& projectPath, int number = 1);
  [[nodiscard]] static State stateOf(const QString& projectPath);

  /// Takes the first working file that no running studio owns, locks it, and deletes what former owners that are gone
  /// left of the project, under any number.
  /// False when no lock can be had (the temporary directory cannot be written).
  [[nodiscard]] bool claim(const QString& projectPath);
  /// Deletes the working file, its journals and its lock.
  void release();

  [[nodiscard]] QString path() const { return mPath; }

  /// Deletes a working file together with the journals that belong to it.
  static void removeFile(const QString& path);

private:
  QString mPath;
  std::unique_ptr<QLockFile> mLock;
};
