#include "db/Address_Group_Comparison.h"

#include "db/Address_Import_Limits.h"
#include "db/DB_Text.h"
#include "db/ProjectDatabase.h"

using Kind = Address_Import_Row::Kind;
using Level = Address_Import_Row::Level;

namespace {

template <class Group>
Address_Import_Row::Values valuesOf(const Group* group) {
  Address_Import_Row::Values values;
  if (group) {
    values.mName = group->mName;
    values.mDescription = group->mDescription;
  }
  return values;
}

} // namespace

Address_Group_Comparison::Address_Group_Comparison(const ProjectDatabase& database, const Ets_Groups& groups,
                                                   const Address_Import::Options& options)
    : mDatabase(database),
      mGroups(groups),
      mOptions(options),
      mNames(groups.mRanges) {}

void Address_Group_Comparison::need(const Group_Address& address, bool isTicked) {
  bool& isMiddleTicked = mNeededMiddle[Ets_Group_Names::middleOf(address)];
  isMiddleTicked = isMiddleTicked || isTicked;
  bool& isMainTicked = mNeededMain[{address.main(), 0, 0}];
  isMainTicked = isMainTicked || isTicked;
}

void Address_Group_Comparison::addRows(std::vector<Row>& rows, int& unchanged) {
  if (mGroups.mFormat == Ets_Groups::Format::Esf) {
    fitEsfNames();
  }
  for (const Group_Address& middle : std::as_const(mNames.mOwnMiddle)) {
    need(middle, true);
  }
  for (const int main : std::as_const(mNames.mOwnMain)) {
    mNeededMain[{main, 0, 0}] = true;
  }
  for (auto at = mNeededMain.cbegin(); at != mNeededMain.cend(); ++at) {
    const int main = at.key().main();
    compare(Level::MainGroup, at.key(), mDatabase.mAddresses.mainGroup(main), mNames.mMain.value(main), at.value(),
            rows, unchanged);
  }
  for (auto at = mNeededMiddle.cbegin(); at != mNeededMiddle.cend(); ++at) {
    const Group_Address& middle = at.key();
    compare(Level::MiddleGroup, middle, mDatabase.mAddresses.middleGroup(middle.main(), middle.middle()),
            mNames.mMiddle.value(middle), at.value(), rows, unchanged);
  }
}

template <class Group>
void Address_Group_Comparison::compare(Level level, const Group_Address& address, const Group* present,
                                       const Ets_Group_Names::Name& name, bool isTicked, std::vector<Row>& rows,
                                       int& unchanged) const {
  if (present && !name.mIsOwn) {
    return; // the range around several groups tells nothing of this one
  }
  Row row;
  row.mLevel = level;
  row.mAddress = address;
  row.mPresent = valuesOf(present);
  row.mIncoming.mName = name.mName;
  row.mIncoming.mDescription = name.mDescription;
  row.mTicked = isTicked;
  if (present) {
    const bool isKept = mOptions.mKeepComment || mOptions.mImportNewOnly;
    row.mKind = Kind::Changed;
    row.mKey = present->mKey;
    if (isKept || name.mName.isEmpty() || DB_Text::isSameLine(name.mName, present->mName)) {
      row.mIncoming.mName = present->mName;
    }
    if (isKept || name.mDescription.isEmpty() || DB_Text::isSameLine(name.mDescription, present->mDescription)) {
      row.mIncoming.mDescription = present->mDescription;
    }
  }
  row.mNote = Address_Import_Limits::shorten(row.mIncoming, row.mPresent);
  if (present) {
    row.mDiffering = row.mPresent.differenceTo(row.mIncoming);
    if (!row.mDiffering) {
      ++unchanged;
      return;
    }
  }
  rows.push_back(std::move(row));
}

void Address_Group_Comparison::fitEsfNames() {
  for (const auto& main : mDatabase.mAddresses.mainGroups()) {
    if (mNames.mMain.contains(main->mNumber) && mNames.mMain.value(main->mNumber).mName != main->mName) {
      fitEsfNames(*main);
    }
  }
}

void Address_Group_Comparison::fitEsfNames(const DB_Address_MainGroup& main) {
  const QString fileName = mNames.mMain.value(main.mNumber).mName + u'.';
  const QString presentName = main.mName + u'.';
  QHash<Group_Address, QString> fitted; ///< what the middle groups are called behind the present name
  bool isSame = false;
  bool isRenamed = false; // a middle group that kept its name tells that the main group did not
  for (auto at = mNames.mMiddle.cbegin(); at != mNames.mMiddle.cend(); ++at) {
    if (at.key().main() != main.mNumber) {
      continue;
    }
    const QString fileText = fileName + at->mName;
    const DB_Address_Middle_Group* const middle = mDatabase.mAddresses.middleGroup(main.mNumber, at.key().middle());
    if (middle && QString(fileText).remove(u' ') == QString(presentName + middle->mName).remove(u' ')) {
      isSame = true;
      fitted.insert(at.key(), middle->mName);
    } else if (fileText.startsWith(presentName)) {
      isRenamed = isRenamed || (middle && middle->mName == at->mName);
      fitted.insert(at.key(), fileText.mid(presentName.size()).trimmed());
    }
  }
  if (fitted.isEmpty() || (isRenamed && !isSame)) {
    return;
  }
  mNames.mMain[main.mNumber].mName = main.mName;
  for (auto at = fitted.cbegin(); at != fitted.cend(); ++at) {
    mNames.mMiddle[at.key()].mName = at.value();
  }
}
