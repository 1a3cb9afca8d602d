#include "db/ProjectDatabase.h"

#include <QDateTime>

#include <utility>

using DB_Tables::quoted;

namespace {

const QByteArray cUsualCache = QByteArrayLiteral("-2000"); // KB
const QByteArray cWritingCache = QByteArrayLiteral("-100000");

} // namespace

bool ProjectDatabase::emptyTable(DB_Table table) {
  return mDatabase.execute("DELETE FROM " + quoted(table)) || fail(mDatabase.errorText());
}

bool ProjectDatabase::finish(DB_Table_Writer& writer, DB_Table table, bool isOk) {
  if (!writer.finish() || !isOk) {
    return fail(writer.errorText());
  }
  mKnownRows[static_cast<size_t>(table)] = std::move(writer.content());
  return true;
}

bool ProjectDatabase::writeSingle(DB_Sqlite& to, DB_Table table, const DB_Data_Base& record) {
  DB_Table_Writer writer(to, table, mRowsBefore[static_cast<size_t>(table)]);
  return finish(writer, table, writer.write({}, record.toData()));
}

bool ProjectDatabase::writeOrphans(DB_Table table, DB_Table_Writer& writer) {
  bool isOk = true;
  for (const QByteArray& data : mOrphans[static_cast<size_t>(table)]) {
    isOk = writer.write({}, data) && isOk;
  }
  return isOk;
}

bool ProjectDatabase::writeAddresses(DB_Sqlite& to) {
  const auto before = [this](DB_Table table) { return mRowsBefore[static_cast<size_t>(table)]; };
  DB_Table_Writer mains(to, DB_Table::Main_Groups, before(DB_Table::Main_Groups));
  DB_Table_Writer middles(to, DB_Table::Middle_Groups, before(DB_Table::Middle_Groups));
  DB_Table_Writer subs(to, DB_Table::Sub_Groups, before(DB_Table::Sub_Groups));
  bool isOk = true;
  for (const auto& main : mAddresses.mainGroups()) {
    isOk = mains.write({}, main->toData()) && isOk;
    for (const auto& middle : main->mMiddleGroups) {
      isOk = middles.write(main->mKey, middle->toData()) && isOk;
      for (const auto& sub : middle->mSubGroups) {
        isOk = subs.write(middle->mKey, sub->toData()) && isOk;
      }
    }
  }
  isOk = writeOrphans(DB_Table::Middle_Groups, middles) && isOk;
  isOk = writeOrphans(DB_Table::Sub_Groups, subs) && isOk;
  isOk = finish(mains, DB_Table::Main_Groups, isOk) && isOk;
  isOk = finish(middles, DB_Table::Middle_Groups, isOk) && isOk;
  isOk = finish(subs, DB_Table::Sub_Groups, isOk) && isOk;
  return isOk || fail(QStringLiteral("Error: recordWriteAddress"));
}

template <class Page>
bool ProjectDatabase::writePages(DB_Sqlite& to, DB_Table pageTable, DB_Table childTable,
                                 const DB_Page_List<Page>& list) {
  DB_Table_Writer children(to, childTable, mRowsBefore[static_cast<size_t>(childTable)]);
  DB_Table_Writer pages(to, pageTable, mRowsBefore[static_cast<size_t>(pageTable)]);
  bool isOk = true;
  for (const auto& page : list.pages()) {
    if (!pages.write({}, page->toData())) {
      return fail(isOk ? pages.errorText() : children.errorText());
    }
    for (const auto& child : page->mChildren) {
      if (!children.write(page->mGuid, child->toData())) {
        isOk = false;
        break;
      }
    }
  }
  isOk = writeOrphans(childTable, children) && isOk;
  isOk = finish(children, childTable, isOk);
  return isOk && finish(pages, pageTable, true);
}

/// With `Extent::All` rows after one that failed are written all the same: a save that failed leaves as much in the
/// working file as it can hold.
bool ProjectDatabase::writeRecords(DB_Sqlite& to, Extent extent) {
  mRowsBefore = std::exchange(mKnownRows, {});
  if (extent == Extent::All) {
    mRowsBefore = {};
  }
  // A table that does not fit is written to the disk twice, and waited for. The room is given back at the end.
  to.execute("PRAGMA cache_size=" + cWritingCache);
  to.execute("BEGIN TRANSACTION");
  bool isOk = writeAddresses(to);
  QString error = mLastError;
  const auto note = [&](bool isStepOk) {
    if (!isStepOk && isOk) {
      error = mLastError;
    }
    isOk = isStepOk && isOk;
  };
  for (const Single& single : singles()) {
    note(writeSingle(to, single.mTable, *single.mRecord));
  }
  note(writePages(to, DB_Table::Visu_Pages, DB_Table::Visu_Elements, mWidgetPages));
  note(writePages(to, DB_Table::Logic_Pages, DB_Table::Logic_Blocks, mFbPages));
  const bool isKept = isOk || extent == Extent::All;
  if (isKept && !to.execute("END TRANSACTION")) {
    // Nothing was committed (a full disk shows here): that is a failed save, and the next one must find no transaction.
    mLastError = to.errorText();
    note(false);
  }
  if (to.isInTransaction()) {
    to.execute("ROLLBACK TRANSACTION");
  }
  to.execute("PRAGMA cache_size=" + cUsualCache);
  mRowsBefore = {};
  if (!isOk) {
    mKnownRows = {};
    return fail(error);
  }
  mLastError.clear();
  return true;
}

bool ProjectDatabase::write(Extent extent) {
  if (mFileName.isEmpty()) {
    return fail(QStringLiteral("Empty Filename"));
  }
  if (!requireOpen()) {
    return false;
  }
  mLastError.clear();
  if (needsRebuild()) {
    return rebuild();
  }
  createTables(mDatabase);
  return writeRecords(mDatabase, extent);
}

bool ProjectDatabase::recordWriteAll(bool stampTime) {
  const qint64 previousTimestamp = mProject.mTimestamp;
  if (stampTime) {
    mProject.mTimestamp = QDateTime::currentSecsSinceEpoch();
  }
  const bool isOk = write(Extent::All);
  if (!isOk) {
    mProject.mTimestamp = previousTimestamp;
  }
  return isOk;
}

bool ProjectDatabase::recordWriteChanged() {
  // What a damaged file turns out to have lost is told at a save, where the user is there to read it.
  const DB_Load_Report report = mReport;
  const bool isOk = write(Extent::Changed);
  if (!isOk) {
    mReport = report;
  }
  return isOk;
}

bool ProjectDatabase::checkResourceName(const QString& name) {
  const qsizetype size = name.toUtf8().size();
  if (size < 1 || size > cResourceNameLimit) {
    return fail(tr("Der Name der Ressource muss 1 bis %1 Byte lang sein, er hat %2: \"%3\".")
                    .arg(cResourceNameLimit)
                    .arg(size)
                    .arg(name.left(60)));
  }
  return true;
}

bool ProjectDatabase::ressourceWriteRaw(const QString& name, const QByteArray& bytes) {
  if (!mDatabase.isOpen()) {
    return fail(QStringLiteral("ressourceWriteRaw: Database not open"));
  }
  if (bytes.isEmpty()) {
    return fail(QStringLiteral("ressourceWriteRaw: Error size/data"));
  }
  if (!checkResourceName(name) || !makeSound()) {
    return false;
  }
  mLastError.clear();
  mDatabase.execute("BEGIN TRANSACTION");
  if (!deleteResource(name)) {
    mDatabase.execute("ROLLBACK TRANSACTION");
    return false;
  }
  DB_Statement insert = mDatabase.prepare("INSERT INTO " + quoted(DB_Table::Resources) + "(FILENAME,DATA) VALUES(?,?)");
  const QByteArray nameBytes = name.toUtf8();
  const bool isDone = insert.isValid() && insert.bindText(1, nameBytes) && insert.bindBlob(2, bytes) &&
                      insert.step() == DB_Statement::Step::Done;
  if (!isDone) {
    mLastError = mDatabase.errorText();
  }
  insert = {};
  if (isDone && mDatabase.execute("END TRANSACTION")) {
    emit resourcesChanged();
    return true;
  }
  if (isDone) {
    mLastError = mDatabase.errorText();
  }
  mDatabase.execute("ROLLBACK TRANSACTION");
  return false;
}

bool ProjectDatabase::ressourceReadRaw(const QString& name, QByteArray& bytes) {
  bytes.clear();
  if (!requireOpen()) {
    return false;
  }
  DB_Statement select = mDatabase.prepare("SELECT DATA FROM " + quoted(DB_Table::Resources) + " WHERE FILENAME = ?");
  const QByteArray nameBytes = name.toUtf8();
  if (!select.isValid() || !select.bindText(1, nameBytes)) {
    return fail(mDatabase.errorText());
  }
  switch (select.step()) {
  case DB_Statement::Step::Row:
    bytes = select.blob(0).toByteArray();
    return true;
  case DB_Statement::Step::Done:
    return fail(tr("Die Ressource \"%1\" gibt es nicht.").arg(name.left(60)));
  case DB_Statement::Step::Error:
    break;
  }
  return fail(mDatabase.errorText());
}

bool ProjectDatabase::deleteResource(const QString& name) {
  DB_Statement statement = mDatabase.prepare("DELETE FROM " + quoted(DB_Table::Resources) + " WHERE FILENAME = ?");
  const QByteArray nameBytes = name.toUtf8();
  if (!statement.isValid() || !statement.bindText(1, nameBytes) || statement.step() != DB_Statement::Step::Done) {
    return fail(mDatabase.errorText());
  }
  return true;
}

void ProjectDatabase::tellDeleted() {
  if (mDatabase.changedRows() > 0) {
    emit resourcesChanged();
  }
}

bool ProjectDatabase::ressourceDelete(const QString& name) {
  if (!requireOpen()) {
    return false;
  }
  mLastError.clear();
  if (!makeSound() || !deleteResource(name)) {
    return false;
  }
  tellDeleted();
  return true;
}

bool ProjectDatabase::ressourceDeleteAll() {
  if (!requireOpen()) {
    return false;
  }
  mLastError.clear();
  if (!makeSound() || !emptyTable(DB_Table::Resources)) {
    return false;
  }
  tellDeleted();
  return true;
}

bool ProjectDatabase::ressourceList(QStringList& names) {
  std::vector<Resource_Size> sizes;
  const bool isOk = ressourceSizes(sizes);
  names.clear();
  for (const Resource_Size& resource : sizes) {
    names.append(resource.mName);
  }
  return isOk;
}

bool ProjectDatabase::ressourceSizes(std::vector<Resource_Size>& sizes) {
  sizes.clear();
  if (!requireOpen()) {
    return false;
  }
  // Without the order the engine walks the index of the names.
  DB_Statement select =
      mDatabase.prepare("SELECT FILENAME,length(DATA) FROM " + quoted(DB_Table::Resources) + " ORDER BY rowid");
  if (!select.isValid()) {
    return fail(mDatabase.errorText());
  }
  for (;;) {
    const DB_Statement::Step step = select.step();
    if (step == DB_Statement::Step::Row) {
      sizes.push_back({QString::fromUtf8(select.text(0)), select.number(1)});
    } else {
      return step == DB_Statement::Step::Done || fail(mDatabase.errorText());
    }
  }
}
