#include "simulator/Simulator_Store.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QLockFile>
#include <QSaveFile>

#include <utility>

Simulator_Store::Simulator_Store(QString folder) : mFolder(std::move(folder)) {
  if (mFolder.isEmpty()) {
    return;
  }
  const bool isThere = QDir().mkpath(mFolder);
  mLock = std::make_unique<QLockFile>(path(QStringLiteral("lock")));
  // However old it is: only that its process is gone sets it free.
  mLock->setStaleLockTime(0);
  if (isThere && mLock->tryLock(0)) {
    return;
  }
  mFault =
      isThere && mLock->error() == QLockFile::LockFailedError
          ? QCoreApplication::translate("Simulator_Store", "Den Ordner \"%1\" benutzt schon ein anderer Simulator.")
          : QCoreApplication::translate("Simulator_Store", "Der Ordner \"%1\" kann nicht benutzt werden.");
  mFault = mFault.arg(mFolder);
}

Simulator_Store::~Simulator_Store() = default;

QString Simulator_Store::path(const QString& name) const {
  return mFolder + u'/' + name;
}

QByteArray Simulator_Store::read(const QString& name) const {
  if (mFolder.isEmpty()) {
    return mMemory.value(name);
  }
  QFile file(path(name));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

bool Simulator_Store::write(const QString& name, const QByteArray& bytes) {
  if (mFolder.isEmpty()) {
    mMemory.insert(name, bytes);
    return true;
  }
  QSaveFile file(path(name));
  return mFault.isEmpty() && file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

bool Simulator_Store::remove(const QString& name) {
  return mFolder.isEmpty() ? mMemory.remove(name) : mFault.isEmpty() && QFile::remove(path(name));
}

QStringList Simulator_Store::names(const QString& ending) const {
  if (!mFolder.isEmpty()) {
    return QDir(mFolder).entryList({u'*' + ending}, QDir::Files, QDir::Name);
  }
  QStringList names;
  for (auto it = mMemory.cbegin(); it != mMemory.cend(); ++it) {
    if (it.key().endsWith(ending)) {
      names.append(it.key());
    }
  }
  names.sort();
  return names;
}
