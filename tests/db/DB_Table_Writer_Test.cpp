#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

#include <QTemporaryDir>
#include <QtTest>

#include <random>

using namespace Project_Sample;

namespace {

using Random = std::mt19937;

template <class List>
auto& any(const List& list, Random& random) {
  return *(list.begin() + static_cast<qsizetype>(random() % static_cast<unsigned>(list.size())));
}

DB_Address_Sub_Group& anyAddress(ProjectDatabase& store, Random& random) {
  return *any(any(store.mAddresses.mainGroups(), random)->mMiddleGroups.at(0).mSubGroups, random);
}

void renameAddress(ProjectDatabase& store, Random& random) {
  anyAddress(store, random).mName += u'x';
}
/// Numbers are used several times, so that the order among equal ones matters.
void addAddress(ProjectDatabase& store, Random& random) {
  auto group = std::make_unique<DB_Address_Sub_Group>(anyAddress(store, random));
  group->mKey = QUuid();
  store.mAddresses.add(std::move(group), random() % 3);
}
void removeAddress(ProjectDatabase& store, Random& random) {
  const DB_Address_Sub_Group& group = anyAddress(store, random);
  if (store.mAddresses.middleGroup(group.mMiddleKey)->mSubGroups.size() > 1) {
    static_cast<void>(store.mAddresses.take(group.mKey));
  }
}
void moveAddress(ProjectDatabase& store, Random& random) {
  const QUuid target = any(store.mAddresses.mainGroups(), random)->mMiddleGroups.at(1).mKey;
  const DB_Address_Sub_Group& group = anyAddress(store, random);
  if (store.mAddresses.middleGroup(group.mMiddleKey)->mSubGroups.size() > 1) {
    store.mAddresses.change(group.mKey,
                            [&](DB_Data_Base& it) { static_cast<DB_Address_Sub_Group&>(it).mMiddleKey = target; });
  }
}
void addMainGroup(ProjectDatabase& store, Random& random) {
  addAddresses(store, 1, 2, 1 + static_cast<int>(random() % 3));
}
void movePage(ProjectDatabase& store, Random& random) {
  store.mFbPages.movePage(static_cast<qsizetype>(random() % 2), static_cast<qsizetype>(random() % 2));
}
void addPage(ProjectDatabase& store, Random& random) {
  auto page = std::make_unique<DB_Widget_Page>();
  store.mWidgetPages.insertPage(static_cast<qsizetype>(random() % 3), std::move(page));
  addPages(store.mWidgetPages, 1, 2);
}
void removePage(ProjectDatabase& store, Random& random) {
  if (store.mWidgetPages.pages().size() > 1) {
    store.mWidgetPages.takePage(any(store.mWidgetPages.pages(), random)->mGuid);
  }
}
void raiseBlock(ProjectDatabase& store, Random& random) {
  const auto& blocks = any(store.mFbPages.pages(), random)->mChildren;
  if (!blocks.isEmpty()) {
    std::unique_ptr<DB_FB_Control> block = store.mFbPages.takeChild(any(blocks, random)->mGuid);
    store.mFbPages.insertChild(static_cast<qsizetype>(random() % 3), std::move(block));
  }
}
void moveBlock(ProjectDatabase& store, Random& random) {
  const DB_FB_Page& target = *any(store.mFbPages.pages(), random);
  const auto& blocks = any(store.mFbPages.pages(), random)->mChildren;
  if (!blocks.isEmpty()) {
    std::unique_ptr<DB_FB_Control> block = store.mFbPages.takeChild(any(blocks, random)->mGuid);
    block->mPageGuid = target.mGuid;
    store.mFbPages.appendChild(std::move(block));
  }
}
void changeSingle(ProjectDatabase& store, Random& random) {
  store.mProject.mAuthor = QString::number(random());
}
void saveAndCompact(ProjectDatabase& store, Random&) {
  static_cast<void>(store.recordWriteAll(true) && store.compact());
}
void reopen(ProjectDatabase& store, Random&) {
  store.openProject(QString(store.fileName()), true);
}

constexpr void (*cSteps[])(ProjectDatabase&, Random&) = {
    renameAddress, addAddress, removeAddress, moveAddress,  addMainGroup,   movePage, addPage,
    removePage,    raiseBlock, moveBlock,     changeSingle, saveAndCompact, reopen};

} // namespace

/// Writing only what changed: the file always holds what memory holds, and no row is written that is there already.
class DB_Table_Writer_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    mPath = mFolder->filePath(QStringLiteral("a.zpro"));
    mStore = std::make_unique<ProjectDatabase>();
    QVERIFY(mStore->openProject(mPath, true));
    fill(*mStore);
    QVERIFY(mStore->recordWriteAll(false));
    // Children without parent are kept: they have an order too.
    DB_Sqlite file;
    QVERIFY(file.open(mPath, DB_Sqlite::Mode::ReadWrite));
    QVERIFY(file.execute("DELETE FROM " + quoted(DB_Table::Main_Groups) + " WHERE rowid=1"));
    file.close();
    QVERIFY(mStore->openProject(mPath, true));
    addAddresses(*mStore, 2, 2, 3);
  }

  void anySequenceOfChanges() {
    Random random(8800); // NOLINT(cert-msc32-c,cert-msc51-cpp): every run takes the same steps
    for (int i = 0; i < 250; ++i) {
      const size_t step = random() % std::size(cSteps);
      cSteps[step](*mStore, random);
      refuseNeedless();
      QVERIFY2(mStore->recordWriteChanged(), qPrintable(mStore->lastError()));
      ProjectDatabase loaded;
      QVERIFY(loaded.openProjectReadOnly(mPath));
      QVERIFY2(Project_Dump::project(loaded, false) == Project_Dump::project(*mStore, false),
               qPrintable(QStringLiteral("step %1, change %2").arg(i).arg(step)));
    }
  }

  void allOrNothing() {
    ProjectDatabase before;
    QVERIFY(mStore->recordWriteChanged() && before.openProjectReadOnly(mPath));
    QVERIFY(mStore->execute("PRAGMA max_page_count=1"));
    mStore->mProject.mAuthor = QString(100, u'x');
    addAddresses(*mStore, 3, 8, 50);
    QVERIFY(!mStore->recordWriteChanged() && !mStore->isInTransaction());
    ProjectDatabase after;
    QVERIFY(after.openProjectReadOnly(mPath));
    QCOMPARE(Project_Dump::project(after), Project_Dump::project(before));
    QVERIFY(mStore->execute("PRAGMA max_page_count=1000000") && mStore->recordWriteChanged());
    QVERIFY(after.openProjectReadOnly(mPath));
    QCOMPARE(Project_Dump::project(after), Project_Dump::project(*mStore));
  }

private:
  void refuseNeedless() {
    for (const DB_Table_Row& row : DB_Tables::all()) {
      const QByteArray name = DB_Tables::name(row.mTable);
      const bool isMade = mStore->execute("CREATE TEMP TRIGGER IF NOT EXISTS `t" + name + "` BEFORE UPDATE ON main.`" +
                                          name + "` WHEN NEW.DATA=OLD.DATA BEGIN SELECT RAISE(ABORT,'needless'); END");
      QVERIFY(isMade || !mStore->tableExists(name));
    }
  }

  std::unique_ptr<QTemporaryDir> mFolder;
  QString mPath;
  std::unique_ptr<ProjectDatabase> mStore;
};

QTEST_GUILESS_MAIN(DB_Table_Writer_Test)
#include "DB_Table_Writer_Test.moc"
