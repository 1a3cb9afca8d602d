#include "db/Address_Import_Plan.h"

#include <algorithm>

Address_Import_Plan::Address_Import_Plan(std::vector<Address_Import_Row> rows, int unchanged, int repeated)
    : mRows(std::move(rows)),
      mUnchanged(unchanged),
      mRepeated(repeated) {
  // Variants of one address keep the order of the file.
  std::stable_sort(mRows.begin(), mRows.end(), Address_Import_Row::isBefore);
  for (Address_Import_Row& row : mRows) {
    row.mTickedFirst = row.mTicked;
    ++mCounts[static_cast<size_t>(row.mKind)];
    mTicked[static_cast<size_t>(row.mKind)] += row.mTicked ? 1 : 0;
  }
}

void Address_Import_Plan::tick(Address_Import_Row& row, bool isTicked) {
  mTicked[static_cast<size_t>(row.mKind)] += (isTicked ? 1 : 0) - (row.mTicked ? 1 : 0);
  row.mTicked = isTicked;
}

qsizetype Address_Import_Plan::setTicked(qsizetype index, bool isTicked) {
  tick(mRows[static_cast<size_t>(index)], isTicked);
  const qsizetype rival = isTicked ? tickedRival(index) : -1;
  if (rival >= 0) {
    tick(mRows[static_cast<size_t>(rival)], false);
  }
  return rival;
}

qsizetype Address_Import_Plan::tickedRival(qsizetype index) const {
  const Address_Import_Row& asked = row(index);
  const auto [first, last] = std::equal_range(mRows.begin(), mRows.end(), asked, Address_Import_Row::isBefore);
  const auto isRival = [&asked](const Address_Import_Row& other) { return &other != &asked && other.mTicked; };
  const auto found = std::find_if(first, last, isRival);
  return found != last ? found - mRows.begin() : -1;
}
