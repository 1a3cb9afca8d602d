#pragma once

#include "db/DB_Data_Base.h"

#include <QString>
#include <QUuid>

#include <vector>

/// What the controller records over time: the recordings and how long their values are kept.
class DB_Statistic : public DB_Record<DB_Statistic> {
public:
  struct Recording {
    static constexpr int cOnChange = 0;     ///< when the value has changed by `mTriggerValue` at least
    static constexpr int cOnTelegram = 1;   ///< with every telegram of the address
    static constexpr int cPeriodically = 2; ///< every `mTriggerTimeSecs` seconds

    QString mName;
    QUuid mAddressKey;            ///< the recorded group address
    int mTab = 0;                 ///< group of the recording in the view
    int mControllerIndex = 0;     ///< number of the recording controller, 0 for the main one
    int mTriggerType = cOnChange; ///< one of the three above
    double mTriggerValue = 0;     ///< least change that is recorded, 0: each; `cOnChange` only
    int mTriggerTimeType = 0;     ///< unit that the interval is told in: 0 seconds, 1 minutes, 2 hours, 3 days
    int mTriggerTimeSecs = 0;     ///< seconds between two records, whatever the unit; `cPeriodically` only
    bool mActive = true;
    bool mWriteOnly = false; ///< answers to reading are not recorded

    void fields(DB_Fields& fields);
  };

  void fields(DB_Fields& fields) override;

  bool mActive = true;
  int mKeepDays = 0; ///< 0: for ever
  std::vector<Recording> mRecordings;
};
