#include "db/Address_Import.h"

#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>

namespace {

constexpr int cMainSpan = 2048;
constexpr int cMiddleSpan = 256;

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Import", text);
}

/// What the export calls the main groups (by number) and middle groups (by main * 8 + middle).
struct Names {
  struct Name {
    QString mName;
    QString mDescription;
  };
  QHash<int, Name> mMain;
  QHash<int, Name> mMiddle;
  QSet<int> mWantedMain; ///< named by a range of their own: made even when empty
  QSet<int> mWantedMiddle;
};

/// Ranges come outer before inner: of those inside one group the outermost is the group's own, of those that span
/// several groups the innermost names what has no own one.
Names namesOf(const std::vector<Ets_Groups::Range>& ranges) {
  Names names;
  for (const Ets_Groups::Range& range : ranges) {
    const Names::Name name{range.mName, range.mDescription};
    const int firstMain = range.mStart / cMainSpan;
    const int lastMain = range.mEnd / cMainSpan;
    const int firstMiddle = range.mStart / cMiddleSpan;
    const int lastMiddle = range.mEnd / cMiddleSpan;
    if (firstMiddle == lastMiddle && range.mDepth > 0) {
      if (!names.mWantedMiddle.contains(firstMiddle)) {
        names.mMiddle.insert(firstMiddle, name);
        names.mWantedMiddle.insert(firstMiddle);
        names.mWantedMain.insert(firstMain);
      }
      continue;
    }
    for (int main = firstMain; main <= lastMain; ++main) {
      // Inside a main group that already has a name of its own a narrower range is no main group.
      const bool isOwn = firstMain == lastMain && names.mWantedMain.contains(main);
      if (!isOwn) {
        names.mMain.insert(main, name);
      }
    }
    if (firstMain == lastMain) {
      names.mWantedMain.insert(firstMain);
    }
  }
  return names;
}

/// Makes what is missing in the tree, recording it.
class Builder {
public:
  Builder(Project_Session& session, Edit_Scope& scope, const Names& names)
      : mSession(session),
        mTree(session.database().mAddresses),
        mScope(scope),
        mNames(names) {}

  DB_Address_MainGroup& mainGroup(int main) {
    if (DB_Address_MainGroup* const present = mTree.mainGroup(main)) {
      return *present;
    }
    auto group = std::make_unique<DB_Address_MainGroup>();
    group->mNumber = main;
    const Names::Name name = mNames.mMain.value(main);
    group->mName = name.mName;
    group->mDescription = name.mDescription;
    DB_Address_MainGroup* const added = mTree.add(std::move(group));
    mScope.created(mSession.addressUndo(), added->mKey);
    return *added;
  }

  DB_Address_Middle_Group& middleGroup(int main, int middle) {
    if (DB_Address_Middle_Group* const present = mTree.middleGroup(main, middle)) {
      return *present;
    }
    auto group = std::make_unique<DB_Address_Middle_Group>();
    group->mMainKey = mainGroup(main).mKey;
    group->mNumber = middle;
    const Names::Name name = mNames.mMiddle.value(main * (Group_Address::cMiddleMax + 1) + middle);
    group->mName = name.mName;
    group->mDescription = name.mDescription;
    DB_Address_Middle_Group* const added = mTree.add(std::move(group));
    mScope.created(mSession.addressUndo(), added->mKey);
    return *added;
  }

  void subGroup(const Ets_Groups::Address& from) {
    auto group = std::make_unique<DB_Address_Sub_Group>();
    group->mMiddleKey = middleGroup(from.mAddress.main(), from.mAddress.middle()).mKey;
    group->mNumber = from.mAddress.sub();
    group->mName = from.mName;
    group->mDescription = from.mDescription;
    group->mDpt = from.mDpt;
    group->mDptGuessed = from.mDptGuessed;
    group->mDptRaw = from.mDpts;
    group->mCentral = from.mCentral;
    group->mUnfiltered = from.mUnfiltered;
    group->mSecurity = from.mSecurity;
    group->mOrigin = originOf(from);
    const DB_Address_Sub_Group* const added = mTree.add(std::move(group));
    mScope.created(mSession.addressUndo(), added->mKey);
  }

private:
  /// What of the export's own structure the three levels cannot show: another way of writing, further ranges.
  [[nodiscard]] QString originOf(const Ets_Groups::Address& from) const {
    const QString main = mTree.mainGroup(from.mAddress.main())->mName;
    const QString middle = mTree.middleGroup(from.mAddress.main(), from.mAddress.middle())->mName;
    QStringList origin;
    if (from.mStyle != Ets_Groups::Style::ThreeLevel) {
      origin.append(from.mText);
    }
    const QString path = middle.isEmpty() ? main : main + QStringLiteral(" / ") + middle;
    if (!from.mRangePath.isEmpty() && from.mRangePath != path) {
      origin.append(from.mRangePath);
    }
    return origin.join(QStringLiteral(", "));
  }

  Project_Session& mSession;
  Address_Tree& mTree;
  Edit_Scope& mScope;
  const Names& mNames;
};

} // namespace

Edit_Result Address_Import::addNew(Project_Session& session, const Ets_Groups& groups, Result& result) {
  result = {};
  Edit_Scope scope(session.history(), tr("Adressen importieren"), Edit_Scope::Grouping::Own);
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  Address_Tree& tree = session.database().mAddresses;
  const Names names = namesOf(groups.mRanges);
  Builder builder(session, scope, names);
  QSet<Group_Address> added;
  tree.beginChange();
  for (const int main : names.mWantedMain) {
    builder.mainGroup(main);
  }
  for (const int middle : names.mWantedMiddle) {
    builder.middleGroup(middle / (Group_Address::cMiddleMax + 1), middle % (Group_Address::cMiddleMax + 1));
  }
  for (const Ets_Groups::Address& address : groups.mAddresses) {
    if (added.contains(address.mAddress)) {
      ++result.mRepeated;
    } else if (tree.subGroup(address.mAddress)) {
      ++result.mExisting;
    } else {
      builder.subGroup(address);
      added.insert(address.mAddress);
      ++result.mAdded;
    }
  }
  tree.endChange();
  return Edit_Result::done();
}
