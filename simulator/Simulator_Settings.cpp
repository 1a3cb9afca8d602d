#include "simulator/Simulator_Settings.h"

void Simulator_Settings::fields(DB_Fields& fields) {
  fields.text("mSerialNumber", mSerialNumber);
  fields.number("mNumber", mNumber);
  fields.number("mClockOffset", mClockOffset);
  fields.number("mGeneration", mGeneration);
  fields.number("mLastBackup", mLastBackup);
  fields.nested("mNetwork", mNetwork);
}
