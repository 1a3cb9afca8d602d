#include "db/Address_Edits.h"
#include "db/Address_Usage.h"
#include "db/Edit_Scope.h"
#include "db/Project_Session.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>
#include <optional>

namespace {

QString tr(const char* text) {
  return QCoreApplication::translate("Address_Edits", text);
}

/// The first number of `first`..`last` that is free, from `from` on and then from the start; -1 for none.
template <class IsTaken>
int firstFree(int first, int last, int from, IsTaken&& isTaken) {
  const auto search = [&](int begin, int end) {
    for (int number = begin; number <= end; ++number) {
      if (!isTaken(number)) {
        return number;
      }
    }
    return -1;
  };
  const int start = qBound(first, from, last + 1);
  const int behind = search(start, last);
  return behind >= 0 ? behind : search(first, start - 1);
}

/// The first number that a middle group offers: 0/0/0 is the bus's own.
int firstSub(int main, int middle) {
  return main == 0 && middle == 0 ? 1 : 0;
}

/// The keys of a group and of everything below, a group behind what it holds.
void collectWhole(const Address_Tree& tree, const QUuid& key, QSet<QUuid>& known, QList<QUuid>& keys) {
  if (known.contains(key) || !tree.record(key)) {
    return;
  }
  known.insert(key);
  if (const DB_Address_MainGroup* const main = tree.mainGroup(key)) {
    for (const auto& middle : main->mMiddleGroups) {
      collectWhole(tree, middle->mKey, known, keys);
    }
  } else if (const DB_Address_Middle_Group* const middle = tree.middleGroup(key)) {
    for (const auto& sub : middle->mSubGroups) {
      collectWhole(tree, sub->mKey, known, keys);
    }
  }
  keys.append(key);
}

Edit_Result gone() {
  return Edit_Result::refused(tr("Die Adresse gibt es nicht mehr."));
}

Edit_Result full(const QString& group, const QString& allowed) {
  return Edit_Result::refused(tr("In der Gruppe %1 sind nicht genug Nummern frei (%2).").arg(group, allowed));
}

/// The number that a text gives to the group of that key.
std::optional<Group_Address> wanted(const Address_Tree& tree, const QUuid& key, const QString& text, QString& error) {
  if (tree.subGroup(key)) {
    return Group_Address::parse(text, &error);
  }
  return tree.middleGroup(key) ? Group_Address::parseMiddleGroup(text, &error)
                               : Group_Address::parseMainGroup(text, &error);
}

/// Who has the number already, other than the group itself.
QString takenBy(const Address_Tree& tree, const QUuid& key, const Group_Address& number) {
  const auto told = [&key](const auto* present, const QString& text) {
    return present && present->mKey != key ? tr("%1 gibt es schon: \"%2\".").arg(text, present->mName) : QString();
  };
  if (tree.subGroup(key)) {
    return told(tree.subGroup(number), number.toString());
  }
  if (tree.middleGroup(key)) {
    return told(tree.middleGroup(number.main(), number.middle()),
                Group_Address::middleGroupText(number.main(), number.middle()));
  }
  return told(tree.mainGroup(number.main()), Group_Address::mainGroupText(number.main()));
}

void changeNumber(DB_Data_Base& record, const Group_Address& number, const QUuid& parent) {
  if (auto* const sub = dynamic_cast<DB_Address_Sub_Group*>(&record)) {
    sub->mNumber = number.sub();
    sub->mMiddleKey = parent;
  } else if (auto* const middle = dynamic_cast<DB_Address_Middle_Group*>(&record)) {
    middle->mNumber = number.middle();
    middle->mMainKey = parent;
  } else if (auto* const main = dynamic_cast<DB_Address_MainGroup*>(&record)) {
    main->mNumber = number.main();
  }
}

/// Whether so many more fit into a group.
Edit_Result checkRoom(Project_Session& session, const QUuid& target, qsizetype count) {
  const Address_Tree& tree = session.database().mAddresses;
  if (count <= Address_Edits::freeCount(session, target)) {
    return Edit_Result::done();
  }
  if (const DB_Address_Middle_Group* const middle = tree.middleGroup(target)) {
    const int main = tree.mainGroup(middle->mMainKey)->mNumber;
    return full(Group_Address::middleGroupText(main, middle->mNumber),
                QStringLiteral("%1..255").arg(firstSub(main, middle->mNumber)));
  }
  return full(Group_Address::mainGroupText(tree.mainGroup(target)->mNumber), QStringLiteral("0..7"));
}

/// Where one of the moved groups goes; empty when the target has no room.
std::optional<Group_Address> numberIn(Project_Session& session, const QUuid& key, const QUuid& target) {
  const Address_Tree& tree = session.database().mAddresses;
  if (const DB_Address_Middle_Group* const middle = tree.middleGroup(target)) {
    const int main = tree.mainGroup(middle->mMainKey)->mNumber;
    const int sub = Address_Edits::freeSub(session, main, middle->mNumber, tree.subGroup(key)->mNumber);
    return sub < 0 ? std::nullopt : std::optional(Group_Address(main, middle->mNumber, sub));
  }
  const int main = tree.mainGroup(target)->mNumber;
  const int middle = Address_Edits::freeMiddle(session, main, tree.middleGroup(key)->mNumber);
  return middle < 0 ? std::nullopt : std::optional(Group_Address(main, middle, 0));
}

} // namespace

int Address_Edits::freeMain(Project_Session& session, int from) {
  const Address_Tree& tree = session.database().mAddresses;
  return firstFree(0, Group_Address::cMainMax, from, [&](int main) { return tree.mainGroup(main) != nullptr; });
}

int Address_Edits::freeMiddle(Project_Session& session, int main, int from) {
  const Address_Tree& tree = session.database().mAddresses;
  return firstFree(0, Group_Address::cMiddleMax, from,
                   [&](int middle) { return tree.middleGroup(main, middle) != nullptr; });
}

int Address_Edits::freeSub(Project_Session& session, int main, int middle, int from) {
  const Address_Tree& tree = session.database().mAddresses;
  return firstFree(firstSub(main, middle), Group_Address::cSubMax, from, [&](int sub) {
    return tree.subGroup({main, middle, sub}) != nullptr;
  });
}

int Address_Edits::freeCount(Project_Session& session, const QUuid& group) {
  const Address_Tree& tree = session.database().mAddresses;
  const auto count = [](int first, int last, auto&& isTaken) {
    int free = 0;
    for (int number = first; number <= last; ++number) {
      free += isTaken(number) ? 0 : 1;
    }
    return free;
  };
  if (const DB_Address_Middle_Group* const middle = tree.middleGroup(group)) {
    const int main = tree.mainGroup(middle->mMainKey)->mNumber;
    return count(firstSub(main, middle->mNumber), Group_Address::cSubMax, [&](int sub) {
      return tree.subGroup({main, middle->mNumber, sub}) != nullptr;
    });
  }
  if (const DB_Address_MainGroup* const main = tree.mainGroup(group)) {
    return count(0, Group_Address::cMiddleMax,
                 [&](int middle) { return tree.middleGroup(main->mNumber, middle) != nullptr; });
  }
  return count(0, Group_Address::cMainMax, [&](int main) { return tree.mainGroup(main) != nullptr; });
}

Address_Edits::Deletion Address_Edits::whatRemoves(Project_Session& session, const QList<QUuid>& keys,
                                                   const Address_Usage& usage) {
  const Address_Tree& tree = session.database().mAddresses;
  QSet<QUuid> known;
  QList<QUuid> whole;
  for (const QUuid& key : keys) {
    collectWhole(tree, key, known, whole);
  }
  Deletion deletion;
  for (const QUuid& key : std::as_const(whole)) {
    deletion.mAddresses += tree.subGroup(key) ? 1 : 0;
    deletion.mUses += usage.count(key);
  }
  const auto& recordings = session.database().mStatistic.mRecordings;
  deletion.mRecordings = std::ranges::count_if(
      recordings, [&known](const DB_Statistic::Recording& recording) { return known.contains(recording.mAddressKey); });
  return deletion;
}

Edit_Result Address_Edits::remove(Project_Session& session, const QList<QUuid>& keys) {
  Address_Tree& tree = session.database().mAddresses;
  QSet<QUuid> known;
  QList<QUuid> whole;
  for (const QUuid& key : keys) {
    collectWhole(tree, key, known, whole);
  }
  if (whole.isEmpty()) {
    return gone();
  }
  Edit_Scope scope(session.history(), tr("Löschen"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  tree.beginChange();
  for (const QUuid& key : std::as_const(whole)) {
    scope.deleted(session.addressUndo(), key);
    tree.take(key);
  }
  tree.endChange();
  return Edit_Result::done();
}

Edit_Result Address_Edits::checkNumber(Project_Session& session, const QUuid& key, const QString& text) {
  const Address_Tree& tree = session.database().mAddresses;
  if (!tree.record(key)) {
    return gone();
  }
  QString error;
  const std::optional<Group_Address> number = wanted(tree, key, text, error);
  return number ? Edit_Result{takenBy(tree, key, *number)} : Edit_Result::refused(error);
}

Edit_Result Address_Edits::renumber(Project_Session& session, const QUuid& key, const QString& text) {
  if (Edit_Result result = checkNumber(session, key, text); !result) {
    return result;
  }
  Address_Tree& tree = session.database().mAddresses;
  QString error;
  const Group_Address number = *wanted(tree, key, text, error);
  Edit_Scope scope(session.history(), tr("Nummer ändern"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  tree.beginChange();
  QUuid parent;
  if (tree.subGroup(key)) {
    if (!tree.middleGroup(number.main(), number.middle())) {
      addMiddleGroup(session, number.main(), number.middle(), {});
    }
    parent = tree.middleGroup(number.main(), number.middle())->mKey;
  } else if (tree.middleGroup(key)) {
    if (!tree.mainGroup(number.main())) {
      addMainGroup(session, number.main(), {});
    }
    parent = tree.mainGroup(number.main())->mKey;
  }
  scope.modified(session.addressUndo(), key);
  tree.change(key, [&](DB_Data_Base& record) { changeNumber(record, number, parent); });
  tree.endChange();
  return Edit_Result::done();
}

Edit_Result Address_Edits::move(Project_Session& session, const QList<QUuid>& keys, const QUuid& target) {
  Address_Tree& tree = session.database().mAddresses;
  const DB_Address_Middle_Group* const middle = tree.middleGroup(target);
  const DB_Address_MainGroup* const main = tree.mainGroup(target);
  QList<QUuid> moved;
  for (const QUuid& key : keys) {
    const DB_Address_Sub_Group* const sub = tree.subGroup(key);
    const DB_Address_Middle_Group* const group = tree.middleGroup(key);
    if (!tree.record(key)) {
      return gone();
    }
    const bool isThere = (sub && sub->mMiddleKey == target) || (group && group->mMainKey == target);
    if (!isThere && ((middle && sub) || (main && group))) {
      moved.append(key);
    } else if (!isThere) {
      return Edit_Result::refused(
          tr("Adressen lassen sich nur in eine Mittelgruppe verschieben, Mittelgruppen nur in eine Hauptgruppe."));
    }
  }
  if (!middle && !main) {
    return gone();
  }
  if (Edit_Result result = checkRoom(session, target, moved.size()); !result) {
    return result;
  }
  Edit_Scope scope(session.history(), tr("Verschieben"));
  if (!scope) {
    return Edit_Result::refused(scope.refusal());
  }
  tree.beginChange();
  for (const QUuid& key : std::as_const(moved)) {
    if (const std::optional<Group_Address> number = numberIn(session, key, target)) {
      scope.modified(session.addressUndo(), key);
      tree.change(key, [&](DB_Data_Base& record) { changeNumber(record, *number, target); });
    }
  }
  tree.endChange();
  return Edit_Result::done();
}
