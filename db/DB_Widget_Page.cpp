#include "db/DB_Widget_Page.h"

void DB_Widget_Page::fields(DB_Fields& fields) {
  fields.uuid("mGuid", mGuid);
  fields.text("mCaption", mCaption);
  fields.text("mComment", mComment);
  int orientation = static_cast<int>(mOrientation);
  fields.number("mOrientation", orientation);
  const bool isKnown = orientation >= 0 && orientation <= static_cast<int>(Orientation::Portrait);
  mOrientation = isKnown ? static_cast<Orientation>(orientation) : Orientation::Landscape;
  fields.number("mWidth", mWidth, cLongSide);
  fields.number("mHeight", mHeight, cShortSide);
  fields.text("mBackgroundColor", mBackgroundColor);
  fields.text("mBackgroundImage", mBackgroundImage);
  fields.uuid("mBackPageGuid", mBackPageGuid);
  fields.flag("mUseHouseState", mUseHouseState);
  fields.list("mGuideHorizontal", mGuidesHorizontal);
  fields.list("mGuideVertical", mGuidesVertical);
}
