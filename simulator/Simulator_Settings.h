#pragma once

#include "net/Controller_Records.h"

/// What a stand-in keeps beside its project.
class Simulator_Settings : public DB_Record<Simulator_Settings> {
public:
  void fields(DB_Fields& fields) override;

  QString mSerialNumber;   ///< made once
  int mNumber = 0;         ///< its own in a group, 0 for none
  qint64 mClockOffset = 0; ///< milliseconds that its clock is ahead of the machine's
  int mGeneration = 0;     ///< counts the writes
  int mLastBackup = 0;     ///< counts the backups
  DB_Network_Settings mNetwork;
};
