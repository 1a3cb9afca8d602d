#include "db/DB_Statistic.h"

void DB_Statistic::Recording::fields(DB_Fields& fields) {
  fields.text("mName", mName);
  fields.uuid("mAddressKey", mAddressKey);
  fields.number("mTab", mTab);
  fields.number("mControllerIndex", mControllerIndex);
  fields.number("mTriggerType", mTriggerType);
  fields.real("mTriggerValue", mTriggerValue);
  fields.number("mTriggerTimeType", mTriggerTimeType);
  fields.number("mTriggerTimeSecs", mTriggerTimeSecs);
  fields.flag("mActive", mActive, true);
  fields.flag("mWriteOnly", mWriteOnly);
}

void DB_Statistic::fields(DB_Fields& fields) {
  fields.flag("mActive", mActive, true);
  fields.number("mKeepDays", mKeepDays);
  fields.list("mRecording", mRecordings);
}
