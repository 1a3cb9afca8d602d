#include "db/DB_Controller_Informations.h"

void DB_Controller_Informations::fields(DB_Fields& fields) {
  fields.text("mName", mName);
  fields.text("mSerialNumber", mSerialNumber);
  fields.text("mRuntimeVersion", mRuntimeVersion);
  fields.text("mSystemVersion", mSystemVersion);
  fields.text("mProjectName", mProjectName);
  fields.number("mProjectTimestamp", mProjectTimestamp);
  fields.number("mNumber", mNumber);
  fields.flag("mIsRunning", mIsRunning);
}
