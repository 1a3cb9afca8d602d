#include "net/Controller_Records.h"

void DB_Log_On::fields(DB_Fields& fields) {
  fields.text("mUser", mUser);
  fields.text("mPassword", mPassword);
}

void DB_Refusal::fields(DB_Fields& fields) {
  fields.number("mCommand", mCommand);
  fields.text("mReason", mReason);
}

void DB_Controller_Project::fields(DB_Fields& fields) {
  fields.nested("mProject", mProject);
  fields.text("mProgramDigest", mProgramDigest);
  fields.text("mRecordsDigest", mRecordsDigest);
  fields.text("mResourcesDigest", mResourcesDigest);
  fields.number("mResources", mResources);
  fields.flag("mIsRunning", mIsRunning);
}

void DB_Backup_List::Backup::fields(DB_Fields& fields) {
  fields.text("mId", mId);
  fields.number("mTime", mTime);
  fields.text("mDescription", mDescription);
  fields.text("mProjectName", mProjectName);
  fields.number("mSize", mSize);
}

void DB_Backup_List::fields(DB_Fields& fields) {
  fields.list("mBackup", mBackups);
}

void DB_Group_Status::Member::fields(DB_Fields& fields) {
  fields.number("mIndex", mIndex);
  fields.number("mState", mState);
  fields.number("mSecondsSince", mSecondsSince, -1);
  fields.text("mVersion", mVersion);
  fields.number("mGeneration", mGeneration);
  fields.number("mDistribution", mDistribution);
}

void DB_Group_Status::fields(DB_Fields& fields) {
  fields.number("mOwnIndex", mOwnIndex);
  fields.list("mMember", mMembers);
}

void DB_Network_Settings::fields(DB_Fields& fields) {
  fields.flag("mIsDhcp", mIsDhcp);
  fields.text("mAddress", mAddress);
  fields.text("mMask", mMask);
  fields.text("mGateway", mGateway);
  fields.text("mNameServer", mNameServer);
}
