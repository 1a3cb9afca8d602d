#pragma once

#include "db/File_State.h"

#include <QDateTime>
#include <QString>

#include <memory>
#include <optional>

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

  /// A working file that a studio left behind when it ended without closing the project.
  struct Left_Behind {
    QString mPath;
    qint64 mSize = 0; ///< bytes
    QDateTime mModified;
    int mFurther = 0;          ///< how many more there are of the same project
    bool mIsOvertaken = false; ///< somebody else has written the project file since
  };

  /// What becomes of what former owners that are gone left of the project, under any number.
  enum class Others {
    Keep,
    Remove, ///< by `settle`
  };

  Working_Copy();
  Working_Copy(const Working_Copy&) = delete;
  Working_Copy& operator=(const Working_Copy&) = delete;
  Working_Copy(Working_Copy&& other) noexcept;
  Working_Copy& operator=(Working_Copy&& other) noexcept;
  /// A claimed or adopted copy is released.
  ~Working_Copy();

  /// The first working file's path for number 1; empty for an empty project path.
  [[nodiscard]] static QString pathFor(const QString& projectPath, int number = 1);
  [[nodiscard]] static State stateOf(const QString& projectPath);

  /// The newest of those that hold something that the project file does not: other bytes, or a journal that the engine
  /// has still to roll back. None while a running studio has the project open.
  [[nodiscard]] static std::optional<Left_Behind> findLeftBehind(const QString& projectPath);
  /// Deletes those that hold nothing that the project file does not.
  static void removeNeedless(const QString& projectPath);

  /// Takes the first working file that no running studio owns (with `Others::Keep` one that is not there yet) and locks
  /// it. What lies there is set aside, and comes back when this is released before `settle`. False when no lock can be
  /// had (the temporary directory cannot be written).
  [[nodiscard]] bool claim(const QString& projectPath, Others others = Others::Remove);
  /// Takes exactly that working file with its journal and locks it. Releasing leaves both, until `own` is called. False
  /// when it is gone or another studio has it.
  [[nodiscard]] bool adopt(const QString& workingPath);
  void own() { mIsKept = false; }
  /// The project is safely open or saved: what former owners left goes now, if the claim said so.
  void settle(const QString& projectPath);
  /// Takes the lock anew where something has deleted it. False when that fails or another studio has it by now: then
  /// neither file nor lock are ours any more.
  [[nodiscard]] bool keepLock();

  /// Keeps the state that the project file had when its content came into the working file, beside the working file.
  void rememberBase(const File_State& base) const;
  [[nodiscard]] static std::optional<File_State> baseOf(const QString& workingPath);
  /// Deletes the working file, its journals and its lock.
  void release();

  [[nodiscard]] QString path() const { return mPath; }

  /// Deletes a working file together with the journals that belong to it.
  static void removeFile(const QString& path);
  static void removeJournals(const QString& path);

private:
  void loseLock();

  QString mPath;
  std::unique_ptr<QLockFile> mLock;
  bool mIsKept = false;     ///< adopted, and not our own yet
  bool mIsSetAside = false; ///< what lay in the place of the file waits under another name
  Others mOthers = Others::Keep;
};
