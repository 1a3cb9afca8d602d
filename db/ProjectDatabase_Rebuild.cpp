#include "base/File_Copy.h"
#include "db/ProjectDatabase.h"
#include "db/Working_Copy.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using DB_Tables::quoted;

/// False when a resource could not be written, or when more of them cannot be read than was told on opening: then they
/// are told now, and a further attempt goes without them.
bool ProjectDatabase::copyResources(DB_Sqlite& to) {
  DB_Statement select = prepareResource();
  DB_Statement insert =
      to.prepare("INSERT OR REPLACE INTO " + quoted(DB_Table::Resources) + "(FILENAME,DATA) VALUES(?,?)");
  bool isOk = to.execute("BEGIN TRANSACTION") && insert.isValid();
  bool isWhole = true;
  int lost = 0;
  const bool isReadable = select.isValid() && !mReport.isMissing(DB_Table::Resources);
  for (const qint64 row : isReadable ? resourceRows(isWhole) : std::vector<qint64>()) {
    if (select.bindNumber(1, row) && select.step() == DB_Statement::Step::Row) {
      isOk = isOk && insert.bindText(1, select.text(0)) && insert.bindBlob(2, select.blob(1)) &&
             insert.step() == DB_Statement::Step::Done;
      insert.reset();
    } else {
      ++lost;
    }
    select.reset();
  }
  isOk = isOk && to.execute("END TRANSACTION");
  if (!isOk) {
    mLastError = to.errorText();
    return false;
  }
  const int untold = lost - mReport.lostRows(DB_Table::Resources);
  if (untold <= 0 && (isWhole || mReport.isUnreadable(DB_Table::Resources))) {
    return true;
  }
  for (int i = 0; i < untold; ++i) {
    mReport.addLostRow(DB_Table::Resources);
  }
  if (!isWhole) {
    mReport.setUnreadable(DB_Table::Resources, mDatabase.errorText());
  }
  return fail(tr("Die Arbeitsdatei ist beschädigt, Ressourcen sind nicht mehr lesbar. Nochmals speichern schreibt das "
                 "Projekt ohne sie."));
}

/// The engine refuses to write to a damaged file, and a deleted one is no file any more.
bool ProjectDatabase::needsRebuild() const {
  return mNeedsRebuild || !QFileInfo::exists(mFileName);
}

/// Goes on with a fresh file. That holds the readable resources and all records before it takes the old one's place, so
/// that a studio killed meanwhile leaves one of the two.
bool ProjectDatabase::rebuild() {
  QDir().mkpath(QFileInfo(mFileName).absolutePath());
  const QString fresh = mFileName + QStringLiteral(".neu");
  Working_Copy::removeFile(fresh);
  DB_Sqlite database;
  const bool isOpen = database.open(fresh, DB_Sqlite::Mode::Create);
  if (isOpen) {
    createTables(database);
  }
  if (!isOpen) {
    mLastError = database.errorText();
  }
  const bool isWhole = isOpen && copyResources(database) && writeRecords(database, Extent::All);
  database.close();
  if (!isWhole) {
    Working_Copy::removeFile(fresh);
    return false;
  }
  mDatabase.close();
  Working_Copy::removeJournals(mFileName);
  if (!File_Copy::renameOver(fresh, mFileName)) {
    Working_Copy::removeFile(fresh);
    attach(mFileName);
    mKnownRows = {};
    return fail(tr("Die Arbeitsdatei \"%1\" kann nicht erneuert werden.").arg(mFileName));
  }
  mNeedsRebuild = false;
  return attach(mFileName);
}

bool ProjectDatabase::compact() {
  if (execute("VACUUM")) {
    return true;
  }
  DB_Statement check = mDatabase.prepare("PRAGMA quick_check(1)");
  const bool isSound = check.isValid() && check.step() == DB_Statement::Step::Row && check.text(0) == "ok";
  check = {};
  if (isSound) {
    return true; // for want of room: the file is whole, only larger than it need be
  }
  mNeedsRebuild = true;
  return recordWriteAll(false);
}
