#pragma once

#include "db/ProjectDatabase.h"
#include "db/Undo_Adapter.h"

/// The eight single records of a project as owners in the history, one adapter for each.
///
/// Of the project record the fields that saving and the controller write (version, name, time stamp, identification)
/// are no part of a step: undoing leaves them as they are.
class Single_Record_Undo : public Undo_Adapter {
public:
  Single_Record_Undo(ProjectDatabase& database, DB_Table table);

  /// The id that stands for the record, as there is only one.
  [[nodiscard]] static QUuid id() { return {}; }

  bool apply(const QUuid& id, const DB_Data_Base& record) override;
  [[nodiscard]] std::unique_ptr<DB_Data_Base> find(const QUuid& id) const override;
  bool create(const DB_Data_Base&, qsizetype) override { return false; }
  bool remove(const QUuid&) override { return false; }
  [[nodiscard]] bool isEqual(const DB_Data_Base& a, const DB_Data_Base& b) const override;
  [[nodiscard]] qsizetype placeOf(const QUuid&) const override { return -1; }
  bool move(const QUuid&, qsizetype) override { return false; }

private:
  ProjectDatabase& mDatabase;
  DB_Table mTable;
  DB_Data_Base& mRecord;
};
