#include "db/Address_Tree.h"

#include <QRandomGenerator>
#include <QtTest>

namespace {

DB_Address_MainGroup* addMain(Address_Tree& tree, int number) {
  auto group = std::make_unique<DB_Address_MainGroup>();
  group->mNumber = number;
  return tree.add(std::move(group));
}

DB_Address_Middle_Group* addMiddle(Address_Tree& tree, const QUuid& main, int number) {
  auto group = std::make_unique<DB_Address_Middle_Group>();
  group->mMainKey = main;
  group->mNumber = number;
  return tree.add(std::move(group));
}

DB_Address_Sub_Group* addSub(Address_Tree& tree, const QUuid& middle, int number) {
  auto group = std::make_unique<DB_Address_Sub_Group>();
  group->mMiddleKey = middle;
  group->mNumber = number;
  return tree.add(std::move(group));
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

void moveTo(Address_Tree& tree, const QUuid& key, const QUuid& parent) {
  QVERIFY(tree.change(key, [&parent](DB_Data_Base& record) {
    if (auto* const middle = dynamic_cast<DB_Address_Middle_Group*>(&record)) {
      middle->mMainKey = parent;
    } else {
      static_cast<DB_Address_Sub_Group&>(record).mMiddleKey = parent;
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
  void moveTo(const QUuid& key, const QUuid& parent) {
    const auto at = find(key);
    at->mParent = parent;
    std::rotate(at, at + 1, mGroups.end());
  }
  [[nodiscard]] int depth(const QUuid& key) { return key.isNull() ? 0 : 1 + depth(find(key)->mParent); }
  /// A line for each group, and in `first` the one that each number finds.
  QStringList lines(QMap<QString, QUuid>& first, const QUuid& parent = {}, const QString& path = {}) const {
    QStringList lines;
    qsizetype place = 0;
    for (const Group& group : below(parent)) {
      const QString here = path + u'/' + QString::number(group.mNumber);
      lines.append(QStringLiteral("%1 %2 %3").arg(here, group.mKey.toString()).arg(place++));
      if (!first.contains(here)) {
        first.insert(here, group.mKey);
      }
      lines += this->lines(first, group.mKey, here);
    }
    return lines;
  }
};

QStringList lines(const Address_Tree& tree) {
  QStringList lines;
  const auto tell = [&](const QString& path, const auto& group) {
    QString here = path + u'/' + QString::number(group->mNumber);
    lines.append(QStringLiteral("%1 %2 %3").arg(here, group->mKey.toString()).arg(tree.placeOf(group->mKey)));
    return here;
  };
  for (const auto& main : tree.mainGroups()) {
    const QString mainPath = tell({}, main);
    for (const auto& middle : main->mMiddleGroups) {
      const QString middlePath = tell(mainPath, middle);
      for (const auto& sub : middle->mSubGroups) {
        tell(middlePath, sub);
      }
    }
  }
  return lines;
}

/// What the tree finds by every number below `end`, as `Plain_Tree::lines` tells it.
QMap<QString, QUuid> found(const Address_Tree& tree, int end) {
  QMap<QString, QUuid> found;
  const auto note = [&found](const auto* group, const QString& path) {
    if (group) {
      found.insert(path, group->mKey);
    }
  };
  for (int main = 0; main < end; ++main) {
    note(tree.mainGroup(main), QStringLiteral("/%1").arg(main));
    for (int middle = 0; middle < end; ++middle) {
      note(tree.middleGroup(main, middle), QStringLiteral("/%1/%2").arg(main).arg(middle));
      for (int sub = 0; sub < end; ++sub) {
        note(tree.subGroup({main, middle, sub}), QStringLiteral("/%1/%2/%3").arg(main).arg(middle).arg(sub));
      }
    }
  }
  return found;
}

} // namespace

class Address_Tree_Test : public QObject {
  Q_OBJECT

private slots:
  void signalsAreFramed() {
    Address_Tree tree;
    QStringList told;
    connect(&tree, &Address_Tree::structureAboutToChange, this, [&] { told.append("about"); });
    connect(&tree, &Address_Tree::structureChanged, this, [&] { told.append("done"); });
    connect(&tree, &Address_Tree::recordChanged, this, [&] { told.append("record"); });
    const QUuid main = addMain(tree, 1)->mKey;
    tree.beginChange();
    tree.beginChange();
    addMiddle(tree, main, 1);
    tree.endChange();
    addMiddle(tree, main, 2);
    QCOMPARE(told, QStringList({"about", "done", "about"}));
    tree.endChange();
    tree.change(main, [](DB_Data_Base& group) { static_cast<DB_Address_MainGroup&>(group).mName = "Licht"; });
    setNumber(tree, main, 7);
    tree.clear();
    QCOMPARE(told, QStringList({"about", "done", "about", "done", "record", "about", "done", "about", "done"}));
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
          plain.mGroups.erase(plain.find(key));
        }
      } else {
        const QUuid key = anyKey();
        const bool isOther = plain.find(key)->mNumber != number;
        setNumber(tree, key, number);
        if (isOther) {
          plain.setNumber(key, number);
        }
        const QUuid parent = anyKey();
        const int depth = plain.depth(key);
        if (depth > 1) {
          const bool fits = plain.depth(parent) == depth - 1;
          moveTo(tree, key, parent);
          if (fits && parent != plain.find(key)->mParent) {
            plain.moveTo(key, parent);
          }
        }
      }
      if (step % 10 == 0 || step < 300) {
        QMap<QString, QUuid> first;
        QCOMPARE(lines(tree), plain.lines(first));
        QCOMPARE(found(tree, 4), first);
      }
    }
    QCOMPARE(qsizetype(plain.mGroups.size()),
             tree.mainGroups().size() + tree.middleGroupCount() + tree.subGroupCount());
  }
};

QTEST_APPLESS_MAIN(Address_Tree_Test)
#include "Address_Tree_Test.moc"
