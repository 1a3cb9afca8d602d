#pragma once

#include <QStringList>

#include <array>
#include <optional>
#include <vector>

/// Which column of a CSV export of ETS holds what; -1 for a column that is not there.
///
/// Names stand in one column or in up to three (main, middle, sub), addresses in one ("1/2/3") or in three (1; 2; 3).
struct Ets_Csv_Layout {
  /// What an address cell, or three number cells, name: an address, or with fewer numbers a group.
  struct Place {
    QString mAddress; ///< "1/2/3", empty for a group
    int mMain = -1;
    int mMiddle = -1; ///< -1 for a main group
  };

  int mMain = -1;
  int mMiddle = -1;
  int mName = -1; ///< of the address; of groups too where there is no other column
  int mAddress = -1;
  std::array<int, 3> mNumbers = {-1, -1, -1};
  int mCentral = -1;
  int mUnfiltered = -1;
  int mDescription = -1;
  int mDpt = -1;
  int mSecurity = -1;
  bool mHasHeader = false;

  /// From the header where the first row is one, in English or German, else from what the first rows hold. Empty when
  /// there is no column of addresses.
  [[nodiscard]] static std::optional<Ets_Csv_Layout> of(const std::vector<QStringList>& rows);

  /// Whether the column is that of the addresses, or one of theirs.
  [[nodiscard]] bool isOfAddress(int column) const;
  /// Empty when the row names neither an address nor a group.
  [[nodiscard]] std::optional<Place> placeOf(const QStringList& fields) const;
};
