#include "db/DB_FB_Control.h"

void DB_FB_Pin::fields(DB_Fields& fields) {
  fields.text("mLongName", mLongName);
  fields.text("mShortName", mShortName);
  mBinding.fields(fields);
}

void DB_Modbus_Register::fields(DB_Fields& fields) {
  fields.text("mName", mName);
  fields.number("mAddress", mAddress);
  fields.number("mFunctionCode", mFunctionCode, 3);
  fields.number("mWordCount", mWordCount, 1);
  fields.number("mCount", mCount, 1);
  fields.number("mDataType", mDataType);
  fields.number("mByteOrder", mByteOrder);
  fields.flag("mSigned", mSigned);
  fields.real("mFactor", mFactor, 1);
  fields.real("mOffset", mOffset);
  fields.number("mPollingInterval", mPollingInterval, 1000);
  fields.flag("mActive", mActive, true);
  fields.number("mWriteMode", mWriteMode);
  fields.flag("mUpdateOnChange", mUpdateOnChange);
}

void DB_FB_Control::fields(DB_Fields& fields) {
  fields.uuid("mGuid", mGuid);
  fields.uuid("mPageGuid", mPageGuid);
  fields.number("mType", mType);
  fields.flag("mDisplay", mDisplay, true);
  fields.real("mX", mX);
  fields.real("mY", mY);
  fields.text("mName", mName);
  fields.text("mComment", mComment);
  fields.text("mTitle", mTitle);
  fields.flag("mCommentAsCaption", mCommentAsCaption);
  fields.flag("mDisabled", mDisabled);
  fields.flag("mUpdateAtStart", mUpdateAtStart, true);
  fields.flag("mUpdateCyclic", mUpdateCyclic);
  fields.number("mStartDelay", mStartDelay);
  fields.number("mExecutionNumber", mExecutionNumber);
  fields.nested("mDisableAddress", mDisableAddress);
  fields.number("mOriginalType", mOriginalType);
  fields.text("mOriginalTitle", mOriginalTitle);
  fields.list("mParam", mParams);
  fields.list("mInput", mInputs);
  fields.list("mOutput", mOutputs);
  fields.list("mModbusRegister", mModbusRegisters);
}
