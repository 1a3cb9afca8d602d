#include "db/Address_Import_Plan.h"

#include <algorithm>

Address_Import_Plan::Address_Import_Plan(std::vector<Address_Import_Row> rows, int unchanged, int repeated)
    : mRows(std::move(rows)),
      mUnchanged(unchanged),
      mRepeated(repeated) {
  // Variants of one address keep the order of the file.
  std::stable_sort(mRows.begin(), mRows.end(), Address_Import_Row::isBefore);
  for (const Address_Import_Row& row : mRows) {
    ++mCounts[static_cast<size_t>(row.mKind)];
    mTicked += row.mTicked ? 1 : 0;
  }
}

qsizetype Address_Import_Plan::setTicked(qsizetype index, bool isTicked) {
  Address_Import_Row& row = mRows[static_cast<size_t>(index)];
  if (row.mTicked == isTicked) {
    return -1;
  }
  row.mTicked = isTicked;
  mTicked += isTicked ? 1 : -1;
  if (!isTicked) {
    return -1;
  }
  const auto [first, last] = std::equal_range(mRows.begin(), mRows.end(), row, Address_Import_Row::isBefore);
  for (auto other = first; other != last; ++other) {
    if (&*other != &row && other->mTicked) {
      other->mTicked = false;
      --mTicked;
      return other - mRows.begin();
    }
  }
  return -1;
}
