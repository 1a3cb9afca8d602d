#include "db/Address_Import_Row.h"

#include "db/DB_Address_Groups.h"

#include <tuple>

Address_Import_Row::Values Address_Import_Row::Values::of(const DB_Address_Sub_Group& group) {
  return {group.mName,   group.mDescription, group.mDpt,        group.mDptGuessed,
          group.mDptRaw, group.mCentral,     group.mUnfiltered, group.mSecurity};
}

void Address_Import_Row::Values::applyTo(DB_Address_Sub_Group& group) const {
  group.mName = mName;
  group.mDescription = mDescription;
  group.mDpt = mDpt;
  group.mDptGuessed = mDptGuessed;
  group.mDptRaw = mDptRaw;
  group.mCentral = mCentral;
  group.mUnfiltered = mUnfiltered;
  group.mSecurity = mSecurity;
}

Address_Import_Row::Fields Address_Import_Row::Values::differenceTo(const Values& other) const {
  Fields fields;
  fields.setFlag(Field::Name, mName != other.mName);
  fields.setFlag(Field::Description, mDescription != other.mDescription);
  fields.setFlag(Field::Type, mDpt != other.mDpt || mDptGuessed != other.mDptGuessed);
  fields.setFlag(Field::Central, mCentral != other.mCentral);
  fields.setFlag(Field::Unfiltered, mUnfiltered != other.mUnfiltered);
  fields.setFlag(Field::Security, mSecurity != other.mSecurity);
  return fields;
}

QString Address_Import_Row::addressText() const {
  switch (mLevel) {
  case Level::MainGroup:
    return Group_Address::mainGroupText(mAddress.main());
  case Level::MiddleGroup:
    return Group_Address::middleGroupText(mAddress.main(), mAddress.middle());
  case Level::Address:
    break;
  }
  return mAddress.toString();
}

bool Address_Import_Row::isBefore(const Address_Import_Row& a, const Address_Import_Row& b) {
  const auto place = [](const Address_Import_Row& row) {
    return std::tuple(row.mAddress.main(), row.mLevel == Level::MainGroup ? -1 : row.mAddress.middle(),
                      row.mLevel == Level::Address ? row.mAddress.sub() : -1);
  };
  return place(a) < place(b);
}
