#pragma once

#include "base/Group_Address.h"
#include "db/DB_Address_Groups.h"

#include <QHash>
#include <QObject>
#include <QUuid>

#include <functional>
#include <memory>

/// The project's group addresses: main groups, each with its middle groups, each with its group addresses, every level
/// ordered by number (equal numbers in the order in which they came).
///
/// Groups are found by key and by number in constant time, also while many are added. Where several share a number or a
/// key, the first in order is found. Several changes at once are framed by `beginChange` and `endChange`, which may be
/// nested; listeners hear of the whole once.
class Address_Tree : public QObject {
  Q_OBJECT

public:
  using QObject::QObject;

  [[nodiscard]] const DB_Children<DB_Address_MainGroup>& mainGroups() const { return mMainGroups; }
  [[nodiscard]] qsizetype middleGroupCount() const { return mMiddleByKey.size(); }
  [[nodiscard]] qsizetype subGroupCount() const { return mSubByKey.size(); }

  /// Each of these answers null when there is none.
  [[nodiscard]] DB_Address_MainGroup* mainGroup(const QUuid& key) const { return mMainByKey.value(key); }
  [[nodiscard]] DB_Address_Middle_Group* middleGroup(const QUuid& key) const { return mMiddleByKey.value(key); }
  [[nodiscard]] DB_Address_Sub_Group* subGroup(const QUuid& key) const { return mSubByKey.value(key); }
  [[nodiscard]] DB_Address_MainGroup* mainGroup(int main) const { return mMainByNumber.value(main); }
  [[nodiscard]] DB_Address_Middle_Group* middleGroup(int main, int middle) const;
  [[nodiscard]] DB_Address_Sub_Group* subGroup(const Group_Address& address) const {
    return mSubByAddress.value(address);
  }

  /// Where a group address that is in the tree stands.
  [[nodiscard]] Group_Address addressOf(const DB_Address_Sub_Group& group) const;

  /// Takes a group over, at its place by number; a null or already used key is replaced by a fresh one. A middle or sub
  /// group is put under the group that its parent key names; null (and the group is gone) when there is none. Among
  /// groups of the same number it goes to `place` in its parent's list where that fits, else behind them.
  DB_Address_MainGroup* add(std::unique_ptr<DB_Address_MainGroup> group, qsizetype place = -1);
  DB_Address_Middle_Group* add(std::unique_ptr<DB_Address_Middle_Group> group, qsizetype place = -1);
  DB_Address_Sub_Group* add(std::unique_ptr<DB_Address_Sub_Group> group, qsizetype place = -1);

  /// Takes the group of that key out, of any level; a main or middle group only when it is empty. Null otherwise.
  std::unique_ptr<DB_Data_Base> take(const QUuid& key);

  /// The group of that key, of any level, as a record; null when there is none.
  [[nodiscard]] DB_Data_Base* record(const QUuid& key) const;
  /// Its index in its parent's list; -1 when there is none.
  [[nodiscard]] qsizetype placeOf(const QUuid& key) const;

  /// Applies `change` to the record of that key, keeps order and indices right when it changes the number or the
  /// parent's key, and tells. A parent that is not in the tree is not taken over; the group's own key must stay as it
  /// is. Among groups of the same number it goes to `wanted` as for `add`. False when there is no such group.
  bool change(const QUuid& key, const std::function<void(DB_Data_Base& record)>& change, qsizetype wanted = -1);

  /// Makes room for so many group addresses, at most for those of the largest project; adding them is faster then.
  void reserve(qint64 subGroups);

  void clear();

  void beginChange();
  void endChange();
  /// Between the outermost two of them.
  [[nodiscard]] bool isChanging() const { return mChangeDepth > 0; }

signals:
  /// One group's texts or attributes changed; the structure did not.
  void recordChanged(const QUuid& key);
  void structureAboutToChange();
  void structureChanged();

private:
  /// Each looks up anew in the ordered lists which group is found under a number.
  void findMain(int number);
  void findMiddle(int main, int middle);
  void findSub(const Group_Address& address);
  /// The same for a group and everything below it, as if it stood there.
  void findAgain(const DB_Address_Middle_Group& group, int main, int number);
  void findAgain(const DB_Address_MainGroup& group, int number);

  struct Rearrangement {
    bool mIsOtherParent = false;
    bool mIsOtherNumber = false;
    qsizetype mPlace = -1; ///< before the change
    qsizetype mWanted = -1;
  };
  /// Brings a changed group to its place, looks up with `findAgain` what is found now, and tells.
  template <class Group, class FindAgain>
  void rearrange(Group& group, const Rearrangement& what, DB_Children<Group>& from, DB_Children<Group>& to,
                 FindAgain&& findAgain);

  DB_Children<DB_Address_MainGroup> mMainGroups;
  QHash<QUuid, DB_Address_MainGroup*> mMainByKey;
  QHash<QUuid, DB_Address_Middle_Group*> mMiddleByKey;
  QHash<QUuid, DB_Address_Sub_Group*> mSubByKey;
  QHash<int, DB_Address_MainGroup*> mMainByNumber;
  QHash<Group_Address, DB_Address_Middle_Group*> mMiddleByNumber; ///< sub is 0
  QHash<Group_Address, DB_Address_Sub_Group*> mSubByAddress;
  int mChangeDepth = 0;
};
