#include "fb/model/FB_Normaliser.h"

#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Positions.h"
#include "fb/model/FB_Types.h"

#include <algorithm>
#include <utility>

void FB_Normaliser::makeStandIn(DB_FB_Control& block) {
  block.mOriginalType = std::exchange(block.mType, FB_Types::cComment);
  block.mOriginalTitle = std::exchange(block.mTitle, {});
}

void FB_Normaliser::normalise(DB_FB_Control& block, Result& result) {
  const bool isStandIn = block.mType == FB_Types::cComment && block.mOriginalType != 0;
  if (isStandIn && FB_Types::find(block.mOriginalType)) {
    block.mType = std::exchange(block.mOriginalType, 0);
    block.mTitle = std::exchange(block.mOriginalTitle, {});
    ++result.mRestored;
  } else if (isStandIn) {
    ++result.mUnknown;
  } else if (!FB_Types::find(block.mType)) {
    makeStandIn(block);
    ++result.mUnknown;
  }
  const QPointF position = FB_Positions::clamped({block.mX, block.mY});
  block.mX = position.x();
  block.mY = position.y();
  if (!FB_Pins::isBuilt(block)) {
    FB_Pins::rebuild(block);
    ++result.mRebuilt;
  }
  if (const QString missing = FB_Pins::missingPins(block); !missing.isEmpty()) {
    result.mMissingPins.append(QStringLiteral("%1: %2").arg(FB_Geometry::title(block), missing));
  }
}

FB_Normaliser::Result FB_Normaliser::normalise(const DB_Page_List<DB_FB_Page>& pages) {
  Result result;
  using namespace FB_Page_List_Edits;
  for (const auto& page : pages.pages()) {
    page->mWidth = std::clamp(page->mWidth, cSizeMinimum, cSizeMaximum);
    page->mHeight = std::clamp(page->mHeight, cSizeMinimum, cSizeMaximum);
    for (const auto& block : page->mChildren) {
      const qsizetype told = result.mMissingPins.size();
      normalise(*block, result);
      if (result.mMissingPins.size() > told) {
        result.mMissingPins.last().prepend(page->mCaption + QStringLiteral(": "));
      }
    }
  }
  return result;
}
