#include "db/ProjectDatabase.h"

#include "db/DB_Legacy_Import.h"
#include "db/DB_Scramble.h"

#include <QFileInfo>

#include <algorithm>
#include <cstdio>

using DB_Tables::quoted;

namespace {

/// Null for records without a parent.
QUuid parentOf(const DB_Data_Base& /*record*/) {
  return {};
}
QUuid parentOf(const DB_Address_Middle_Group& record) {
  return record.mMainKey;
}
QUuid parentOf(const DB_Address_Sub_Group& record) {
  return record.mMiddleKey;
}
QUuid parentOf(const DB_FB_Control& record) {
  return record.mPageGuid;
}
QUuid parentOf(const DB_Widget& record) {
  return record.mPageGuid;
}

} // namespace

std::array<ProjectDatabase::Single, 8> ProjectDatabase::singles() {
  return {{{DB_Table::Project, &mProject},
           {DB_Table::Connections, &mConnections},
           {DB_Table::Module_Bus, &mM8800},
           {DB_Table::Mail, &mMail},
           {DB_Table::Styles, &mStyle},
           {DB_Table::Statistics, &mStatistic},
           {DB_Table::Telegram_Monitor, &mTgmMon},
           {DB_Table::Project_Generator, &mGenerator}}};
}

bool ProjectDatabase::fail(const QString& text) {
  mLastError = text;
  return false;
}

bool ProjectDatabase::requireOpen() {
  return mDatabase.isOpen() || fail(QStringLiteral("Database not open"));
}

void ProjectDatabase::close() {
  for (const Single& single : singles()) {
    single.mRecord->clearData();
  }
  mControllerInformations.clearData();
  mAddresses.clear();
  mWidgetPages.clear();
  mFbPages.clear();
  mReport = {};
  for (std::vector<QByteArray>& orphans : mOrphans) {
    orphans.clear();
  }
  mKnownRows = {};
  mNeedsRebuild = false;
  mFileName.clear();
  mDatabase.close();
}

bool ProjectDatabase::isOlderLayout(const QString& path) {
  DB_Sqlite database;
  return QFileInfo(path).size() > 0 && database.open(path, DB_Sqlite::Mode::Immutable) &&
         DB_Legacy_Import::isOlderLayout(database);
}

bool ProjectDatabase::open(const QString& path, DB_Sqlite::Mode mode) {
  const QFileInfo before(path);
  const bool isNew = !before.exists();
  const bool isEmpty = before.size() == 0;
  if (!mDatabase.open(path, mode)) {
    return fail(mDatabase.errorText());
  }
  if (isEmpty) {
    if (!isNew) {
      mReport.addFinding(tr("Die Datei ist leer."));
    }
    return true;
  }
  const auto isReadable = [this] {
    DB_Statement probe = mDatabase.prepare("select 1 from sqlite_master");
    return probe.isValid() && probe.step() != DB_Statement::Step::Error;
  };
  if (!isReadable()) {
    mLastError = mDatabase.errorText();
    // The engine refuses a file that is shorter than its header says, unless its schema may be written.
    mDatabase.execute("PRAGMA writable_schema=ON");
    if (!isReadable()) {
      mDatabase.close();
      return false;
    }
    mReport.addFinding(tr("Die Datei ist abgeschnitten oder ihr Verzeichnis beschädigt."));
  }
  if (noteMissingTables() == DB_Tables::cCount && !DB_Legacy_Import::isOlderLayout(mDatabase)) {
    mDatabase.close();
    return fail(tr("Die Datei ist kein Projekt des Quarna-Studio."));
  }
  noteForeignObjects();
  return true;
}

/// Triggers and views are never ours and could undo what is written.
void ProjectDatabase::noteForeignObjects() {
  DB_Statement select = mDatabase.prepare("SELECT name FROM sqlite_master WHERE type IN ('trigger','view')");
  while (select.isValid() && select.step() == DB_Statement::Step::Row) {
    mReport.addFinding(tr("Fremder Inhalt wird nicht übernommen: %1.").arg(QString::fromUtf8(select.text(0)).left(60)));
  }
}

/// The project file is copied as one file, so nothing of it may stand in a write-ahead log.
void ProjectDatabase::configure() {
  mDatabase.execute("PRAGMA synchronous=NORMAL");
  DB_Statement mode = mDatabase.prepare("PRAGMA journal_mode=DELETE");
  const bool isDelete = mode.isValid() && mode.step() == DB_Statement::Step::Row && mode.text(0) == "delete";
  mNeedsRebuild = mNeedsRebuild || !isDelete;
}

int ProjectDatabase::noteMissingTables(bool wasOlder) {
  int missing = 0;
  for (const DB_Table_Row& row : DB_Tables::all()) {
    const bool isExpected = !wasOlder || DB_Legacy_Import::hadTable(row.mTable);
    if (isExpected && !tableExists(row.mName)) {
      ++missing;
      if (DB_Tables::isRead(row.mTable)) {
        mReport.setMissing(row.mTable);
      }
    }
  }
  return missing;
}

/// What a half-way failed conversion left unreadable is told by the report; without a backup nothing was converted.
bool ProjectDatabase::convertOlderLayout(const QString& path) {
  mLegacy = true;
  const bool isWhole = DB_Legacy_Import::convert(mDatabase, path);
  mLegacy = false;
  mReport = {};
  noteMissingTables(true);
  if (!isWhole && DB_Legacy_Import::isOlderLayout(mDatabase)) {
    close();
    return fail(tr("Das ältere Projekt konnte nicht umgewandelt werden, seine Sicherungskopie \"%1.import\" ließ sich "
                   "nicht anlegen.")
                    .arg(path));
  }
  return true;
}

bool ProjectDatabase::openProject(const QString& path, bool allowConversion) {
  close();
  mLastError.clear();
  const bool isOlder = isOlderLayout(path);
  if (!open(path, DB_Sqlite::Mode::Create)) {
    mReport = {};
    return false;
  }
  mFileName = path;
  configure();
  if (isOlder && allowConversion && !convertOlderLayout(path)) {
    return false;
  }
  createTables(mDatabase);
  readAll();
  mNeedsRebuild = mNeedsRebuild || mReport.isDamaged();
  return true;
}

bool ProjectDatabase::openProjectReadOnly(const QString& path) {
  close();
  mLastError.clear();
  if (!open(path, DB_Sqlite::Mode::Immutable)) {
    mReport = {};
    return false;
  }
  mFileName = path;
  readAll();
  return true;
}

void ProjectDatabase::detach() {
  mDatabase.close();
}

bool ProjectDatabase::attach(const QString& path) {
  mFileName = path;
  if (!mDatabase.open(path, DB_Sqlite::Mode::ReadWrite)) {
    return fail(mDatabase.errorText());
  }
  configure();
  return true;
}

/// In one transaction: the disk is waited for once instead of for each table.
void ProjectDatabase::createTables(DB_Sqlite& database) {
  database.execute("BEGIN TRANSACTION");
  for (const DB_Table_Row& row : DB_Tables::all()) {
    database.execute("CREATE TABLE IF NOT EXISTS " + quoted(row.mTable) + '(' + DB_Tables::layout(row.mTable) + ')');
  }
  if (!database.execute("END TRANSACTION") && database.isInTransaction()) {
    database.execute("ROLLBACK TRANSACTION");
  }
}

bool ProjectDatabase::execute(const QByteArray& sql) {
  mLastError.clear();
  return requireOpen() && (mDatabase.execute(sql) || fail(mDatabase.errorText()));
}

bool ProjectDatabase::tableExists(const QByteArray& name) {
  DB_Statement statement = mDatabase.prepare("select 1 from sqlite_master where type='table' and name=?");
  return statement.isValid() && statement.bindText(1, name) && statement.step() == DB_Statement::Step::Row;
}

QByteArray ProjectDatabase::rowData(DB_Table table, QByteArrayView scrambled) {
  DB_Scramble::Findings findings;
  QByteArray data = DB_Scramble::unscramble(scrambled, &findings);
  if (!data.contains(DB_Data_Reader::cKeyEnd)) {
    mReport.addLostRow(table);
    return {};
  }
  if (!findings.mIsWhole || !data.endsWith(DB_Data_Reader::cValueEnd) || !(findings.mIsAscii || data.isValidUtf8())) {
    mReport.addPartialRow(table);
  }
  return data;
}

bool ProjectDatabase::readRows(DB_Table table, const Take_Row& take, int limit) {
  if (mReport.isMissing(table)) {
    return false; // in its place a foreign view may stand, which may have no end
  }
  DB_Statement statement = mDatabase.prepare("SELECT *,rowid FROM " + quoted(table));
  const bool isNumbered = statement.isValid();
  if (!isNumbered) {
    statement = mDatabase.prepare("SELECT * FROM " + quoted(table));
  }
  if (!statement.isValid()) {
    mReport.setUnreadable(table, mDatabase.errorText());
    return fail(mDatabase.errorText());
  }
  if (statement.columnCount() != (isNumbered ? 2 : 1) || statement.columnName(0) != "DATA") {
    mReport.setWrongLayout(table);
  }
  DB_Table_Writer::Content content;
  for (int row = 0;; ++row) {
    switch (statement.step()) {
    case DB_Statement::Step::Row: {
      if (limit > 0 && row == limit) {
        return true; // what follows is not known
      }
      const QByteArray data = rowData(table, statement.text(0));
      content.add(take(data), statement.number(statement.columnCount() - 1), data);
      break;
    }
    case DB_Statement::Step::Done:
      if (isNumbered) {
        mKnownRows[static_cast<size_t>(table)] = std::move(content);
      }
      return true;
    case DB_Statement::Step::Error:
      std::printf("sqlite3_step: %s\n", qPrintable(mDatabase.errorText()));
      mReport.setUnreadable(table, mDatabase.errorText());
      return fail(mDatabase.errorText());
    }
  }
}

bool ProjectDatabase::readSingle(DB_Table table, DB_Data_Base& record) {
  bool isFound = false;
  const auto take = [&](const QByteArray& data) {
    record.setData(data);
    isFound = true;
    return QUuid();
  };
  readRows(table, take, 1); // only the first row is ever read
  return isFound;
}

template <class Record>
void ProjectDatabase::readList(DB_Table table, const std::function<bool(std::unique_ptr<Record>)>& place) {
  DB_Text_Pool texts;
  readRows(table, [&](const QByteArray& data) {
    if (data.isEmpty()) {
      return QUuid();
    }
    auto record = std::make_unique<Record>();
    record->setData(data, texts);
    const QUuid parent = parentOf(*record);
    if (place(std::move(record))) {
      return parent;
    }
    mReport.addOrphan(table);
    Record orphan;
    orphan.setData(data);
    mOrphans[static_cast<size_t>(table)].push_back(orphan.toData());
    return QUuid();
  });
}

/// The rows of a table that we wrote are numbered from 1 without gaps; unlike counting, this reads no rows.
qint64 ProjectDatabase::highestRow(DB_Table table) {
  if (mReport.isMissing(table)) {
    return 0;
  }
  DB_Statement select = mDatabase.prepare("SELECT max(rowid) FROM " + quoted(table));
  const bool isFound = select.isValid() && select.step() == DB_Statement::Step::Row;
  return isFound ? select.number(0) : 0;
}

void ProjectDatabase::readAddresses() {
  mAddresses.beginChange();
  mAddresses.reserve(highestRow(DB_Table::Sub_Groups));
  const auto place = [this](auto group) { return mAddresses.add(std::move(group)) != nullptr; };
  readList<DB_Address_MainGroup>(DB_Table::Main_Groups, place);
  readList<DB_Address_Middle_Group>(DB_Table::Middle_Groups, place);
  readList<DB_Address_Sub_Group>(DB_Table::Sub_Groups, place);
  mAddresses.endChange();
}

/// Resources are kept in the file, but what of them is lost must be known before the first save.
void ProjectDatabase::checkResources() {
  if (!tableExists(DB_Tables::name(DB_Table::Resources))) {
    return;
  }
  DB_Statement select = prepareResource();
  if (!select.isValid()) {
    mReport.setWrongLayout(DB_Table::Resources);
    return;
  }
  bool isWhole = true;
  for (const qint64 row : resourceRows(isWhole)) {
    if (!select.bindNumber(1, row) || select.step() != DB_Statement::Step::Row) {
      mReport.addLostRow(DB_Table::Resources);
    }
    select.reset();
  }
  if (!isWhole) {
    mReport.setUnreadable(DB_Table::Resources, mDatabase.errorText());
  }
}

DB_Statement ProjectDatabase::prepareResource() {
  return mDatabase.prepare("SELECT FILENAME,DATA FROM " + quoted(DB_Table::Resources) + " WHERE rowid=?");
}

/// Where a broken page stops the walk from the front, what lies behind it is walked from the end.
std::vector<qint64> ProjectDatabase::resourceRows(bool& isWhole) {
  std::vector<qint64> rows;
  const auto walk = [&](const QByteArray& order) {
    DB_Statement select =
        mDatabase.prepare("SELECT rowid FROM " + quoted(DB_Table::Resources) + " NOT INDEXED ORDER BY rowid " + order);
    const size_t known = rows.size();
    while (select.isValid()) {
      const DB_Statement::Step step = select.step();
      if (step != DB_Statement::Step::Row) {
        return step == DB_Statement::Step::Done;
      }
      const qint64 row = select.number(0);
      if (known > 0 && row == rows[known - 1]) {
        return false;
      }
      rows.push_back(row);
    }
    return false;
  };
  isWhole = walk("ASC");
  if (!isWhole) {
    walk("DESC");
  }
  return rows;
}

void ProjectDatabase::readAll() {
  readAddresses();
  for (const Single& single : singles()) {
    readSingle(single.mTable, *single.mRecord);
  }
  const auto readPages = [this]<class Page>(DB_Page_List<Page>& list, DB_Table pageTable, DB_Table childTable) {
    readList<Page>(pageTable, [&](std::unique_ptr<Page> page) {
      list.appendPage(std::move(page));
      return true;
    });
    readList<typename Page::Child>(childTable, [&](std::unique_ptr<typename Page::Child> child) {
      return list.appendChild(std::move(child)) != nullptr;
    });
  };
  readPages(mWidgetPages, DB_Table::Visu_Pages, DB_Table::Visu_Elements);
  readPages(mFbPages, DB_Table::Logic_Pages, DB_Table::Logic_Blocks);
  checkResources();
}

DB_Widget* ProjectDatabase::findWidgetByName(const QString& name) const {
  for (const auto& page : mWidgetPages.pages()) {
    const auto at = std::find_if(page->mChildren.begin(), page->mChildren.end(),
                                 [&name](const auto& widget) { return widget->mName == name; });
    if (at != page->mChildren.end()) {
      return at->get();
    }
  }
  return nullptr;
}
