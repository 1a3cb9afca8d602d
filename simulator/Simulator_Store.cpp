#include "simulator/Simulator_Store.h"

#include <QDir>
#include <QFile>
#include <QSaveFile>

#include <utility>

Simulator_Store::Simulator_Store(QString folder) : mFolder(std::move(folder)) {
  mIsUsable = mFolder.isEmpty() || QDir().mkpath(mFolder);
}

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
  return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit();
}

bool Simulator_Store::remove(const QString& name) {
  return mFolder.isEmpty() ? mMemory.remove(name) : QFile::remove(path(name));
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
