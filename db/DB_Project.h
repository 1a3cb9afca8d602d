#pragma once

#include "db/DB_Data_Base.h"

#include <QString>
#include <QStringList>
#include <QUuid>

#include <vector>

/// One controller of a group that runs the project together ("Verteiltes Projekt").
struct DB_Controller {
  int mNumber = 0; ///< the controller's own number, 1 and up
  QString mName;
  QString mAddress;     ///< IP address or host name, optionally with ":" and a port
  bool mIsMain = false; ///< runs every page that is assigned to no other; exactly one of a group

  void fields(DB_Fields& fields);
};

/// The project's header: what the file is, who made it, where the building stands, on which controllers it runs.
class DB_Project : public DB_Record<DB_Project> {
public:
  static constexpr double cLatitudeMax = 90;   ///< degrees, to either side
  static constexpr double cLongitudeMax = 180; ///< degrees, to either side

  void fields(DB_Fields& fields) override;

  QString mVersion;             ///< of the studio that saved last, a decimal number
  QString mName;                ///< complete base name of the project file
  qint64 mTimestamp = 0;        ///< of the last save, seconds since 1970 (UTC)
  QUuid mProjectId;             ///< made with the project
  int mGeneration = 0;          ///< counts the writes to the controller, given by the controller
  QString mControllerProjectId; ///< the controller's own identification of the project
  QString mAuthor;
  QString mDescription;
  QString mLanguage = QStringLiteral("de"); ///< of the visualisation, "de" unless set
  double mGeopos_Latitude = 0;              ///< degrees, -90..90, north positive
  double mGeopos_Longitude = 0;             ///< degrees, -180..180, east positive
  int mControllerAlarmPriority = 0;
  QStringList mNavItemList;                ///< GUIDs of the visualisation pages in the panel app's navigation, in order
  std::vector<DB_Controller> mControllers; ///< empty: the project runs on one controller
};
