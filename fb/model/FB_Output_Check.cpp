#include "fb/model/FB_Output_Check.h"

#include "base/Decimal_Text.h"
#include "db/DB_Bindings.h"
#include "db/Page_Tree_Model.h"
#include "fb/model/FB_Types.h"

#include <QCoreApplication>

namespace {

/// All outputs that write the same.
struct Writers {
  const DB_Address_Binding* mBinding;
  std::vector<Address_Use> mOutputs;
};

/// An address without a key, as older records have it, is known by its numbers.
std::pair<QUuid, Group_Address> identityOf(const DB_Address_Binding& binding) {
  return {binding.mKey,
          binding.mKey.isNull() ? Group_Address(binding.mMain, binding.mMiddle, binding.mSub) : Group_Address()};
}

std::vector<Writers> allWriters(const ProjectDatabase& database) {
  std::vector<Writers> writers;
  QHash<std::pair<QUuid, Group_Address>, size_t> known;
  DB_Bindings::visit(database, [&](const DB_Address_Binding& binding, const Address_Use& use) {
    const auto identity = identityOf(binding);
    const bool isBound = binding.mKind != DB_Address_Binding::Kind::None && identity != decltype(identity)();
    if (use.mPlace != Address_Use::Place::Output || !isBound) {
      return;
    }
    const auto found = known.constFind(identity);
    const size_t at = found != known.cend() ? *found : *known.insert(identity, writers.size());
    if (at == writers.size()) {
      writers.push_back({&binding, {}});
    }
    writers[at].mOutputs.push_back(use);
  });
  return writers;
}

} // namespace

Address_Use_Model::Rows FB_Output_Check::rows(const ProjectDatabase& database) {
  Address_Use_Model::Rows rows;
  for (const Writers& writers : allWriters(database)) {
    if (writers.mOutputs.size() < 2) {
      continue;
    }
    const DB_Address_Binding& binding = *writers.mBinding;
    std::optional<Group_Address> address;
    if (binding.mKind == DB_Address_Binding::Kind::GroupAddress) {
      address = Group_Address(binding.mMain, binding.mMiddle, binding.mSub);
    }
    const QString reason = QCoreApplication::translate("FB_Output_Check", "%1 Ausgänge schreiben hierauf.")
                               .arg(Decimal_Text::count(static_cast<qsizetype>(writers.mOutputs.size())));
    for (const Address_Use& use : writers.mOutputs) {
      rows.push_back({use, binding.mKey, Address_Usage::text(database, use, FB_Types::name),
                      Page_Tree_Model::pageIcon(database, use.mPageGuid), address, binding.mName.simplified(), reason});
    }
  }
  return rows;
}

int FB_Output_Check::subjects(const Address_Use_Model::Rows& rows) {
  int count = 0;
  for (size_t i = 0; i < rows.size(); ++i) {
    const bool isSame = i > 0 && rows[i - 1].mKey == rows[i].mKey && rows[i - 1].mAddress == rows[i].mAddress;
    count += isSame ? 0 : 1;
  }
  return count;
}
