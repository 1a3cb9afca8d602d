#include "fb/model/FB_Normaliser.h"

#include "fb/model/FB_Types.h"

#include <utility>

FB_Normaliser::Result FB_Normaliser::normalise(const DB_Page_List<DB_FB_Page>& pages) {
  Result result;
  for (const auto& page : pages.pages()) {
    for (const auto& block : page->mChildren) {
      const bool isStandIn = block->mType == FB_Types::cComment && block->mOriginalType != 0;
      if (isStandIn && FB_Types::find(block->mOriginalType)) {
        block->mType = std::exchange(block->mOriginalType, 0);
        block->mTitle = std::exchange(block->mOriginalTitle, {});
        ++result.mRestored;
      } else if (isStandIn) {
        ++result.mUnknown;
      } else if (!FB_Types::find(block->mType)) {
        block->mOriginalType = std::exchange(block->mType, FB_Types::cComment);
        block->mOriginalTitle = std::exchange(block->mTitle, {});
        ++result.mUnknown;
      }
    }
  }
  return result;
}
