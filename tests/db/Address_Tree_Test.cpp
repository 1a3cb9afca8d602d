#include "db/Address_Tree.h"

#include <QElapsedTimer>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QtTest>

namespace {

DB_Address_MainGroup* addMain(Address_Tree& tree, int number, qsizetype place = -1) {
  auto group = std::make_unique<DB_Address_MainGroup>();
  group->mNumber = number;
  return tree.add(std::move(group), place);
}

DB_Address_Middle_Group* addMiddle(Address_Tree& tree, const QUuid& main, int number, qsizetype place = -1) {
  auto group = std::make_unique<DB_Address_Middle_Group>();
  group->mMainKey = main;
  group->mNumber = number;
  return tree.add(std::move(group), place);
}

DB_Address_Sub_Group* addSub(Address_Tree& tree, const QUuid& middle, int number, qsizetype place = -1) {
  auto group = std::make_unique<DB_Address_Sub_Group>();
  group->mMiddleKey = middle;
  group->mNumber = number;
  return tree.add(std::move(group), place);
}

void setNumber(Address_Tree& tree, const QUuid& key, int number) {
  QVERIFY(tree.change(key, [number](DB_Data_Base& record) {
    if (auto* const main = dynamic_cast<DB_Address_MainGroup*>(&record)) {
      main->mNumber = number;
    } else if (auto* const middle = dynamic_cast<DB_Address_Middle_Group*>(&record)) {
      middle->mNumber = number;
    } else {
      static_cast<DB_Address_Sub_Group&>(record).mNumber = number;
    }
  }));
}

/// The tree's rules told in the plainest way: a list of groups of all levels that is sorted anew for every question.
struct Plain_Tree {
  struct Group {
    QUuid mKey;
    QUuid mParent;
    int mNumber = 0;
  };
  std::vector<Group> mGroups; ///< siblings of one number in their order

  [[nodiscard]] std::vector<Group> below(const QUuid& parent) const {
    std::vector<Group> groups;
    std::copy_if(mGroups.cbegin(), mGroups.cend(), std::back_inserter(groups),
                 [&parent](const Group& group) { return group.mParent == parent; });
    std::stable_sort(groups.begin(), groups.end(),
                     [](const Group& a, const Group& b) { return a.mNumber < b.mNumber; });
    return groups;
  }
  auto find(const QUuid& key) {
    return std::find_if(mGroups.begin(), mGroups.end(), [&key](const Group& group) { return group.mKey == key; });
  }
  void setNumber(const QUuid& key, int number) {
    const auto at = find(key);
    at->mNumber = number;
    std::rotate(at, at + 1, mGroups.end());
  }
  void take(const QUuid& key) { mGroups.erase(find(key)); }
};

/// Compares order, places and everything that is found by number; the text of the first difference, or empty.
QString difference(const Address_Tree& tree, const Plain_Tree& plain) {
  QHash<Group_Address, QUuid> firstSub;
  QHash<Group_Address, QUuid> firstMiddle;
  QHash<int, QUuid> firstMain;
  const auto note = [](auto& first, const auto& number, const QUuid& key) {
    if (!first.contains(number)) {
      first.insert(number, key);
    }
  };
  const auto isAt = [&tree](const auto& list, size_t i, const Plain_Tree::Group& group) {
    return static_cast<size_t>(list.size()) > i && list.at(qsizetype(i)).mKey == group.mKey &&
           list.at(qsizetype(i)).mNumber == group.mNumber && tree.placeOf(group.mKey) == qsizetype(i);
  };
  const auto mains = plain.below({});
  for (size_t i = 0; i < mains.size(); ++i) {
    if (!isAt(tree.mainGroups(), i, mains[i])) {
      return QStringLiteral("main group %1").arg(i);
    }
    note(firstMain, mains[i].mNumber, mains[i].mKey);
    const auto middles = plain.below(mains[i].mKey);
    for (size_t j = 0; j < middles.size(); ++j) {
      if (!isAt(tree.mainGroup(mains[i].mKey)->mMiddleGroups, j, middles[j])) {
        return QStringLiteral("middle group %1 of %2").arg(j).arg(i);
      }
      note(firstMiddle, Group_Address(mains[i].mNumber, middles[j].mNumber, 0), middles[j].mKey);
      const auto subs = plain.below(middles[j].mKey);
      for (size_t k = 0; k < subs.size(); ++k) {
        if (!isAt(tree.middleGroup(middles[j].mKey)->mSubGroups, k, subs[k])) {
          return QStringLiteral("sub group %1 of %2/%3").arg(k).arg(i).arg(j);
        }
        note(firstSub, Group_Address(mains[i].mNumber, middles[j].mNumber, subs[k].mNumber), subs[k].mKey);
      }
    }
  }
  constexpr int cNumbers = 4;
  for (int main = 0; main < cNumbers; ++main) {
    const auto* const mainGroup = tree.mainGroup(main);
    if ((mainGroup ? mainGroup->mKey : QUuid()) != firstMain.value(main)) {
      return QStringLiteral("found %1").arg(main);
    }
    for (int middle = 0; middle < cNumbers; ++middle) {
      const auto* const middleGroup = tree.middleGroup(main, middle);
      if ((middleGroup ? middleGroup->mKey : QUuid()) != firstMiddle.value(Group_Address(main, middle, 0))) {
        return QStringLiteral("found %1/%2").arg(main).arg(middle);
      }
      for (int sub = 0; sub < cNumbers; ++sub) {
        const Group_Address address(main, middle, sub);
        const auto* const subGroup = tree.subGroup(address);
        if ((subGroup ? subGroup->mKey : QUuid()) != firstSub.value(address)) {
          return QStringLiteral("found ") + address.toString();
        }
      }
    }
  }
  return {};
}

} // namespace

class Address_Tree_Test : public QObject {
  Q_OBJECT

private slots:
  void findsWhileAdding() {
    Address_Tree tree;
    QElapsedTimer timer;
    timer.start();
    tree.beginChange();
    for (int number = 0; number < 65'536; ++number) {
      const auto address = Group_Address::fromNumber(static_cast<quint16>(number));
      if (!tree.mainGroup(address.main())) {
        addMain(tree, address.main());
      }
      if (!tree.middleGroup(address.main(), address.middle())) {
        addMiddle(tree, tree.mainGroup(address.main())->mKey, address.middle());
      }
      QVERIFY(!tree.subGroup(address));
      const auto* const sub = addSub(tree, tree.middleGroup(address.main(), address.middle())->mKey, address.sub());
      QVERIFY(tree.subGroup(address) == sub && tree.subGroup(sub->mKey) == sub && tree.addressOf(*sub) == address);
    }
    tree.endChange();
    QCOMPARE(tree.mainGroups().size(), 32);
    QCOMPARE(tree.middleGroupCount(), 256);
    QCOMPARE(tree.subGroupCount(), 65'536);
    QVERIFY2(timer.elapsed() < 20'000, qPrintable(QString::number(timer.elapsed())));
  }

  /// With one number standing twice, taking all out must not look at all the others each time.
  void takesManyWithDuplicates() {
    Address_Tree tree;
    const QUuid main = addMain(tree, 1)->mKey;
    const QUuid middle = addMiddle(tree, main, 1)->mKey;
    QList<QUuid> keys;
    for (int i = 0; i < 20'000; ++i) {
      keys.append(addSub(tree, middle, i / 2)->mKey);
    }
    QElapsedTimer timer;
    timer.start();
    for (const QUuid& key : std::as_const(keys)) {
      QVERIFY(tree.take(key));
    }
    QVERIFY2(timer.elapsed() < 10'000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(tree.subGroupCount(), 0);
    QVERIFY(!tree.subGroup(Group_Address(1, 1, 5)));
  }

  void duplicates() {
    Address_Tree tree;
    const QUuid main = addMain(tree, 1)->mKey;
    const QUuid middle = addMiddle(tree, main, 2)->mKey;
    const QUuid twin = addMiddle(tree, main, 2)->mKey;
    const Group_Address address(1, 2, 3);
    const QUuid late = addSub(tree, twin, 3)->mKey;
    QCOMPARE(tree.subGroup(address)->mKey, late);
    const QUuid early = addSub(tree, middle, 3)->mKey;
    QCOMPARE(tree.subGroup(address)->mKey, early);
    const QUuid second = addSub(tree, middle, 3)->mKey;
    QCOMPARE(tree.placeOf(second), 1);
    std::unique_ptr<DB_Data_Base> taken = tree.take(early);
    QCOMPARE(tree.subGroup(address)->mKey, second);
    // Undo puts it back where it stood: it is the first again.
    tree.add(std::unique_ptr<DB_Address_Sub_Group>(static_cast<DB_Address_Sub_Group*>(taken.release())), 0);
    QCOMPARE(tree.subGroup(address)->mKey, early);
    QCOMPARE(tree.placeOf(early), 0);
    setNumber(tree, early, 9);
    QCOMPARE(tree.subGroup(address)->mKey, second);
    QVERIFY(tree.take(second));
    QCOMPARE(tree.subGroup(address)->mKey, late);
    QVERIFY(tree.take(late));
    QVERIFY(!tree.subGroup(address));
  }

  void place_data() {
    QTest::addColumn<int>("number");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("place");
    // Among main groups 1, 3, 3, 5.
    QTest::newRow("behind equal ones") << 3 << -1 << 3;
    QTest::newRow("before equal ones") << 3 << 1 << 1;
    QTest::newRow("between equal ones") << 3 << 2 << 2;
    QTest::newRow("not where the order breaks") << 3 << 0 << 3;
    QTest::newRow("not behind larger ones") << 3 << 4 << 3;
    QTest::newRow("beyond the list") << 3 << 99 << 3;
    QTest::newRow("smallest") << 0 << 3 << 0;
    QTest::newRow("largest") << 40 << 0 << 4;
  }

  void place() {
    QFETCH(int, number);
    QFETCH(int, wanted);
    Address_Tree tree;
    for (const int other : {5, 3, 1, 3}) {
      addMain(tree, other);
    }
    const auto* const added = addMain(tree, number, wanted);
    QTEST(static_cast<int>(tree.placeOf(added->mKey)), "place");
  }

  void keysAndParents() {
    Address_Tree tree;
    const QUuid main = addMain(tree, 1)->mKey;
    QVERIFY(!main.isNull());
    auto same = std::make_unique<DB_Address_Middle_Group>();
    same->mKey = main;
    same->mMainKey = main;
    const auto* const middle = tree.add(std::move(same));
    QVERIFY(middle && middle->mKey != main);
    QVERIFY(!addMiddle(tree, QUuid::createUuid(), 0));
    QVERIFY(!addSub(tree, main, 0));
    QVERIFY(!tree.record(QUuid::createUuid()));
    QCOMPARE(tree.placeOf(QUuid::createUuid()), -1);
    QVERIFY(!tree.take(QUuid::createUuid()));
    QVERIFY(!tree.change(QUuid::createUuid(), [](DB_Data_Base&) { QFAIL("called"); }));
    QCOMPARE(tree.record(main), static_cast<DB_Data_Base*>(tree.mainGroup(main)));
  }

  void takesOnlyEmptyGroups() {
    Address_Tree tree;
    const QUuid main = addMain(tree, 1)->mKey;
    const QUuid middle = addMiddle(tree, main, 2)->mKey;
    const QUuid sub = addSub(tree, middle, 3)->mKey;
    QSignalSpy changed(&tree, &Address_Tree::structureChanged);
    QVERIFY(!tree.take(main));
    QVERIFY(!tree.take(middle));
    QCOMPARE(changed.count(), 0);
    QVERIFY(tree.take(sub));
    QVERIFY(!tree.take(main));
    QVERIFY(tree.take(middle));
    QVERIFY(tree.take(main));
    QVERIFY(tree.mainGroups().isEmpty() && !tree.mainGroup(1) && !tree.middleGroup(1, 2));
  }

  void signalsAreFramed() {
    Address_Tree tree;
    QStringList told;
    connect(&tree, &Address_Tree::structureAboutToChange, this, [&] { told.append("about"); });
    connect(&tree, &Address_Tree::structureChanged, this, [&] { told.append("done"); });
    connect(&tree, &Address_Tree::recordChanged, this, [&] { told.append("record"); });
    const QUuid main = addMain(tree, 1)->mKey;
    QCOMPARE(told, QStringList({"about", "done"}));
    told.clear();
    tree.beginChange();
    tree.beginChange();
    addMiddle(tree, main, 1);
    tree.endChange();
    addMiddle(tree, main, 2);
    QCOMPARE(told, QStringList({"about"}));
    tree.endChange();
    QCOMPARE(told, QStringList({"about", "done"}));
    told.clear();
    tree.change(main, [](DB_Data_Base& group) { static_cast<DB_Address_MainGroup&>(group).mName = "Licht"; });
    QCOMPARE(told, QStringList({"record"}));
    told.clear();
    setNumber(tree, main, 7);
    QCOMPARE(told, QStringList({"about", "done"}));
    QVERIFY(tree.middleGroup(7, 2) && !tree.middleGroup(1, 2) && !tree.mainGroup(1));
    told.clear();
    tree.clear();
    QCOMPARE(told, QStringList({"about", "done"}));
    QVERIFY(!tree.mainGroup(main) && !tree.mainGroup(7));
  }

  void likePlainTree() {
    Address_Tree tree;
    Plain_Tree plain;
    QRandomGenerator random(4711);
    const auto anyKey = [&] { return plain.mGroups[random.bounded(quint32(plain.mGroups.size()))].mKey; };
    for (int step = 0; step < 3000; ++step) {
      const int what = plain.mGroups.empty() ? 0 : random.bounded(10);
      const int number = random.bounded(4);
      if (what < 6) {
        const QUuid parent = what < 1 ? QUuid() : anyKey();
        QUuid key;
        if (parent.isNull()) {
          key = addMain(tree, number)->mKey;
        } else if (tree.mainGroup(parent)) {
          key = addMiddle(tree, parent, number)->mKey;
        } else if (tree.middleGroup(parent)) {
          key = addSub(tree, parent, number)->mKey;
        } else {
          QVERIFY(!addMiddle(tree, parent, number) && !addSub(tree, parent, number));
          continue;
        }
        plain.mGroups.push_back({key, parent, number});
      } else if (what < 8) {
        const QUuid key = anyKey();
        const bool isEmpty = plain.below(key).empty();
        QCOMPARE(tree.take(key) != nullptr, isEmpty);
        if (isEmpty) {
          plain.take(key);
        }
      } else {
        const QUuid key = anyKey();
        const bool isOther = plain.find(key)->mNumber != number;
        setNumber(tree, key, number);
        if (isOther) {
          plain.setNumber(key, number);
        }
      }
      if (step % 10 == 0 || step < 300) {
        const QString found = difference(tree, plain);
        QVERIFY2(found.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(step).arg(found)));
      }
    }
    QCOMPARE(qsizetype(plain.mGroups.size()),
             tree.mainGroups().size() + tree.middleGroupCount() + tree.subGroupCount());
  }
};

QTEST_APPLESS_MAIN(Address_Tree_Test)
#include "Address_Tree_Test.moc"
