#include "db/DB_FB_Page.h"

void DB_FB_Page::fields(DB_Fields& fields) {
  fields.uuid("mGuid", mGuid);
  fields.text("mCaption", mCaption);
  fields.text("mComment", mComment);
  fields.flag("mActive", mActive, true);
  fields.number("mControllerIndex", mControllerIndex);
  fields.number("mWidth", mWidth, cDefaultWidth);
  fields.number("mHeight", mHeight, cDefaultHeight);
}
