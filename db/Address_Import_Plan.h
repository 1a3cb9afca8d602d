#pragma once

#include "db/Address_Import_Row.h"

#include <array>
#include <numeric>
#include <vector>

/// What an import of an ETS export would change in the project, row by row, each with a tick that says whether it
/// shall. Rows stand in the order of the address tree; what the file names as the project has it is only counted.
class Address_Import_Plan {
public:
  using Kind = Address_Import_Row::Kind;

  Address_Import_Plan() = default;
  explicit Address_Import_Plan(std::vector<Address_Import_Row> rows, int unchanged = 0, int repeated = 0);

  [[nodiscard]] const std::vector<Address_Import_Row>& rows() const { return mRows; }
  [[nodiscard]] const Address_Import_Row& row(qsizetype index) const { return mRows[static_cast<size_t>(index)]; }
  [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(mRows.size()); }
  [[nodiscard]] qsizetype count(Kind kind) const { return mCounts[static_cast<size_t>(kind)]; }
  [[nodiscard]] qsizetype tickedCount(Kind kind) const { return mTicked[static_cast<size_t>(kind)]; }
  [[nodiscard]] qsizetype tickedCount() const { return std::accumulate(mTicked.begin(), mTicked.end(), qsizetype(0)); }

  /// Addresses and groups that the project has as the file tells them, or that stay as they are by choice.
  [[nodiscard]] int unchangedCount() const { return mUnchanged; }
  /// Further entries of the file that say the same of an address once more.
  [[nodiscard]] int repeatedCount() const { return mRepeated; }

  /// Of several rows with the same address at most one is ticked: the index of the one that lost its tick to this one,
  /// -1 when none did.
  qsizetype setTicked(qsizetype index, bool isTicked);
  /// The index of another row with the same address that is ticked; -1 when there is none.
  [[nodiscard]] qsizetype tickedRival(qsizetype index) const;

private:
  void tick(Address_Import_Row& row, bool isTicked);

  std::vector<Address_Import_Row> mRows;
  std::array<qsizetype, 4> mCounts{};
  std::array<qsizetype, 4> mTicked{};
  int mUnchanged = 0;
  int mRepeated = 0;
};
