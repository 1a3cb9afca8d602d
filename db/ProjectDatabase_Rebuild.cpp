#include "db/ProjectDatabase.h"
#include "db/Working_Copy.h"

#include <QFile>

using DB_Tables::quoted;

/// False when a resource could not be written; those that cannot be read are lost and told.
bool ProjectDatabase::copyResources(DB_Sqlite& to) {
  DB_Statement select = mDatabase.prepare("SELECT FILENAME,DATA FROM " + quoted(DB_Table::Resources));
  DB_Statement insert =
      to.prepare("INSERT OR REPLACE INTO " + quoted(DB_Table::Resources) + "(FILENAME,DATA) VALUES(?,?)");
  bool isOk = to.execute("BEGIN TRANSACTION") && insert.isValid();
  DB_Statement::Step step = DB_Statement::Step::Done;
  while (isOk && select.isValid() && (step = select.step()) == DB_Statement::Step::Row) {
    isOk = insert.bindText(1, select.text(0)) && insert.bindBlob(2, select.blob(1)) &&
           insert.step() == DB_Statement::Step::Done;
    insert.reset();
  }
  if (step == DB_Statement::Step::Error) {
    mReport.setUnreadable(DB_Table::Resources, mDatabase.errorText());
  }
  return isOk && to.execute("END TRANSACTION");
}

/// The engine refuses to write to a damaged file: goes on with a fresh one, which takes the readable resources over.
/// The records are in memory and are written by the caller.
bool ProjectDatabase::rebuild() {
  if (!mNeedsRebuild) {
    return true;
  }
  const QString fresh = mFileName + QStringLiteral(".neu");
  Working_Copy::removeFile(fresh);
  DB_Sqlite database;
  const bool isOpen = database.open(fresh, DB_Sqlite::Mode::Create);
  if (isOpen) {
    createTables(database);
  }
  if (!isOpen || !copyResources(database)) {
    mLastError = database.errorText();
    database.close();
    Working_Copy::removeFile(fresh);
    return false;
  }
  database.close();
  mDatabase.close();
  Working_Copy::removeFile(mFileName);
  if (!QFile::rename(fresh, mFileName)) {
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
