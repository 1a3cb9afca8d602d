#pragma once

#include "db/Address_Tree.h"
#include "db/Undo_Adapter.h"

/// The address tree as an owner of records in the history: groups of all three levels, by key.
class Address_Undo : public Undo_Adapter {
public:
  explicit Address_Undo(Address_Tree& tree) : mTree(tree) {}

  void reset() override { mTree.beginChange(); }
  bool apply(const QUuid& id, const DB_Data_Base& record) override;
  [[nodiscard]] std::unique_ptr<DB_Data_Base> find(const QUuid& id) const override;
  bool create(const DB_Data_Base& record, qsizetype place) override;
  bool remove(const QUuid& id) override;
  void finish() override { mTree.endChange(); }
  [[nodiscard]] qsizetype placeOf(const QUuid& id) const override;
  bool move(const QUuid& id, qsizetype place) override;

private:
  Address_Tree& mTree;
};
