#include "db/DB_M8800.h"

void DB_M8800::Module::fields(DB_Fields& fields) {
  fields.number("mType", mType);
  fields.number("mAddress", mAddress);
  fields.text("mName", mName);
  fields.flag("mActive", mActive, true);
  fields.list("mParam", mParams);
}

void DB_M8800::fields(DB_Fields& fields) {
  fields.flag("mActive", mActive);
  fields.number("mCycleTime", mCycleTime);
  fields.list("mModule", mModules);
}
