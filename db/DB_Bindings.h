#pragma once

#include "db/ProjectDatabase.h"

/// The one walk over every binding of a project: of logic blocks inputs, outputs and the address that disables the
/// block, then of visualisation elements; page by page, in their order.
namespace DB_Bindings {

/// Calls `onBinding` with each binding of a block.
template <class Block, class On_Binding>
void visitBlock(Block& block, On_Binding&& onBinding) {
  for (auto& pin : block.mInputs) {
    onBinding(pin.mBinding);
  }
  for (auto& pin : block.mOutputs) {
    onBinding(pin.mBinding);
  }
  onBinding(block.mDisableAddress);
}

/// Calls `onBinding` with each binding of the project.
template <class On_Binding>
void visit(ProjectDatabase& database, On_Binding&& onBinding) {
  for (const auto& page : database.mFbPages.pages()) {
    for (const auto& block : page->mChildren) {
      visitBlock(*block, onBinding);
    }
  }
  for (const auto& page : database.mWidgetPages.pages()) {
    for (const auto& element : page->mChildren) {
      for (DB_Address_Binding& binding : element->mAddresses) {
        onBinding(binding);
      }
    }
  }
}

} // namespace DB_Bindings
