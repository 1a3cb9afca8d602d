#include "db/DB_Widget.h"

void DB_Widget::fields(DB_Fields& fields) {
  fields.uuid("mGuid", mGuid);
  fields.uuid("mPageGuid", mPageGuid);
  fields.number("mType", mType);
  fields.text("mName", mName);
  fields.number("mX", mX);
  fields.number("mY", mY);
  fields.number("mWidth", mWidth);
  fields.number("mHeight", mHeight);
  fields.number("mTabOrder", mTabOrder);
  fields.flag("mVisible", mVisible, true);
  fields.flag("mLocked", mLocked);
  fields.text("mComment", mComment);
  fields.list("mParam", mParams);
  fields.list("mAddressList", mAddresses);
}
