#pragma once

#include "db/DB_Data_Base.h"

#include <QString>
#include <QStringList>

#include <vector>

/// The configuration of the M8800 I/O module bus: its modules in the order of the bus.
class DB_M8800 : public DB_Record<DB_M8800> {
public:
  struct Module {
    int mType = 0;
    int mAddress = 0; ///< on the module bus
    QString mName;
    bool mActive = true;
    QStringList mParams;

    void fields(DB_Fields& fields);
  };

  void fields(DB_Fields& fields) override;

  bool mActive = false;
  int mCycleTime = 0; ///< milliseconds between two polls, 0 for the controller's own
  std::vector<Module> mModules;
};
