#include "simulator/Simulator_Backups.h"

#include "net/Persistent_Values.h"
#include "simulator/Simulator_Controller.h"

#include <QDataStream>
#include <QIODevice>
#include <QRegularExpression>

namespace {

const QString cEnding = QStringLiteral(".backup");
constexpr QDataStream::Version cLayout = QDataStream::Qt_6_0;
constexpr qint64 cMsecs = 1000;
constexpr int cDigits = 4;

struct Parts {
  QByteArray mTold; ///< a DB_Backup_List of this one
  QByteArray mProject;
  QByteArray mValues;
};

std::optional<Parts> partsOf(const QByteArray& file) {
  QDataStream stream(file);
  stream.setVersion(cLayout);
  Parts parts;
  stream >> parts.mTold >> parts.mProject >> parts.mValues;
  return stream.status() == QDataStream::Ok ? std::optional(parts) : std::nullopt;
}

} // namespace

QString Simulator_Backups::nameOf(const QString& id) {
  static const QRegularExpression possible(QStringLiteral("\\A[A-Za-z0-9-]{1,40}\\z"));
  return possible.match(id).hasMatch() ? id + cEnding : QString();
}

DB_Backup_List Simulator_Backups::list() const {
  DB_Backup_List list;
  const Simulator_Store& store = mController.store();
  const QStringList names = store.names(cEnding);
  for (const QString& name : names) {
    const QByteArray file = store.read(name);
    if (const std::optional<Parts> parts = partsOf(file)) {
      DB_Backup_List one;
      one.setData(parts->mTold);
      for (DB_Backup_List::Backup& backup : one.mBackups) {
        backup.mSize = file.size();
        list.mBackups.push_back(backup);
      }
    }
  }
  return list;
}

DB_Backup_List Simulator_Backups::make(const QString& description) {
  DB_Backup_List::Backup backup;
  do {
    backup.mId = QStringLiteral("B-%1").arg(++mController.settings().mLastBackup, cDigits, 10, QChar(u'0'));
  } while (!mController.store().read(nameOf(backup.mId)).isEmpty());
  backup.mTime = mController.now() / cMsecs;
  backup.mDescription = description;
  backup.mProjectName = mController.project().header().mName;
  DB_Backup_List told;
  told.mBackups.push_back(backup);
  QByteArray file;
  QDataStream stream(&file, QIODevice::WriteOnly);
  stream.setVersion(cLayout);
  stream << told.toData() << mController.project().toBytes() << mController.values().persistent().toBytes();
  if (!mController.storeSettings() || !mController.store().write(nameOf(backup.mId), file)) {
    return {};
  }
  told.mBackups.front().mSize = file.size();
  return told;
}

QByteArray Simulator_Backups::file(const QString& id) const {
  const QString name = nameOf(id);
  return name.isEmpty() ? QByteArray() : mController.store().read(name);
}

std::optional<Simulator_Backups::Content> Simulator_Backups::content(const QString& id) const {
  const std::optional<Parts> parts = partsOf(file(id));
  const std::optional<Simulator_Project> project = parts ? Simulator_Project::fromBytes(parts->mProject) : std::nullopt;
  return project ? std::optional(Content{*project, parts->mValues}) : std::nullopt;
}

bool Simulator_Backups::remove(const QString& id) {
  const QString name = nameOf(id);
  return !name.isEmpty() && mController.store().remove(name);
}
