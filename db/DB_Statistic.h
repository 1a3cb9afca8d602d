#pragma once

#include "db/DB_Data_Base.h"

#include <QString>
#include <QUuid>

#include <vector>

/// What the controller records over time: the recordings and how long their values are kept.
class DB_Statistic : public DB_Record<DB_Statistic> {
public:
  struct Recording {
    QString mName;
    QUuid mAddressKey;        ///< the recorded group address
    int mTab = 0;             ///< group of the recording in the view
    int mControllerIndex = 0; ///< number of the recording controller, 0 for the main one
    int mTriggerType = 0;     ///< 0 on change, 1 on every telegram, 2 by time
    double mTriggerValue = 0; ///< least change that is recorded
    int mTriggerTimeType = 0;
    int mTriggerTimeSecs = 0; ///< seconds between two records
    bool mActive = true;
    bool mWriteOnly = false;

    void fields(DB_Fields& fields);
  };

  void fields(DB_Fields& fields) override;

  bool mActive = true;
  int mKeepDays = 0; ///< 0: for ever
  std::vector<Recording> mRecordings;
};
