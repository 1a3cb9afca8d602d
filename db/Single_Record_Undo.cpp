#include "db/Single_Record_Undo.h"

#include <algorithm>

namespace {

DB_Data_Base& recordOf(ProjectDatabase& database, DB_Table table) {
  const auto singles = database.singles();
  const auto at = std::find_if(singles.cbegin(), singles.cend(),
                               [table](const ProjectDatabase::Single& single) { return single.mTable == table; });
  Q_ASSERT(at != singles.cend());
  return *at->mRecord;
}

/// The fields that saving and the controller write, from one project record to another.
void keepWrittenFields(DB_Data_Base& to, const DB_Data_Base& from) {
  auto* const target = dynamic_cast<DB_Project*>(&to);
  const auto* const source = dynamic_cast<const DB_Project*>(&from);
  if (target && source) {
    target->mVersion = source->mVersion;
    target->mName = source->mName;
    target->mTimestamp = source->mTimestamp;
    target->mProjectId = source->mProjectId;
    target->mGeneration = source->mGeneration;
    target->mControllerProjectId = source->mControllerProjectId;
  }
}

} // namespace

Single_Record_Undo::Single_Record_Undo(ProjectDatabase& database, DB_Table table)
    : mDatabase(database),
      mTable(table),
      mRecord(recordOf(database, table)) {}

bool Single_Record_Undo::apply(const QUuid&, const DB_Data_Base& record) {
  const std::unique_ptr<DB_Data_Base> before = mRecord.clone();
  if (!mRecord.assign(record)) {
    return false;
  }
  keepWrittenFields(mRecord, *before);
  emit mDatabase.recordChanged(mTable);
  return true;
}

std::unique_ptr<DB_Data_Base> Single_Record_Undo::find(const QUuid&) const {
  return mRecord.clone();
}

bool Single_Record_Undo::isEqual(const DB_Data_Base& a, const DB_Data_Base& b) const {
  const std::unique_ptr<DB_Data_Base> other = b.clone();
  keepWrittenFields(*other, a);
  return a.isEqual(*other);
}
