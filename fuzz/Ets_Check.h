#pragma once

#include "db/DB_Text.h"
#include "tests/db/Ets_Rig.h"

#include <cstdio>
#include <cstdlib>

/// What must be true of anything that a reader of the ETS formats makes of arbitrary bytes; aborts where it is not.
namespace Ets_Check {

inline void require(bool isTrue, const char* what) {
  if (!isTrue) {
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
  }
}

/// Everything is within its range; a file that is refused leaves nothing but a reason.
inline void outcome(const Ets_Rig::Outcome& outcome) {
  const Ets_Groups& groups = outcome.mGroups;
  require(outcome.mIsRead == outcome.mError.isEmpty(), "an error is told exactly when nothing is read");
  require(outcome.mIsRead || (groups.mAddresses.empty() && groups.mRanges.empty() && groups.mFaultCount == 0),
          "what is refused leaves nothing");
  require(groups.mFaults.size() == qMin(groups.mFaultCount, qsizetype(Ets_Reader::cFaultLimit)), "faults are told");
  for (const QString& fault : groups.mFaults) {
    require(fault.startsWith(u"Zeile ") && fault.endsWith(u'.'), "faults are sentences with their line");
  }
  for (const Ets_Groups::Range& range : groups.mRanges) {
    require(range.mStart >= 0 && range.mStart <= range.mEnd && range.mEnd <= Group_Address::cNumberMax,
            "ranges are on the bus");
    require(range.mDepth >= 0 && range.mDepth <= 64, "depths are within the limit");
  }
  for (const Ets_Groups::Address& address : groups.mAddresses) {
    require(address.mAddress.isOnBus() && address.mLine > 0, "addresses are on the bus");
    require(address.mName == DB_Text::singleLine(address.mName), "names are one line");
    require(address.mDpt.mMain >= 0 && address.mDpt.mMain <= Datapoint_Id::cNumberMax, "types have numbers");
  }
}

/// "Main.Middle", the point of which an ESF does not tell from others, with everything else of each address.
inline QStringList texts(const Address_Tree& tree) {
  QStringList result;
  for (const auto& main : tree.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        result.append(main->mName + u'.' + middle->mName + u'|' + tree.addressOf(*sub).toString() + u'|' + sub->mName);
      }
    }
  }
  return result;
}

/// What `write` writes of the groups is read again without a fault, has the same addresses, and is written again alike.
template <class Write>
void roundTrip(const Ets_Groups& groups, Ets_Groups::Format format, const Write& write) {
  Address_Tree tree;
  Ets_Rig::fill(tree, groups);
  if (tree.mainGroups().isEmpty()) {
    return; // such a file is refused
  }
  const QByteArray written = Ets_Rig::bytesOf([&](QIODevice& device) { write(tree, device); });
  Ets_Reader::Options options;
  options.mFormat = format;
  const Ets_Rig::Outcome again = Ets_Rig::read(written, options);
  require(again.mIsRead && again.mGroups.mFaultCount == 0, "what is written is read without a fault");
  Address_Tree second;
  Ets_Rig::fill(second, again.mGroups);
  require(texts(second) == texts(tree), "what is written is read as it was");
  require(Ets_Rig::bytesOf([&](QIODevice& device) { write(second, device); }) == written,
          "what is read is written alike");
}

} // namespace Ets_Check
