#include "db/Address_Tree.h"

#include <algorithm>

namespace {

/// Where a group of that number belongs among its ordered siblings: behind the last of equal number, or at `wanted`
/// when that keeps the order.
template <class Group>
qsizetype placeFor(const DB_Children<Group>& siblings, int number, qsizetype wanted) {
  const auto less = [](int value, const auto& group) { return value < group->mNumber; };
  const auto last = std::upper_bound(siblings.begin(), siblings.end(), number, less);
  const qsizetype behindEquals = last - siblings.begin();
  const auto lessThan = [](const auto& group, int value) { return group->mNumber < value; };
  const qsizetype beforeEquals = std::lower_bound(siblings.begin(), last, number, lessThan) - siblings.begin();
  return wanted >= beforeEquals && wanted <= behindEquals ? wanted : behindEquals;
}

/// The index of a group in its parent's ordered list.
template <class Group>
qsizetype indexIn(const DB_Children<Group>& siblings, const Group& group) {
  const auto lessThan = [](const auto& other, int value) { return other->mNumber < value; };
  auto at = std::lower_bound(siblings.begin(), siblings.end(), group.mNumber, lessThan);
  while (at != siblings.end() && at->get() != &group) {
    ++at;
  }
  return at == siblings.end() ? -1 : at - siblings.begin();
}

/// The first group of that number among its ordered siblings, or null.
template <class Group>
Group* firstOfNumber(const DB_Children<Group>& siblings, int number) {
  const auto lessThan = [](const auto& other, int value) { return other->mNumber < value; };
  const auto at = std::lower_bound(siblings.begin(), siblings.end(), number, lessThan);
  return at != siblings.end() && (*at)->mNumber == number ? at->get() : nullptr;
}

template <class Group>
Group* insertSorted(DB_Children<Group>& siblings, std::unique_ptr<Group> group, qsizetype place) {
  const qsizetype index = placeFor(siblings, group->mNumber, place);
  return &siblings.insert(index, std::move(group));
}

/// Puts a group whose number was changed to its new place.
template <class Group>
void replace(DB_Children<Group>& siblings, qsizetype index) {
  insertSorted(siblings, siblings.take(index), -1);
}

} // namespace

DB_Address_Middle_Group* Address_Tree::middleGroup(int main, int middle) const {
  return mMiddleByNumber.value(Group_Address(main, middle, 0));
}

Group_Address Address_Tree::addressOf(const DB_Address_Sub_Group& group) const {
  const DB_Address_Middle_Group* const middle = middleGroup(group.mMiddleKey);
  const DB_Address_MainGroup* const main = middle ? mainGroup(middle->mMainKey) : nullptr;
  return main ? Group_Address(main->mNumber, middle->mNumber, group.mNumber) : Group_Address();
}

DB_Address_MainGroup* Address_Tree::add(std::unique_ptr<DB_Address_MainGroup> group, qsizetype place) {
  if (group->mKey.isNull() || record(group->mKey)) {
    group->mKey = QUuid::createUuid();
  }
  beginChange();
  DB_Address_MainGroup* const added = insertSorted(mMainGroups, std::move(group), place);
  mMainByKey.insert(added->mKey, added);
  if (mMainByNumber.contains(added->mNumber)) {
    mHasDuplicateGroups = true;
  } else {
    mMainByNumber.insert(added->mNumber, added);
  }
  endChange();
  return added;
}

void Address_Tree::indexMiddleGroup(const DB_Address_MainGroup& main, DB_Address_Middle_Group& middle) {
  const Group_Address number(main.mNumber, middle.mNumber, 0);
  if (mMiddleByNumber.contains(number)) {
    mHasDuplicateGroups = true;
  } else {
    mMiddleByNumber.insert(number, &middle);
  }
}

DB_Address_Middle_Group* Address_Tree::add(std::unique_ptr<DB_Address_Middle_Group> group, qsizetype place) {
  DB_Address_MainGroup* const main = mainGroup(group->mMainKey);
  if (!main) {
    return nullptr;
  }
  if (group->mKey.isNull() || record(group->mKey)) {
    group->mKey = QUuid::createUuid();
  }
  beginChange();
  DB_Address_Middle_Group* const added = insertSorted(main->mMiddleGroups, std::move(group), place);
  mMiddleByKey.insert(added->mKey, added);
  indexMiddleGroup(*main, *added);
  endChange();
  return added;
}

void Address_Tree::indexSubGroup(const DB_Address_MainGroup& main, const DB_Address_Middle_Group& middle,
                                 DB_Address_Sub_Group& sub) {
  const Group_Address address(main.mNumber, middle.mNumber, sub.mNumber);
  if (!mSubByAddress.contains(address)) {
    mSubByAddress.insert(address, &sub);
  }
}

DB_Address_Sub_Group* Address_Tree::add(std::unique_ptr<DB_Address_Sub_Group> group, qsizetype place) {
  DB_Address_Middle_Group* const middle = middleGroup(group->mMiddleKey);
  const DB_Address_MainGroup* const main = middle ? mainGroup(middle->mMainKey) : nullptr;
  if (!main) {
    return nullptr;
  }
  if (group->mKey.isNull() || record(group->mKey)) {
    group->mKey = QUuid::createUuid();
  }
  beginChange();
  DB_Address_Sub_Group* const added = insertSorted(middle->mSubGroups, std::move(group), place);
  mSubByKey.insert(added->mKey, added);
  indexSubGroup(*main, *middle, *added);
  endChange();
  return added;
}

DB_Data_Base* Address_Tree::record(const QUuid& key) const {
  if (DB_Data_Base* const sub = subGroup(key)) {
    return sub;
  }
  if (DB_Data_Base* const middle = middleGroup(key)) {
    return middle;
  }
  return mainGroup(key);
}

qsizetype Address_Tree::placeOf(const QUuid& key) const {
  if (const DB_Address_Sub_Group* const sub = subGroup(key)) {
    return indexIn(middleGroup(sub->mMiddleKey)->mSubGroups, *sub);
  }
  if (const DB_Address_Middle_Group* const middle = middleGroup(key)) {
    return indexIn(mainGroup(middle->mMainKey)->mMiddleGroups, *middle);
  }
  const DB_Address_MainGroup* const main = mainGroup(key);
  return main ? indexIn(mMainGroups, *main) : -1;
}

std::unique_ptr<DB_Data_Base> Address_Tree::take(const QUuid& key) {
  const qsizetype place = placeOf(key);
  std::unique_ptr<DB_Data_Base> taken;
  if (DB_Address_Sub_Group* const sub = subGroup(key)) {
    beginChange();
    const Group_Address address = addressOf(*sub);
    DB_Children<DB_Address_Sub_Group>& siblings = middleGroup(sub->mMiddleKey)->mSubGroups;
    taken = siblings.take(place);
    mSubByKey.remove(key);
    mSubByAddress.remove(address);
    if (DB_Address_Sub_Group* const other = firstOfNumber(siblings, address.sub())) {
      mSubByAddress.insert(address, other);
    }
  } else if (DB_Address_Middle_Group* const middle = middleGroup(key); middle && middle->mSubGroups.isEmpty()) {
    beginChange();
    DB_Address_MainGroup* const main = mainGroup(middle->mMainKey);
    const Group_Address number(main->mNumber, middle->mNumber, 0);
    taken = main->mMiddleGroups.take(place);
    mMiddleByKey.remove(key);
    mMiddleByNumber.remove(number);
  } else if (DB_Address_MainGroup* const main = mainGroup(key); main && main->mMiddleGroups.isEmpty()) {
    beginChange();
    mMainByNumber.remove(main->mNumber);
    taken = mMainGroups.take(place);
    mMainByKey.remove(key);
  }
  if (taken) {
    if (mHasDuplicateGroups) {
      rebuildNumberIndex();
    }
    endChange();
  }
  return taken;
}

bool Address_Tree::change(const QUuid& key, const std::function<void(DB_Data_Base&)>& change) {
  const auto apply = [&](auto& group, auto& siblings) {
    const int number = group.mNumber;
    const qsizetype place = indexIn(siblings, group);
    change(group);
    if (group.mNumber == number) {
      emit recordChanged(key);
      return;
    }
    beginChange();
    replace(siblings, place);
    rebuildNumberIndex();
    endChange();
  };
  if (DB_Address_Sub_Group* const sub = subGroup(key)) {
    apply(*sub, middleGroup(sub->mMiddleKey)->mSubGroups);
  } else if (DB_Address_Middle_Group* const middle = middleGroup(key)) {
    apply(*middle, mainGroup(middle->mMainKey)->mMiddleGroups);
  } else if (DB_Address_MainGroup* const main = mainGroup(key)) {
    apply(*main, mMainGroups);
  } else {
    return false;
  }
  return true;
}

void Address_Tree::rebuildNumberIndex() {
  mMainByNumber.clear();
  mMiddleByNumber.clear();
  mSubByAddress.clear();
  mHasDuplicateGroups = false;
  for (const auto& main : mMainGroups) {
    if (mMainByNumber.contains(main->mNumber)) {
      mHasDuplicateGroups = true;
    } else {
      mMainByNumber.insert(main->mNumber, main.get());
    }
    for (const auto& middle : main->mMiddleGroups) {
      indexMiddleGroup(*main, *middle);
      for (const auto& sub : middle->mSubGroups) {
        indexSubGroup(*main, *middle, *sub);
      }
    }
  }
}

void Address_Tree::clear() {
  beginChange();
  mMainByKey.clear();
  mMiddleByKey.clear();
  mSubByKey.clear();
  mMainByNumber.clear();
  mMiddleByNumber.clear();
  mSubByAddress.clear();
  mMainGroups.clear();
  mHasDuplicateGroups = false;
  endChange();
}

void Address_Tree::beginChange() {
  if (mChangeDepth++ == 0) {
    emit structureAboutToChange();
  }
}

void Address_Tree::endChange() {
  if (--mChangeDepth == 0) {
    emit structureChanged();
  }
}
