// Pastes arbitrary bytes into a small project and undoes it: the first byte chooses between what the studio packs and a
// table of text, and the target. The project must be as before.
#include "db/Address_Table_Paste.h"
#include "db/Project_Session.h"
#include "tests/db/Project_Dump.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void require(bool isTrue, const char* what) {
  if (!isTrue) {
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
  }
}

/// Two middle groups of a main group, one of them with two addresses and the other nearly full, and an empty main
/// group; everything has a key that seeds can name.
class Fuzz_Project {
public:
  Fuzz_Project() {
    constexpr int cNearlyAll = 250;
    require(mFolder.isValid() && mSession.create(mFolder.filePath(QStringLiteral("Haus.zpro")), {}),
            "the project is there");
    addGroup(add<DB_Address_MainGroup>(1), {1, 2});
    add<DB_Address_MainGroup>(2);
    for (const int sub : {3, 7}) {
      addSub(1, sub);
    }
    for (int sub = 0; sub < cNearlyAll; ++sub) {
      addSub(2, sub);
    }
    mSession.history().clear();
    mBefore = dump();
  }

  [[nodiscard]] Project_Session& session() { return mSession; }

  /// The addresses 1/1/3 and 1/2/0, the groups around them, the empty group, nothing.
  [[nodiscard]] QUuid target(unsigned choice) {
    const Address_Tree& tree = session().database().mAddresses;
    const QUuid targets[] = {tree.subGroup({1, 1, 3})->mKey,
                             tree.subGroup({1, 2, 0})->mKey,
                             tree.middleGroup(1, 1)->mKey,
                             tree.middleGroup(1, 2)->mKey,
                             tree.mainGroup(1)->mKey,
                             tree.mainGroup(2)->mKey,
                             QUuid()};
    return targets[choice % std::size(targets)];
  }

  /// Nothing that the tree holds is out of its range, and undoing brings back what was.
  void checkAndUndo(const Edit_Result& edit) {
    History& history = session().history();
    history.commit();
    checkTree();
    require(bool(edit) || history.position() == 0, "what is refused changes nothing");
    while (history.canUndo()) {
      require(history.undo(), "it can be undone");
    }
    require(dump() == mBefore, "undoing brings back what was");
    history.clear();
  }

private:
  [[nodiscard]] static QUuid key() {
    static int count = 0;
    return QUuid(QStringLiteral("{00000000-0000-4000-8000-%1}").arg(++count, 12, 10, QChar(u'0')));
  }

  template <class Group>
  QUuid add(int number, const std::function<void(Group&)>& set = {}) {
    auto group = std::make_unique<Group>();
    group->mKey = key();
    group->mNumber = number;
    group->mName = QStringLiteral("Gruppe %1").arg(number);
    if (set) {
      set(*group);
    }
    return session().database().mAddresses.add(std::move(group))->mKey;
  }

  void addGroup(const QUuid& main, const QList<int>& middles) {
    for (const int number : middles) {
      add<DB_Address_Middle_Group>(number, [&main](DB_Address_Middle_Group& group) { group.mMainKey = main; });
    }
  }

  void addSub(int middle, int number) {
    const QUuid middleKey = session().database().mAddresses.middleGroup(1, middle)->mKey;
    add<DB_Address_Sub_Group>(number, [&](DB_Address_Sub_Group& group) { group.mMiddleKey = middleKey; });
  }

  [[nodiscard]] QByteArray dump() {
    QByteArray text;
    Project_Dump::appendAddresses(text, session().database().mAddresses);
    return text;
  }

  void checkTree() {
    const Address_Tree& tree = session().database().mAddresses;
    for (const auto& main : tree.mainGroups()) {
      require(main->mNumber >= 0 && main->mNumber <= Group_Address::cMainMax, "main groups are on the bus");
      for (const auto& middle : main->mMiddleGroups) {
        require(middle->mMainKey == main->mKey, "middle groups are where they belong");
        for (const auto& sub : middle->mSubGroups) {
          const Group_Address address(main->mNumber, middle->mNumber, sub->mNumber);
          require(sub->mMiddleKey == middle->mKey && address.isOnBus(), "addresses are on the bus");
          require(tree.subGroup(address) == sub.get(), "numbers are free when they are taken");
          require(tree.subGroup(sub->mKey) == sub.get(), "keys are unique");
        }
      }
    }
    require(!dump().contains("NOT FOUND"), "everything is found by its key");
  }

  Session_State mState;
  QTemporaryDir mFolder;
  Project_Session mSession{mState};
  QByteArray mBefore;
};

QCoreApplication& application() {
  static int count = 1;
  static char name[] = "fuzz";
  static char* names[] = {name, nullptr};
  static QCoreApplication application(count, names);
  return application;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) {
    return 0;
  }
  application();
  static Fuzz_Project project;
  QByteArray bytes(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  const QUuid target = project.target(data[0] / 2);
  Address_Clipboard::Result result;
  if (data[0] % 2 == 0) {
    // The file of the project has another name in each run.
    bytes.replace("%PROJECT%", project.session().path().toUtf8());
    const Edit_Result edit = Address_Clipboard::paste(project.session(), bytes, target, result);
    require(bool(edit) == !result.mKeys.isEmpty(), "something is pasted, or it is refused");
    project.checkAndUndo(edit);
  } else {
    const Edit_Result edit = Address_Table_Paste::paste(project.session(), QString::fromUtf8(bytes), target, result);
    require(bool(edit) == !result.mKeys.isEmpty(), "something is pasted, or it is refused");
    project.checkAndUndo(edit);
  }
  return 0;
}
