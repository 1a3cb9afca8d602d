#include "db/DB_Style.h"

DB_Style::DB_Style() : mSlots(cSlotCount) {}

void DB_Style_Page::fields(DB_Fields& fields) {
  fields.uuid("mPageGuid", mPageGuid);
  fields.flag("mEnabled", mEnabled, true);
  fields.text("mBackgroundColor", mBackgroundColor);
  fields.text("mImageBackground", mImageBackground);
  fields.text("mImageOverlay", mImageOverlay);
}

void DB_Style_Area::fields(DB_Fields& fields) {
  fields.text("mColorFont", mColorFont);
  fields.text("mColorBackground", mColorBackground);
  fields.text("mBackgroundImage", mBackgroundImage);
  fields.number("mTransparency", mTransparency);
}

void DB_Style_Slot::fields(DB_Fields& fields) {
  fields.text("mName", mName);
  fields.flag("mActive", mActive);
  fields.number("mIconTheme", mIconTheme);
  fields.nested("mCommon", mCommon);
  fields.number("mPopupIconThemeDialog", mPopupIconThemeDialog);
  fields.number("mPopupIconThemeTitle", mPopupIconThemeTitle);
  fields.nested("mPopupTitle", mPopupTitle);
  fields.nested("mPopup", mPopup);
  fields.nested("mBlock", mBlock);
  fields.nested("mBlockHeader", mBlockHeader);
  fields.nested("mBlockFooter", mBlockFooter);
  fields.nested("mHouseCommon", mHouseCommon);
  fields.nested("mHouseHeader", mHouseHeader);
  fields.nested("mHouseFooter", mHouseFooter);
  fields.text("mHouseFooterColorOn", mHouseFooterColorOn);
  fields.text("mHouseFooterColorOff", mHouseFooterColorOff);
  fields.nested("mHouseChangePageButton", mHouseChangePageButton);
  fields.number("mImageFrameTheme", mImageFrameTheme);
  fields.nested("mImageFrame", mImageFrame);
  fields.list("mPage", mPages);
}

void DB_Style::fields(DB_Fields& fields) {
  fields.number("mCurrent", mCurrent, -1);
  fields.list("mSlot", mSlots);
  mSlots.resize(cSlotCount);
}
