#include "db/Address_Undo.h"

namespace {

template <class Group>
bool addAs(Address_Tree& tree, const DB_Data_Base& record, qsizetype place) {
  const auto* const group = dynamic_cast<const Group*>(&record);
  return group && tree.add(std::make_unique<Group>(*group), place);
}

} // namespace

bool Address_Undo::apply(const QUuid& id, const DB_Data_Base& record) {
  return mTree.change(id, [&record](DB_Data_Base& present) { present.assign(record); });
}

std::unique_ptr<DB_Data_Base> Address_Undo::find(const QUuid& id) const {
  const DB_Data_Base* const record = mTree.record(id);
  return record ? record->clone() : nullptr;
}

bool Address_Undo::create(const DB_Data_Base& record, qsizetype place) {
  return addAs<DB_Address_Sub_Group>(mTree, record, place) || addAs<DB_Address_Middle_Group>(mTree, record, place) ||
         addAs<DB_Address_MainGroup>(mTree, record, place);
}

bool Address_Undo::remove(const QUuid& id) {
  return mTree.take(id) != nullptr;
}

qsizetype Address_Undo::placeOf(const QUuid& id) const {
  return mTree.placeOf(id);
}

bool Address_Undo::move(const QUuid& id, qsizetype place) {
  // The number decides the place, up to groups of the same number.
  return mTree.change(
      id, [](DB_Data_Base&) {}, place);
}
