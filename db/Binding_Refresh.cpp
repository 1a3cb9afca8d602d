#include "db/Binding_Refresh.h"

#include "db/DB_Bindings.h"
#include "db/ProjectDatabase.h"

namespace {

void refresh(const Address_Tree& tree, DB_Address_Binding& binding) {
  const bool isAddress = binding.mKind == DB_Address_Binding::Kind::GroupAddress;
  if (const DB_Address_Sub_Group* const group = isAddress ? tree.subGroup(binding.mKey) : nullptr) {
    binding.bindTo(*group, tree.addressOf(*group));
  }
}

} // namespace

void Binding_Refresh::all(ProjectDatabase& database) {
  DB_Bindings::visit(database, [&tree = database.mAddresses](DB_Address_Binding& binding, const Address_Use&) {
    refresh(tree, binding);
  });
}

void Binding_Refresh::one(ProjectDatabase& database, const QUuid& key) {
  DB_Bindings::visit(database, [&tree = database.mAddresses, &key](DB_Address_Binding& binding, const Address_Use&) {
    if (binding.mKey == key) {
      refresh(tree, binding);
    }
  });
}

void Binding_Refresh::block(const Address_Tree& tree, DB_FB_Control& block) {
  DB_Bindings::visitOwner(block, [&tree](DB_Address_Binding& binding) { refresh(tree, binding); });
}
