#include "db/Working_Copy.h"

#include "base/File_Copy.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <utility>

namespace {

/// More studios on one project than anybody runs.
constexpr int cHighestNumber = 99;
constexpr qsizetype cHashDigits = 8;

QString lockPathOf(const QString& workingPath) {
  return workingPath + QStringLiteral(".lock");
}

QString journalPathOf(const QString& workingPath) {
  return workingPath + QStringLiteral("-journal");
}

QString basePathOf(const QString& workingPath) {
  return workingPath + QStringLiteral(".base");
}

QString asidePathOf(const QString& workingPath) {
  return workingPath + QStringLiteral(".alt");
}

/// With all that belongs to it. Nothing when there is no such file.
void moveFile(const QString& from, const QString& to) {
  if (QFileInfo::exists(from)) {
    Working_Copy::removeFile(to);
    QFile::rename(from, to);
    QFile::rename(journalPathOf(from), journalPathOf(to));
    QFile::rename(basePathOf(from), basePathOf(to));
  }
}

std::unique_ptr<QLockFile> makeLock(const QString& workingPath) {
  auto lock = std::make_unique<QLockFile>(lockPathOf(workingPath));
  lock->setStaleLockTime(0); // however old: it is stale only when its owner is gone
  return lock;
}

/// An empty file holds nothing: its studio ended before it had copied the project.
bool isNeedless(const QString& workingPath, const QString& projectPath) {
  const bool isRolledBack = QFileInfo(journalPathOf(workingPath)).size() == 0;
  return isRolledBack && (QFileInfo(workingPath).size() == 0 || File_Copy::isSame(workingPath, projectPath));
}

/// Deletes what studios that are gone left of the project, so that it is asked about only once.
template <class Condition>
void removeLeftBehind(const QString& projectPath, Condition&& condition) {
  for (int number = 1; number <= cHighestNumber; ++number) {
    const QString path = Working_Copy::pathFor(projectPath, number);
    if (QFileInfo::exists(path) && condition(path)) {
      const std::unique_ptr<QLockFile> lock = makeLock(path);
      if (lock->tryLock(0)) {
        Working_Copy::removeFile(path);
      }
    }
  }
}

} // namespace

Working_Copy::Working_Copy() = default;
Working_Copy::Working_Copy(Working_Copy&& other) noexcept
    : mPath(std::exchange(other.mPath, {})),
      mLock(std::move(other.mLock)),
      mIsKept(other.mIsKept),
      mIsSetAside(other.mIsSetAside),
      mOthers(other.mOthers) {}

Working_Copy& Working_Copy::operator=(Working_Copy&& other) noexcept {
  std::swap(mPath, other.mPath);
  std::swap(mLock, other.mLock);
  std::swap(mIsKept, other.mIsKept);
  std::swap(mIsSetAside, other.mIsSetAside);
  std::swap(mOthers, other.mOthers);
  return *this;
}

Working_Copy::~Working_Copy() {
  release();
}

QString Working_Copy::pathFor(const QString& projectPath, int number) {
  if (projectPath.isEmpty()) {
    return {};
  }
  const QFileInfo info(projectPath);
  const QByteArray folder = info.absolutePath().toLower().toUtf8();
  const QByteArray hash = QCryptographicHash::hash(folder, QCryptographicHash::Md5).toHex().left(cHashDigits);
  QString path = QStandardPaths::writableLocation(QStandardPaths::TempLocation);
  if (!path.endsWith(u'/')) {
    path += u'/';
  }
  path += QStringLiteral("~lock.") + info.fileName() + u'.' + QString::fromLatin1(hash);
  if (number > 1) {
    path += u'.' + QString::number(number);
  }
  return path + QStringLiteral(".tmp");
}

Working_Copy::State Working_Copy::stateOf(const QString& projectPath) {
  State state = State::Free;
  for (int number = 1; number <= cHighestNumber && !projectPath.isEmpty(); ++number) {
    const QString path = pathFor(projectPath, number);
    const bool isThere = QFileInfo::exists(path);
    const bool isLocked = QFileInfo::exists(lockPathOf(path)) && !makeLock(path)->tryLock(0);
    if (isLocked) {
      return State::InUse;
    }
    if (isThere) {
      state = State::LeftBehind;
    }
  }
  return state;
}

std::optional<Working_Copy::Left_Behind> Working_Copy::findLeftBehind(const QString& projectPath) {
  std::optional<Left_Behind> newest;
  int count = 0;
  if (stateOf(projectPath) != State::LeftBehind) {
    return newest;
  }
  for (int number = 1; number <= cHighestNumber; ++number) {
    const QFileInfo info(pathFor(projectPath, number));
    if (info.exists() && !isNeedless(info.filePath(), projectPath)) {
      ++count;
      if (!newest || info.lastModified() > newest->mModified) {
        newest = Left_Behind{info.filePath(), info.size(), info.lastModified(), 0};
      }
    }
  }
  if (newest) {
    newest->mFurther = count - 1;
    const File_State now = File_State::of(projectPath);
    const std::optional<File_State> base = baseOf(newest->mPath);
    newest->mIsOvertaken = now.mExists && (base ? now != *base : now.mModified > newest->mModified.toMSecsSinceEpoch());
  }
  return newest;
}

void Working_Copy::removeNeedless(const QString& projectPath) {
  removeLeftBehind(projectPath, [&](const QString& path) { return isNeedless(path, projectPath); });
}

bool Working_Copy::adopt(const QString& workingPath) {
  release();
  std::unique_ptr<QLockFile> lock = makeLock(workingPath);
  if (!lock->tryLock(0) || !QFileInfo::exists(workingPath)) {
    return false;
  }
  mLock = std::move(lock);
  mPath = workingPath;
  mIsKept = true;
  return true;
}

bool Working_Copy::keepLock() {
  if (!mLock) {
    return false;
  }
  if (!QFileInfo::exists(lockPathOf(mPath))) {
    mLock->unlock();
    QDir().mkpath(QFileInfo(mPath).absolutePath());
    if (mLock->tryLock(0)) {
      return true;
    }
  }
  qint64 owner = 0;
  QString host;
  QString program;
  const bool isOurs =
      mLock->isLocked() && mLock->getLockInfo(&owner, &host, &program) && owner == QCoreApplication::applicationPid();
  if (!isOurs) {
    loseLock();
  }
  return isOurs;
}

/// Unlocking would delete the lock of the other studio, so that is moved out of the way meanwhile.
void Working_Copy::loseLock() {
  const QString lock = lockPathOf(mPath);
  const QString away = lock + QStringLiteral(".fremd");
  const bool isAway = QFile::rename(lock, away);
  mLock.reset();
  if (isAway) {
    QFile::rename(away, lock);
  }
  mPath.clear();
  mIsSetAside = false;
}

void Working_Copy::settle(const QString& projectPath) {
  if (mIsSetAside) {
    removeFile(asidePathOf(mPath));
    mIsSetAside = false;
  }
  if (mOthers == Others::Remove) {
    removeLeftBehind(projectPath, [](const QString&) { return true; });
    mOthers = Others::Keep;
  }
}

void Working_Copy::rememberBase(const File_State& base) const {
  if (!mPath.isEmpty()) {
    base.write(basePathOf(mPath));
  }
}

std::optional<File_State> Working_Copy::baseOf(const QString& workingPath) {
  return File_State::read(basePathOf(workingPath));
}

bool Working_Copy::claim(const QString& projectPath, Others others) {
  release();
  for (int number = 1; number <= cHighestNumber && !projectPath.isEmpty(); ++number) {
    const QString path = pathFor(projectPath, number);
    if (others == Others::Keep && QFileInfo::exists(path)) {
      continue;
    }
    std::unique_ptr<QLockFile> lock = makeLock(path);
    if (lock->tryLock(0)) {
      mLock = std::move(lock);
      mPath = path;
      mOthers = others;
      mIsSetAside = QFileInfo::exists(mPath);
      moveFile(mPath, asidePathOf(mPath));
      removeFile(mPath);
      return true;
    }
    if (lock->error() != QLockFile::LockFailedError) {
      return false;
    }
  }
  return false;
}

void Working_Copy::release() {
  if (mLock && mLock->isLocked()) {
    if (!mIsKept) {
      removeFile(mPath);
    }
    if (mIsSetAside) {
      moveFile(asidePathOf(mPath), mPath);
    }
    mLock->unlock();
  }
  mLock.reset();
  mPath.clear();
  mIsKept = false;
  mIsSetAside = false;
  mOthers = Others::Keep;
}

void Working_Copy::removeFile(const QString& path) {
  QFile::remove(path);
  if (!QFileInfo::exists(path)) {
    removeJournals(path);
    QFile::remove(basePathOf(path));
    QFile::remove(path + QStringLiteral(".neu")); // begun in its stead, and not finished
  }
}

void Working_Copy::removeJournals(const QString& path) {
  QFile::remove(journalPathOf(path));
  QFile::remove(path + QStringLiteral("-wal"));
  QFile::remove(path + QStringLiteral("-shm"));
}
