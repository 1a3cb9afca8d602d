#include "db/DB_Project_Generator.h"

void DB_Project_Generator::Rule::fields(DB_Fields& fields) {
  fields.text("mPattern", mPattern);
  fields.number("mKind", mKind);
  fields.text("mResult", mResult);
  fields.flag("mActive", mActive, true);
}

void DB_Project_Generator::Address::fields(DB_Fields& fields) {
  fields.uuid("mAddressKey", mAddressKey);
  fields.text("mRole", mRole);
}

void DB_Project_Generator::Element::fields(DB_Fields& fields) {
  fields.text("mCaption", mCaption);
  fields.text("mTrade", mTrade);
  fields.number("mBlockType", mBlockType);
  fields.number("mWidgetType", mWidgetType);
  fields.list("mAddress", mAddresses);
}

void DB_Project_Generator::Room::fields(DB_Fields& fields) {
  fields.text("mCaption", mCaption);
  fields.list("mElement", mElements);
}

void DB_Project_Generator::Floor::fields(DB_Fields& fields) {
  fields.text("mCaption", mCaption);
  fields.list("mRoom", mRooms);
}

void DB_Project_Generator::fields(DB_Fields& fields) {
  fields.number("mOrientation", mOrientation);
  fields.list("mRule", mRules);
  fields.list("mFloor", mFloors);
}
