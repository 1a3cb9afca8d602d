#include "db/DB_Address_Groups.h"

void DB_Address_Sub_Group::fields(DB_Fields& fields) {
  fields.uuid("mKey", mKey);
  fields.uuid("mMiddleKey", mMiddleKey);
  fields.number("mNumber", mNumber);
  fields.text("mName", mName);
  fields.text("mDescription", mDescription);
  fields.number("mDptMain", mDpt.mMain);
  fields.number("mDptSub", mDpt.mSub, Datapoint_Id::cAnySub);
  fields.text("mDptRaw", mDptRaw);
  fields.flag("mDptGuessed", mDptGuessed);
  fields.flag("mReadAtStart", mReadAtStart);
  fields.flag("mReadCyclic", mReadCyclic);
  fields.flag("mWrite", mWrite, true);
  fields.flag("mActive", mActive, true);
  fields.flag("mCentral", mCentral);
  fields.flag("mUnfiltered", mUnfiltered);
  fields.text("mSecurity", mSecurity);
  fields.text("mOrigin", mOrigin);
}

void DB_Address_Middle_Group::fields(DB_Fields& fields) {
  fields.uuid("mKey", mKey);
  fields.uuid("mMainKey", mMainKey);
  fields.number("mNumber", mNumber);
  fields.text("mName", mName);
  fields.text("mDescription", mDescription);
}

void DB_Address_MainGroup::fields(DB_Fields& fields) {
  fields.uuid("mKey", mKey);
  fields.number("mNumber", mNumber);
  fields.text("mName", mName);
  fields.text("mDescription", mDescription);
}
