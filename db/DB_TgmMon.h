#pragma once

#include "db/DB_Data_Base.h"

#include <vector>

/// The settings of the telegram monitor that runs on the controller.
class DB_TgmMon : public DB_Record<DB_TgmMon> {
public:
  static constexpr int cDefaultLimit = 100'000;

  void fields(DB_Fields& fields) override;

  bool mActive = false;
  int mLimit = cDefaultLimit; ///< telegrams kept; the oldest go first
  std::vector<int> mChannels; ///< numbers of the recorded channels
};
