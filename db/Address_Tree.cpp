#include "db/Address_Tree.h"

#include <algorithm>

namespace {

/// Where a group of that number belongs among its ordered siblings: behind the last of equal number, or at `wanted`
/// when that keeps the order.
template <class Group>
qsizetype placeFor(const DB_Children<Group>& siblings, int number, qsizetype wanted) {
  const qsizetype size = siblings.size();
  if (size == 0 || siblings.at(size - 1).mNumber < number) {
    return size; // so they come when a project is read
  }
  const auto less = [](int value, const auto& group) { return value < group->mNumber; };
  const auto last = std::upper_bound(siblings.begin(), siblings.end(), number, less);
  const qsizetype behindEquals = last - siblings.begin();
  const auto lessThan = [](const auto& group, int value) { return group->mNumber < value; };
  const qsizetype beforeEquals = std::lower_bound(siblings.begin(), last, number, lessThan) - siblings.begin();
  return wanted >= beforeEquals && wanted <= behindEquals ? wanted : behindEquals;
}

/// Calls `visit` with the groups of that number, in order, until it answers something.
template <class Group, class Visit>
auto visitNumber(const DB_Children<Group>& siblings, int number, Visit&& visit) -> decltype(visit(siblings.at(0))) {
  const auto lessThan = [](const auto& group, int value) { return group->mNumber < value; };
  auto at = std::lower_bound(siblings.begin(), siblings.end(), number, lessThan);
  for (; at != siblings.end() && (*at)->mNumber == number; ++at) {
    if (auto* const found = visit(**at)) {
      return found;
    }
  }
  return nullptr;
}

template <class Group>
Group* self(Group& group) {
  return &group;
}

/// What is found under a number: the first in order, or nothing.
template <class Number, class Group>
void setFound(QHash<Number, Group*>& index, const Number& number, Group* first) {
  if (first) {
    index.insert(number, first);
  } else {
    index.remove(number);
  }
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

template <class Group>
Group* insertSorted(DB_Children<Group>& siblings, std::unique_ptr<Group> group, qsizetype place) {
  const qsizetype index = placeFor(siblings, group->mNumber, place);
  return &siblings.insert(index, std::move(group));
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
  findMain(added->mNumber);
  endChange();
  return added;
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
  findMiddle(main->mNumber, added->mNumber);
  endChange();
  return added;
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
  const Group_Address address(main->mNumber, middle->mNumber, added->mNumber);
  DB_Address_Sub_Group*& found = mSubByAddress[address];
  if (found) {
    findSub(address);
  } else {
    found = added;
  }
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
    taken = middleGroup(sub->mMiddleKey)->mSubGroups.take(place);
    mSubByKey.remove(key);
    findSub(address);
  } else if (DB_Address_Middle_Group* const middle = middleGroup(key); middle && middle->mSubGroups.isEmpty()) {
    beginChange();
    DB_Address_MainGroup* const main = mainGroup(middle->mMainKey);
    const int number = middle->mNumber;
    taken = main->mMiddleGroups.take(place);
    mMiddleByKey.remove(key);
    findMiddle(main->mNumber, number);
  } else if (DB_Address_MainGroup* const main = mainGroup(key); main && main->mMiddleGroups.isEmpty()) {
    beginChange();
    const int number = main->mNumber;
    taken = mMainGroups.take(place);
    mMainByKey.remove(key);
    findMain(number);
  }
  if (taken) {
    endChange();
  }
  return taken;
}

bool Address_Tree::change(const QUuid& key, const std::function<void(DB_Data_Base&)>& change, qsizetype wanted) {
  if (DB_Address_Sub_Group* const sub = subGroup(key)) {
    const QUuid parent = sub->mMiddleKey;
    const Group_Address address = addressOf(*sub);
    const qsizetype place = placeOf(key);
    change(*sub);
    if (!middleGroup(sub->mMiddleKey)) {
      sub->mMiddleKey = parent;
    }
    rearrange(*sub, {sub->mMiddleKey != parent, sub->mNumber != address.sub(), place, wanted},
              middleGroup(parent)->mSubGroups, middleGroup(sub->mMiddleKey)->mSubGroups, [&] {
                findSub(address);
                findSub(addressOf(*sub));
              });
  } else if (DB_Address_Middle_Group* const middle = middleGroup(key)) {
    const QUuid parent = middle->mMainKey;
    const int main = mainGroup(parent)->mNumber;
    const int number = middle->mNumber;
    const qsizetype place = placeOf(key);
    change(*middle);
    if (!mainGroup(middle->mMainKey)) {
      middle->mMainKey = parent;
    }
    rearrange(*middle, {middle->mMainKey != parent, middle->mNumber != number, place, wanted},
              mainGroup(parent)->mMiddleGroups, mainGroup(middle->mMainKey)->mMiddleGroups, [&] {
                findAgain(*middle, main, number);
                findAgain(*middle, mainGroup(middle->mMainKey)->mNumber, middle->mNumber);
              });
  } else if (DB_Address_MainGroup* const main = mainGroup(key)) {
    const int number = main->mNumber;
    const qsizetype place = placeOf(key);
    change(*main);
    rearrange(*main, {false, main->mNumber != number, place, wanted}, mMainGroups, mMainGroups, [&] {
      findAgain(*main, number);
      findAgain(*main, main->mNumber);
    });
  } else {
    return false;
  }
  return true;
}

template <class Group, class FindAgain>
void Address_Tree::rearrange(Group& group, const Rearrangement& what, DB_Children<Group>& from, DB_Children<Group>& to,
                             FindAgain&& findAgain) {
  const bool isMoved = what.mIsOtherParent || what.mIsOtherNumber || (what.mWanted >= 0 && what.mWanted != what.mPlace);
  if (!isMoved) {
    emit recordChanged(group.mKey);
    return;
  }
  beginChange();
  insertSorted(to, from.take(what.mPlace), what.mWanted);
  findAgain();
  endChange();
}

void Address_Tree::findMain(int number) {
  setFound(mMainByNumber, number, visitNumber(mMainGroups, number, self<DB_Address_MainGroup>));
}

void Address_Tree::findMiddle(int main, int middle) {
  const auto inMain = [middle](const DB_Address_MainGroup& group) {
    return visitNumber(group.mMiddleGroups, middle, self<DB_Address_Middle_Group>);
  };
  setFound(mMiddleByNumber, Group_Address(main, middle, 0), visitNumber(mMainGroups, main, inMain));
}

void Address_Tree::findSub(const Group_Address& address) {
  const auto inMiddle = [&address](const DB_Address_Middle_Group& group) {
    return visitNumber(group.mSubGroups, address.sub(), self<DB_Address_Sub_Group>);
  };
  const auto inMain = [&address, &inMiddle](const DB_Address_MainGroup& group) {
    return visitNumber(group.mMiddleGroups, address.middle(), inMiddle);
  };
  setFound(mSubByAddress, address, visitNumber(mMainGroups, address.main(), inMain));
}

void Address_Tree::findAgain(const DB_Address_Middle_Group& group, int main, int number) {
  findMiddle(main, number);
  for (const auto& sub : group.mSubGroups) {
    findSub({main, number, sub->mNumber});
  }
}

void Address_Tree::findAgain(const DB_Address_MainGroup& group, int number) {
  findMain(number);
  for (const auto& middle : group.mMiddleGroups) {
    findAgain(*middle, number, middle->mNumber);
  }
}

void Address_Tree::reserve(qint64 subGroups) {
  constexpr qint64 cMost = 100'000;
  mSubByKey.reserve(std::min(subGroups, cMost));
  mSubByAddress.reserve(std::min(subGroups, cMost));
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
