#include "db/DB_Legacy_Import.h"

#include "db/DB_Scramble.h"
#include "db/DB_Sqlite.h"
#include "db/DB_Tables.h"

#include <QFile>

#include <cstdio>
#include <vector>

namespace {

constexpr char cOlderVersion[] = "mVersion\x02"
                                 "0.000\x03";

/// What the older layout left behind and nobody reads.
constexpr const char* cTidyUp[] = {
    "DROP TABLE IF EXISTS `undo`",          "DROP TABLE IF EXISTS `clipboard`",
    "DROP TABLE IF EXISTS `session`",       "DROP TABLE IF EXISTS `window_state`",
    "DROP TABLE IF EXISTS `search_cache`",  "DROP TABLE IF EXISTS `address_cache`",
    "DROP TABLE IF EXISTS `preview_cache`", "DROP TABLE IF EXISTS `versions`",
};

bool scrambleRows(DB_Sqlite& database, const QByteArray& table) {
  std::vector<QByteArray> rows;
  DB_Statement select = database.prepare("SELECT * FROM " + table);
  DB_Statement::Step step = DB_Statement::Step::Error;
  while (select.isValid() && (step = select.step()) == DB_Statement::Step::Row) {
    rows.push_back(select.text(0).toByteArray());
  }
  select = {};
  // The clear rows are deleted only when every one of them has been read.
  bool isOk = step == DB_Statement::Step::Done;
  // One transaction for all rows: one flush to the disk instead of one per row, and all of them or none.
  database.execute("BEGIN TRANSACTION");
  isOk = isOk && database.execute("DELETE FROM " + table);
  DB_Statement insert = database.prepare("INSERT INTO " + table + "(DATA) VALUES(?)");
  for (size_t i = 0; isOk && i < rows.size(); ++i) {
    const QByteArray scrambled = DB_Scramble::scramble(rows[i]);
    isOk = insert.isValid() && insert.bindText(1, scrambled) && insert.step() == DB_Statement::Step::Done;
    insert.reset();
  }
  if (!isOk) {
    std::printf("sqlite3_step ERROR: %s\n", qPrintable(database.errorText()));
  }
  insert = {};
  const bool isCommitted = database.execute(isOk ? "END TRANSACTION" : "ROLLBACK TRANSACTION");
  return isOk && isCommitted;
}

} // namespace

bool DB_Legacy_Import::hadTable(DB_Table table) {
  return table != DB_Table::Devices;
}

bool DB_Legacy_Import::isOlderLayout(DB_Sqlite& database) {
  DB_Statement statement = database.prepare("SELECT DATA FROM `project`");
  return statement.isValid() && statement.step() == DB_Statement::Step::Row &&
         statement.text(0).toByteArray().contains(cOlderVersion);
}

bool DB_Legacy_Import::convert(DB_Sqlite& database, const QString& path) {
  const QString backup = path + QStringLiteral(".import");
  QFile::remove(backup);
  if (!QFile::copy(path, backup)) {
    return false;
  }
  std::printf("DB IMPORT...\n");
  bool isOk = true;
  for (const DB_Table_Row& row : DB_Tables::all()) {
    if (!hadTable(row.mTable)) {
      continue;
    }
    std::printf("DB IMPORT DATABASE %s...", row.mName);
    const QByteArray table = DB_Tables::quoted(row.mTable);
    isOk = database.execute(QByteArray("ALTER TABLE `") + row.mPlainName + "` RENAME TO " + table) && isOk;
    if (row.mTable != DB_Table::Resources) {
      isOk = scrambleRows(database, table) && isOk;
    }
    std::printf("OK\n");
  }
  for (const char* const statement : cTidyUp) {
    isOk = database.execute(statement) && isOk;
  }
  std::printf("DB IMPORT...FINISHED\n");
  return isOk;
}
