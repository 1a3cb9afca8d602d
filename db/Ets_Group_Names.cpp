#include "db/Ets_Group_Names.h"

#include "db/DB_Text.h"

#include <algorithm>

namespace {

/// Files of ETS leave the address 0 out, which no group may use.
bool isWhole(const Ets_Groups::Range& range, int span) {
  const int start = range.mStart / span * span;
  return range.mStart <= std::max(start, 1) && range.mEnd == start + span - 1;
}

} // namespace

Ets_Group_Names::Ets_Group_Names(const std::vector<Ets_Groups::Range>& ranges) {
  for (const Ets_Groups::Range& range : ranges) {
    Name name{DB_Text::singleLine(range.mName), DB_Text::clean(range.mDescription), false};
    const Group_Address first = Group_Address::fromNumber(static_cast<quint16>(range.mStart));
    const Group_Address last = Group_Address::fromNumber(static_cast<quint16>(range.mEnd));
    if (range.mDepth > 0 && middleOf(first) == middleOf(last)) {
      if (!mOwnMiddle.contains(middleOf(first))) {
        name.mIsOwn = isWhole(range, Group_Address::cMiddleSpan);
        mMiddle.insert(middleOf(first), name);
        mOwnMiddle.insert(middleOf(first));
        mOwnMain.insert(first.main());
      }
      continue;
    }
    const bool isInOneMain = first.main() == last.main();
    name.mIsOwn = isWhole(range, Group_Address::cMainSpan);
    for (int main = first.main(); main <= last.main(); ++main) {
      // Inside a main group that already has a name of its own a narrower range is no main group.
      if (!isInOneMain || !mOwnMain.contains(main)) {
        mMain.insert(main, name);
      }
    }
    if (isInOneMain) {
      mOwnMain.insert(first.main());
    }
  }
}
