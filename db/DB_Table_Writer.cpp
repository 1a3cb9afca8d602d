#include "db/DB_Table_Writer.h"

#include "db/DB_Scramble.h"

#include <algorithm>

using DB_Tables::quoted;

namespace {

quint64 digestOf(QByteArrayView data) {
  return qHashBits(data.data(), static_cast<size_t>(data.size()));
}

} // namespace

void DB_Table_Writer::Content::add(const QUuid& parent, qint64 number, QByteArrayView data) {
  mRows[parent].push_back({number, digestOf(data)});
  mHighest = std::max(mHighest, number);
}

DB_Table_Writer::DB_Table_Writer(DB_Sqlite& database, DB_Table table, const std::optional<Content>& present)
    : mDatabase(database),
      mTable(table),
      mPresent(present.value_or(Content())) {
  mWritten.mRows.reserve(mPresent.mRows.size());
  mWritten.mHighest = mPresent.mHighest;
  mIsReady = mDatabase.isInTransaction() && (present || mDatabase.execute("DELETE FROM " + quoted(mTable)));
  if (!mIsReady) {
    fail();
  }
}

bool DB_Table_Writer::fail() {
  if (mErrorText.isEmpty()) {
    mErrorText = mDatabase.errorText();
  }
  return false;
}

bool DB_Table_Writer::put(DB_Statement& statement, const char* sql, const QByteArray& data, qint64 number) {
  if (!statement.isValid()) {
    statement = mDatabase.prepare(QByteArray(sql).replace("TABLE", quoted(mTable)));
  }
  const QByteArray scrambled = DB_Scramble::scramble(data);
  const bool isDone = statement.isValid() && statement.bindText(1, scrambled) && statement.bindNumber(2, number) &&
                      statement.step() == DB_Statement::Step::Done && mDatabase.changedRows() == 1;
  if (!isDone) {
    fail();
  }
  statement.reset();
  return isDone;
}

bool DB_Table_Writer::write(const QUuid& parent, const QByteArray& data) {
  // On a full disk the engine itself takes the transaction back; rows written after that would stand beside the old
  // ones.
  if (!isReady()) {
    return false;
  }
  const quint64 digest = digestOf(data);
  std::vector<Row>& siblings = mWritten.mRows[parent];
  const auto present = mPresent.mRows.constFind(parent);
  if (present != mPresent.mRows.constEnd() && siblings.size() < present->size()) {
    const Row& before = (*present)[siblings.size()];
    siblings.push_back({before.mNumber, digest});
    return before.mDigest == digest || put(mUpdate, "UPDATE TABLE SET DATA=? WHERE rowid=?", data, before.mNumber);
  }
  siblings.push_back({++mWritten.mHighest, digest});
  return put(mInsert, "INSERT INTO TABLE(DATA,rowid) VALUES(?,?)", data, mWritten.mHighest);
}

bool DB_Table_Writer::finish() {
  if (!isReady()) {
    return false;
  }
  DB_Statement remove = mDatabase.prepare("DELETE FROM " + quoted(mTable) + " WHERE rowid=?");
  for (auto present = mPresent.mRows.constBegin(); present != mPresent.mRows.constEnd(); ++present) {
    const auto written = mWritten.mRows.constFind(present.key());
    for (size_t i = written == mWritten.mRows.constEnd() ? 0 : written->size(); i < present->size(); ++i) {
      if (!remove.isValid() || !remove.bindNumber(1, (*present)[i].mNumber) ||
          remove.step() != DB_Statement::Step::Done) {
        return fail();
      }
      remove.reset();
    }
  }
  return true;
}
