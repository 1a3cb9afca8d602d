#pragma once

#include "db/DB_Data_Base.h"

#include <QString>

/// What the connected controller tells of itself. Held with the project, never written to its file.
class DB_Controller_Informations : public DB_Record<DB_Controller_Informations> {
public:
  void fields(DB_Fields& fields) override;

  QString mName;
  QString mSerialNumber;
  QString mRuntimeVersion;
  QString mSystemVersion;
  QString mProjectName;
  qint64 mProjectTimestamp = 0; ///< seconds since 1970 (UTC)
  int mNumber = 0;              ///< its own number in a group, 0 for none
  bool mIsRunning = false;      ///< its program runs
};
