#include "db/DB_Project.h"

void DB_Controller::fields(DB_Fields& fields) {
  fields.number("mNumber", mNumber);
  fields.text("mName", mName);
  fields.text("mAddress", mAddress);
  fields.flag("mIsMain", mIsMain);
}

void DB_Project::fields(DB_Fields& fields) {
  fields.text("mVersion", mVersion);
  fields.text("mName", mName);
  fields.number("mTimestamp", mTimestamp);
  fields.uuid("mProjectId", mProjectId);
  fields.number("mGeneration", mGeneration);
  fields.text("mControllerProjectId", mControllerProjectId);
  fields.text("mAuthor", mAuthor);
  fields.text("mDescription", mDescription);
  fields.text("mLanguage", mLanguage, QStringLiteral("de"));
  fields.real("mGeopos_Latitude", mGeopos_Latitude);
  fields.real("mGeopos_Longitude", mGeopos_Longitude);
  fields.number("mControllerAlarmPriority", mControllerAlarmPriority);
  fields.list("mNavItemList", mNavItemList);
  fields.list("mControllerList", mControllers);
}
