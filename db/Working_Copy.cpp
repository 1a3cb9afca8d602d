#include "db/Working_Copy.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QLockFile>
#include <QStandardPaths>

#include <utility>

namespace {

/// More studios on one project than anybody runs.
constexpr int cHighestNumber = 99;
constexpr qsizetype cHashDigits = 8;

std::unique_ptr<QLockFile> makeLock(const QString& workingPath) {
  auto lock = std::make_unique<QLockFile>(workingPath + QStringLiteral(".lock"));
  lock->setStaleLockTime(0); // however old: it is stale only when its owner is gone
  return lock;
}

/// Deletes what studios that are gone left of the project, so that it is asked about only once.
void removeLeftBehind(const QString& projectPath) {
  for (int number = 1; number <= cHighestNumber; ++number) {
    const QString path = Working_Copy::pathFor(projectPath, number);
    if (QFileInfo::exists(path)) {
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
      mLock(std::move(other.mLock)) {}

Working_Copy& Working_Copy::operator=(Working_Copy&& other) noexcept {
  std::swap(mPath, other.mPath);
  std::swap(mLock, other.mLock);
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
    const bool isLocked = QFileInfo::exists(path + QStringLiteral(".lock")) && !makeLock(path)->tryLock(0);
    if (isLocked) {
      return State::InUse;
    }
    if (isThere) {
      state = State::LeftBehind;
    }
  }
  return state;
}

bool Working_Copy::claim(const QString& projectPath) {
  release();
  for (int number = 1; number <= cHighestNumber && !projectPath.isEmpty(); ++number) {
    const QString path = pathFor(projectPath, number);
    std::unique_ptr<QLockFile> lock = makeLock(path);
    if (lock->tryLock(0)) {
      mLock = std::move(lock);
      mPath = path;
      removeFile(mPath);
      removeLeftBehind(projectPath);
      return true;
    }
    if (lock->error() != QLockFile::LockFailedError) {
      return false;
    }
  }
  return false;
}

void Working_Copy::release() {
  if (mLock) {
    removeFile(mPath);
    mLock->unlock();
  }
  mLock.reset();
  mPath.clear();
}

void Working_Copy::removeFile(const QString& path) {
  QFile::remove(path);
  if (!QFileInfo::exists(path)) {
    QFile::remove(path + QStringLiteral("-journal"));
    QFile::remove(path + QStringLiteral("-wal"));
    QFile::remove(path + QStringLiteral("-shm"));
  }
}
