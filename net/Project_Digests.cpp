#include "net/Project_Digests.h"

#include "db/ProjectDatabase.h"
#include "db/Project_Image.h"

#include <QCoreApplication>

#include <algorithm>

QString Project_Digests::records(const QList<QByteArray>& texts) {
  Sha256 hash;
  for (const QByteArray& text : texts) {
    hash.add(text);
    hash.add(QByteArrayView("\0", 1));
  }
  return hash.hex();
}

void Project_Digests::Resources::add(QByteArrayView name, QByteArrayView file) {
  if (file.isEmpty()) {
    return;
  }
  mHash.add(Project_Image::wholeName(name));
  mHash.add(QByteArrayView("\0", 1));
  mHash.add(file);
  ++mCount;
}

std::optional<Project_Digests> Project_Digests::of(ProjectDatabase& database, QString* error) {
  Project_Digests digests;
  digests.mProgram = program(Project_Image::program(database).toBytes());
  digests.mRecords = records({database.mConnections.toData(), database.mStyle.toData(), database.mM8800.toData(),
                              database.mMail.toData(), database.mStatistic.toData(), database.mTgmMon.toData()});
  QStringList names;
  bool isOk = database.ressourceList(names);
  const auto travelling = [](const QString& name) { return name.toUtf8().left(cNameBytes); };
  std::sort(names.begin(), names.end(),
            [&](const QString& a, const QString& b) { return travelling(a) < travelling(b); });
  Resources resources;
  for (const QString& name : std::as_const(names)) {
    QByteArray bytes;
    isOk = isOk && database.ressourceReadRaw(name, bytes);
    resources.add(travelling(name), bytes);
  }
  if (!isOk) {
    if (error) {
      *error = QCoreApplication::translate("Project_Digests", "Eine Ressource des Projekts ist nicht lesbar: %1")
                   .arg(database.lastError());
    }
    return std::nullopt;
  }
  digests.mResources = resources.digest();
  digests.mResourceCount = resources.count();
  return digests;
}
