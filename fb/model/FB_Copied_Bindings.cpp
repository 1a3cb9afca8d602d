#include "fb/model/FB_Copied_Bindings.h"

#include "base/Group_Address.h"
#include "db/DB_Bindings.h"

namespace {

using Kind = DB_Address_Binding::Kind;

/// The group address that the binding means in this project; null when it has none.
const DB_Address_Sub_Group* groupOf(const Address_Tree& tree, const DB_Address_Binding& binding) {
  if (binding.mKind != Kind::GroupAddress) {
    return nullptr;
  }
  const DB_Address_Sub_Group* const group = tree.subGroup(binding.mKey);
  return group ? group : tree.subGroup(Group_Address(binding.mMain, binding.mMiddle, binding.mSub));
}

/// Calls `onBinding` with each binding that the block reads.
template <class Block, class On_Binding>
void visitRead(Block& block, On_Binding&& onBinding) {
  for (auto& pin : block.mInputs) {
    onBinding(pin.mBinding);
  }
  onBinding(block.mDisableAddress);
}

} // namespace

FB_Copied_Bindings::FB_Copied_Bindings(const ProjectDatabase& database, const Blocks& blocks, bool keepOutputs)
    : mTree(database.mAddresses),
      mKeepOutputs(keepOutputs),
      mNames(database) {
  for (const auto& block : blocks) {
    visitRead(*block, [this](const DB_Address_Binding& binding) {
      if (binding.mKind != Kind::None && !binding.mKey.isNull()) {
        mRead.insert(binding.mKey);
      }
    });
  }
  makeVariables(blocks);
  DB_Bindings::visit(database, [this](const DB_Address_Binding& binding, const Address_Use&) {
    if (binding.mKind == Kind::Internal && !mVariables.contains(binding.mKey)) {
      mVariables.insert(binding.mKey, binding);
    }
  });
}

/// For each wire between copied blocks that cannot stay as it is.
void FB_Copied_Bindings::makeVariables(const Blocks& blocks) {
  for (const auto& block : blocks) {
    for (const DB_FB_Pin& pin : block->mOutputs) {
      const DB_Address_Binding& binding = pin.mBinding;
      const bool isWire = binding.mKind != Kind::None && mRead.contains(binding.mKey);
      const bool isKept = binding.mKind == Kind::GroupAddress && mKeepOutputs && groupOf(mTree, binding);
      if (isWire && !isKept && !mFresh.contains(binding.mKey)) {
        const bool isNamed = binding.mKind == Kind::Internal && !binding.mName.isEmpty();
        DB_Address_Binding variable =
            FB_Variables::make(mNames.take(isNamed ? binding.mName : FB_Variables::nameFor(*block, pin)));
        variable.mDpt = binding.mDpt;
        variable.mDptRaw = binding.mDptRaw;
        mFresh.insert(binding.mKey, variable);
      }
    }
  }
}

DB_Address_Binding FB_Copied_Bindings::target(const DB_Address_Binding& binding, bool isOutput) {
  const auto fresh = mFresh.constFind(binding.mKey);
  if (binding.mKind == Kind::None || fresh != mFresh.cend()) {
    return binding.mKind == Kind::None ? DB_Address_Binding() : *fresh;
  }
  if (isOutput && !mKeepOutputs) {
    return {};
  }
  if (binding.mKind == Kind::Internal) {
    return mVariables.value(binding.mKey);
  }
  DB_Address_Binding found;
  if (const DB_Address_Sub_Group* const group = groupOf(mTree, binding)) {
    found.bindTo(*group, mTree.addressOf(*group));
  } else {
    mMissing.insert(binding.mKey);
  }
  return found;
}

void FB_Copied_Bindings::adapt(DB_FB_Control& block) {
  visitRead(block, [this](DB_Address_Binding& binding) { binding = target(binding, false); });
  for (DB_FB_Pin& pin : block.mOutputs) {
    pin.mBinding = target(pin.mBinding, true);
  }
}
