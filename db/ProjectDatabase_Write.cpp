#include "db/DB_Scramble.h"
#include "db/ProjectDatabase.h"

#include <QDateTime>

using DB_Tables::quoted;

DB_Statement ProjectDatabase::prepareInsert(DB_Table table) {
  DB_Statement insert = mDatabase.prepare("INSERT INTO " + quoted(table) + "(DATA) VALUES(?)");
  if (!insert.isValid()) {
    mLastError = mDatabase.errorText();
  }
  return insert;
}

bool ProjectDatabase::writeRow(DB_Statement& insert, const QByteArray& data) {
  // On a full disk the engine itself takes the transaction back; rows written after that would stand beside the old
  // ones.
  if (!insert.isValid() || !mDatabase.isInTransaction()) {
    return false;
  }
  const QByteArray scrambled = DB_Scramble::scramble(data);
  const bool isDone = insert.bindText(1, scrambled) && insert.step() == DB_Statement::Step::Done;
  if (!isDone) {
    mLastError = mDatabase.errorText();
  }
  insert.reset();
  return isDone;
}

bool ProjectDatabase::beginTable(DB_Table table) {
  return mDatabase.isInTransaction() && emptyTable(table);
}

bool ProjectDatabase::emptyTable(DB_Table table) {
  return mDatabase.execute("DELETE FROM " + quoted(table)) || fail(mDatabase.errorText());
}

bool ProjectDatabase::writeSingle(DB_Table table, const DB_Data_Base& record) {
  if (!requireOpen()) {
    return false;
  }
  if (!mDatabase.isInTransaction()) {
    return false;
  }
  mDatabase.execute("DELETE FROM " + quoted(table));
  mLastError.clear();
  DB_Statement insert = prepareInsert(table);
  return writeRow(insert, record.toData());
}

bool ProjectDatabase::writeOrphans(DB_Table table, DB_Statement& insert) {
  bool isOk = true;
  for (const QByteArray& data : mOrphans[static_cast<size_t>(table)]) {
    isOk = writeRow(insert, data) && isOk;
  }
  return isOk;
}

bool ProjectDatabase::writeAddresses() {
  bool isOk = true;
  for (const DB_Table table : {DB_Table::Main_Groups, DB_Table::Middle_Groups, DB_Table::Sub_Groups}) {
    isOk = beginTable(table) && isOk;
  }
  DB_Statement insertMain = prepareInsert(DB_Table::Main_Groups);
  DB_Statement insertMiddle = prepareInsert(DB_Table::Middle_Groups);
  DB_Statement insertSub = prepareInsert(DB_Table::Sub_Groups);
  for (const auto& main : mAddresses.mainGroups()) {
    isOk = writeRow(insertMain, main->toData()) && isOk;
    for (const auto& middle : main->mMiddleGroups) {
      isOk = writeRow(insertMiddle, middle->toData()) && isOk;
      for (const auto& sub : middle->mSubGroups) {
        isOk = writeRow(insertSub, sub->toData()) && isOk;
      }
    }
  }
  isOk = writeOrphans(DB_Table::Middle_Groups, insertMiddle) && isOk;
  isOk = writeOrphans(DB_Table::Sub_Groups, insertSub) && isOk;
  return isOk || fail(QStringLiteral("Error: recordWriteAddress"));
}

template <class Page>
bool ProjectDatabase::writePages(DB_Table pageTable, DB_Table childTable, const DB_Page_List<Page>& list) {
  bool isOk = beginTable(childTable);
  isOk = beginTable(pageTable) && isOk;
  DB_Statement insertPage = prepareInsert(pageTable);
  DB_Statement insertChild = prepareInsert(childTable);
  for (const auto& page : list.pages()) {
    if (!writeRow(insertPage, page->toData())) {
      return false;
    }
    for (const auto& child : page->mChildren) {
      if (!writeRow(insertChild, child->toData())) {
        isOk = false;
        break;
      }
    }
  }
  return writeOrphans(childTable, insertChild) && isOk;
}

bool ProjectDatabase::recordWriteAll(bool stampTime) {
  if (mFileName.isEmpty()) {
    return fail(QStringLiteral("Empty Filename"));
  }
  if (!requireOpen()) {
    return false;
  }
  mLastError.clear();
  if (!rebuild()) {
    return false;
  }
  createTables(mDatabase);
  const qint64 previousTimestamp = mProject.mTimestamp;
  if (stampTime) {
    mProject.mTimestamp = QDateTime::currentSecsSinceEpoch();
  }
  mDatabase.execute("BEGIN TRANSACTION");
  bool isOk = writeAddresses();
  QString error = mLastError;
  const auto note = [&](bool isStepOk) {
    if (!isStepOk && isOk) {
      error = mLastError;
    }
    isOk = isStepOk && isOk;
  };
  for (const Single& single : singles()) {
    note(writeSingle(single.mTable, *single.mRecord));
  }
  note(writePages(DB_Table::Visu_Pages, DB_Table::Visu_Elements, mWidgetPages));
  note(writePages(DB_Table::Logic_Pages, DB_Table::Logic_Blocks, mFbPages));
  if (!mDatabase.execute("END TRANSACTION")) {
    // Nothing was committed (a full disk shows here): that is a failed save, and the next one must find no transaction.
    mLastError = mDatabase.errorText();
    note(false);
    if (mDatabase.isInTransaction()) {
      mDatabase.execute("ROLLBACK TRANSACTION");
    }
  }
  if (!isOk) {
    mProject.mTimestamp = previousTimestamp;
    return fail(error);
  }
  mLastError.clear();
  return true;
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
  if (!checkResourceName(name) || !rebuild()) {
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
  if (!rebuild() || !deleteResource(name)) {
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
  if (!rebuild() || !emptyTable(DB_Table::Resources)) {
    return false;
  }
  tellDeleted();
  return true;
}

bool ProjectDatabase::ressourceList(QStringList& names) {
  names.clear();
  if (!requireOpen()) {
    return false;
  }
  // Without the order the engine walks the index of the names.
  DB_Statement select = mDatabase.prepare("SELECT FILENAME FROM " + quoted(DB_Table::Resources) + " ORDER BY rowid");
  if (!select.isValid()) {
    return fail(mDatabase.errorText());
  }
  for (;;) {
    const DB_Statement::Step step = select.step();
    if (step == DB_Statement::Step::Row) {
      names.append(QString::fromUtf8(select.text(0)));
    } else {
      return step == DB_Statement::Step::Done || fail(mDatabase.errorText());
    }
  }
}
