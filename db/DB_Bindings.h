#pragma once

#include "db/Address_Use.h"
#include "db/ProjectDatabase.h"

#include <type_traits>
#include <utility>

/// The one walk over every binding of a project: of logic blocks inputs, outputs and the address that disables the
/// block, then of visualisation elements; page by page, in their order.
namespace DB_Bindings {

/// Calls `onBinding` with each binding of a block, or of an element.
template <class On_Binding>
void visitOwner(DB_FB_Control& block, On_Binding&& onBinding) {
  for (auto* const pins : {&block.mInputs, &block.mOutputs}) {
    for (DB_FB_Pin& pin : *pins) {
      onBinding(pin.mBinding);
    }
  }
  onBinding(block.mDisableAddress);
}

template <class On_Binding>
void visitOwner(DB_Widget& element, On_Binding&& onBinding) {
  for (DB_Address_Binding& binding : element.mAddresses) {
    onBinding(binding);
  }
}

/// Calls `onBinding` with each binding of the project and its place; of a constant one with constant bindings.
template <class Database, class On_Binding>
void visit(Database& database, On_Binding&& onBinding) {
  using Binding = std::conditional_t<std::is_const_v<Database>, const DB_Address_Binding&, DB_Address_Binding&>;
  using Place = Address_Use::Place;
  for (const auto& page : database.mFbPages.pages()) {
    for (const auto& block : page->mChildren) {
      Address_Use use{Place::Input, 0, page->mGuid, block->mGuid};
      for (const auto& [place, pins] : {std::pair(Place::Input, &block->mInputs), {Place::Output, &block->mOutputs}}) {
        use.mPlace = place;
        use.mIndex = 0;
        for (DB_FB_Pin& pin : *pins) {
          onBinding(static_cast<Binding>(pin.mBinding), use);
          ++use.mIndex;
        }
      }
      use.mPlace = Place::Disable;
      use.mIndex = 0;
      onBinding(static_cast<Binding>(block->mDisableAddress), use);
    }
  }
  for (const auto& page : database.mWidgetPages.pages()) {
    for (const auto& element : page->mChildren) {
      Address_Use use{Place::Element, 0, page->mGuid, element->mGuid};
      for (DB_Address_Binding& binding : element->mAddresses) {
        onBinding(static_cast<Binding>(binding), use);
        ++use.mIndex;
      }
    }
  }
}

} // namespace DB_Bindings
