#include "db/DB_Address_Binding.h"

#include "base/Group_Address.h"
#include "db/DB_Address_Groups.h"

void DB_Address_Binding::bindTo(const DB_Address_Sub_Group& group, const Group_Address& address) {
  mKind = Kind::GroupAddress;
  mKey = group.mKey;
  mMain = address.main();
  mMiddle = address.middle();
  mSub = address.sub();
  mName = group.mName;
  mDescription = group.mDescription;
  mDpt = group.mDpt;
  mDptRaw = group.mDptRaw;
  mReadAtStart = group.mReadAtStart;
  mReadCyclic = group.mReadCyclic;
  mWrite = group.mWrite;
  mActive = group.mActive;
}

void DB_Address_Binding::fields(DB_Fields& fields) {
  int kind = static_cast<int>(mKind);
  fields.number("mKind", kind);
  const bool isKnown = kind >= static_cast<int>(Kind::None) && kind <= static_cast<int>(Kind::Internal);
  mKind = isKnown ? static_cast<Kind>(kind) : Kind::None;
  fields.uuid("mKey", mKey);
  fields.number("mMain", mMain);
  fields.number("mMiddle", mMiddle);
  fields.number("mSub", mSub);
  fields.text("mAddressName", mName);
  fields.text("mDescription", mDescription);
  fields.number("mDptMain", mDpt.mMain);
  fields.number("mDptSub", mDpt.mSub, Datapoint_Id::cAnySub);
  fields.text("mDptRaw", mDptRaw);
  fields.flag("mReadAtStart", mReadAtStart);
  fields.flag("mReadCyclic", mReadCyclic);
  fields.flag("mWrite", mWrite, true);
  fields.flag("mActive", mActive, true);
}
