#include "db/Project_Digests.h"

#include "db/ProjectDatabase.h"
#include "db/Project_Image.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

QString hexOf(const QCryptographicHash& hash) {
  return QString::fromLatin1(hash.result().toHex());
}

} // namespace

QString Project_Digests::program(QByteArrayView image) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  hash.addData(image);
  return hexOf(hash);
}

QString Project_Digests::records(const QList<QByteArray>& texts) {
  QCryptographicHash hash(QCryptographicHash::Sha256);
  for (const QByteArray& text : texts) {
    hash.addData(text);
    hash.addData(QByteArrayView("\0", 1));
  }
  return hexOf(hash);
}

void Project_Digests::Resources::add(QByteArrayView name, QByteArrayView file) {
  if (file.isEmpty()) {
    return;
  }
  mHash.addData(name);
  mHash.addData(QByteArrayView("\0", 1));
  mHash.addData(file);
  ++mCount;
}

QString Project_Digests::Resources::digest() const {
  return mCount == 0 ? QString() : hexOf(mHash);
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
