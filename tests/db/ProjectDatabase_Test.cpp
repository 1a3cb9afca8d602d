#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

#include <QDateTime>
#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

class ProjectDatabase_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    mPath = mFolder->filePath(QStringLiteral("Büro Nord.zpro"));
  }

  void newFile() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    QVERIFY(!store.loadReport().isDamaged());
    QVERIFY(store.loadReport().lines().isEmpty());
    QCOMPARE(store.fileName(), mPath);
    store.close();
    DB_Sqlite database;
    QVERIFY(database.open(mPath, DB_Sqlite::Mode::Immutable));
    DB_Statement select = database.prepare("SELECT name,sql FROM sqlite_master WHERE type='table'");
    QMap<QByteArray, QByteArray> tables;
    while (select.step() == DB_Statement::Step::Row) {
      tables.insert(select.text(0).toByteArray(), select.text(1).toByteArray());
    }
    QCOMPARE(tables.size(), 24);
    for (const DB_Table_Row& row : DB_Tables::all()) {
      const QByteArray sql = tables.value(row.mName);
      const bool isResources = row.mTable == DB_Table::Resources;
      QVERIFY2(sql.endsWith(isResources ? "(FILENAME TEXT PRIMARY KEY,DATA BLOB)" : "(DATA TEXT)"), sql);
    }
  }

  void saveAndReopen() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    QVERIFY(store.ressourceWriteRaw(QStringLiteral("bild.png"), "\x89PNG"));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    QVERIFY2(store.recordWriteAll(true), qPrintable(store.lastError()));
    QVERIFY(store.mProject.mTimestamp >= before && store.mProject.mTimestamp <= QDateTime::currentSecsSinceEpoch());
    const QByteArray dump = Project_Dump::project(store);
    QVERIFY(dump.count("\nblock\n") == 6 && dump.count("group address\n") == 12 &&
            dump.contains("resource bild.png 4"));
    QVERIFY(!dump.contains("NOT FOUND"));

    ProjectDatabase again;
    QVERIFY(again.openProject(mPath, true));
    QCOMPARE(Project_Dump::project(again), dump);
    QVERIFY(again.loadReport().lines().isEmpty());
    QVERIFY(again.recordWriteAll(false));
    QVERIFY(again.openProjectReadOnly(mPath));
    QCOMPARE(Project_Dump::project(again), dump);
    again.close();
    ProjectDatabase empty;
    QCOMPARE(Project_Dump::project(again), Project_Dump::project(empty));
    QVERIFY(!again.isOpen() && again.fileName().isEmpty());
  }

  /// A row per record in the order of the lists in memory, and none of its texts in clear.
  void rowsOfTheFile() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    store.mProject.mAuthor = QStringLiteral("Erika Mustermann");
    QVERIFY(store.mWidgetPages.movePage(2, 0));
    QVERIFY(store.recordWriteAll(true));
    for (const ProjectDatabase::Single& single : store.singles()) {
      QCOMPARE(rows(mPath, single.mTable), QByteArrayList{single.mRecord->toData()});
    }
    QByteArrayList pages;
    QByteArrayList elements;
    for (const auto& page : store.mWidgetPages.pages()) {
      pages.append(page->toData());
      for (const auto& element : page->mChildren) {
        elements.append(element->toData());
      }
    }
    QCOMPARE(rows(mPath, DB_Table::Visu_Pages), pages);
    QCOMPARE(rows(mPath, DB_Table::Visu_Elements), elements);
    QCOMPARE(elements.size(), 6);
    QByteArrayList subs;
    for (const auto& main : store.mAddresses.mainGroups()) {
      for (const auto& middle : main->mMiddleGroups) {
        for (const auto& sub : middle->mSubGroups) {
          subs.append(sub->toData());
        }
      }
    }
    QCOMPARE(rows(mPath, DB_Table::Sub_Groups), subs);
    for (const QByteArray& row : rawRows(mPath, quoted(DB_Table::Sub_Groups))) {
      QVERIFY2(!row.contains('=') && !row.contains(DB_Data_Reader::cKeyEnd), row);
    }
    const QByteArray bytes = bytesOf(mPath);
    for (const char* const clear : {"Mustermann", "mAuthor", "mGuid", "Adresse 1/1/1", "project", "Teil"}) {
      QVERIFY2(!bytes.contains(clear), clear);
    }
    QVERIFY(bytes.contains(DB_Tables::name(DB_Table::Project)));
  }

  void withoutPages() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    QVERIFY(store.recordWriteAll(false));
    store.mFbPages.clear();
    store.mWidgetPages.clear();
    store.mAddresses.clear();
    QVERIFY(store.recordWriteAll(false));
    for (const DB_Table table : {DB_Table::Main_Groups, DB_Table::Sub_Groups, DB_Table::Visu_Pages,
                                 DB_Table::Visu_Elements, DB_Table::Logic_Pages, DB_Table::Logic_Blocks}) {
      QVERIFY(rows(mPath, table).isEmpty());
    }
    QVERIFY(store.openProject(mPath, true));
    QVERIFY(store.mFbPages.pages().isEmpty() && store.mWidgetPages.pages().isEmpty());
  }

  void twoRowsOfASingleRecord() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    store.mProject.mName = QStringLiteral("Erste");
    store.mProject.mAuthor = QStringLiteral("Eins");
    QVERIFY(store.recordWriteAll(false));
    store.close();
    DB_Project second;
    second.mName = QStringLiteral("Zweite");
    QVERIFY(run(mPath, insertion(DB_Table::Project, second.toData())));
    QVERIFY(store.openProject(mPath, true));
    QCOMPARE(store.mProject.mName, QStringLiteral("Erste"));
    QCOMPARE(store.mProject.mAuthor, QStringLiteral("Eins"));
    QVERIFY(store.recordWriteAll(false));
    QCOMPARE(rows(mPath, DB_Table::Project), QByteArrayList{store.mProject.toData()});
  }

  void withoutFileOrHandle() {
    ProjectDatabase store;
    QVERIFY(!store.recordWriteAll(true));
    QCOMPARE(store.lastError(), QStringLiteral("Empty Filename"));
    QVERIFY(!store.ressourceWriteRaw(QStringLiteral("a"), "b"));
    QCOMPARE(store.lastError(), QStringLiteral("ressourceWriteRaw: Database not open"));
    QVERIFY(!store.execute("VACUUM"));
    QVERIFY(!store.tableExists("a"));
    QStringList names = {QStringLiteral("old")};
    QVERIFY(!store.ressourceList(names) && names.isEmpty());
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    const QByteArray dump = Project_Dump::project(store);
    store.detach();
    QVERIFY(!store.isOpen());
    QVERIFY(!store.recordWriteAll(true));
    QCOMPARE(store.lastError(), QStringLiteral("Database not open"));
    for (const bool isDone : {store.ressourceDelete(QStringLiteral("a")), store.ressourceDeleteAll()}) {
      QVERIFY(!isDone);
    }
    QCOMPARE(store.lastError(), QStringLiteral("Database not open"));
    QCOMPARE(Project_Dump::project(store), dump);
    const QString moved = mFolder->filePath(QStringLiteral("moved.zpro"));
    QVERIFY(QFile::rename(mPath, moved));
    QVERIFY(!store.attach(mPath));
    QVERIFY(store.attach(moved));
    QVERIFY(store.recordWriteAll(false));
    QCOMPARE(rows(moved, DB_Table::Project), QByteArrayList{store.mProject.toData()});
  }

  void cannotOpen_data() {
    QTest::addColumn<QString>("path");
    QTest::newRow("a folder") << QString();
    QTest::newRow("in no folder") << QStringLiteral("none/a.zpro");
  }

  void cannotOpen() {
    QFETCH(QString, path);
    ProjectDatabase store;
    QVERIFY(!store.openProject(mFolder->filePath(path), true));
    QVERIFY(!store.lastError().isEmpty());
    QVERIFY(!store.isOpen() && store.fileName().isEmpty());
    QVERIFY(!store.openProjectReadOnly(mFolder->filePath(QStringLiteral("missing.zpro"))));
    QVERIFY(!QFile::exists(mFolder->filePath(QStringLiteral("missing.zpro"))));
  }

  void readOnlyLeavesTheFile() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    QVERIFY(store.recordWriteAll(false));
    QVERIFY(store.execute(QByteArray("DROP TABLE ") + quoted(DB_Table::Logic_Blocks)));
    store.close();
    const QByteArray bytes = bytesOf(mPath);
    QVERIFY(store.openProjectReadOnly(mPath));
    QVERIFY(store.loadReport().isDamaged());
    QVERIFY(!store.recordWriteAll(true));
    QVERIFY(!store.ressourceWriteRaw(QStringLiteral("a"), "b"));
    store.close();
    QCOMPARE(bytesOf(mPath), bytes);
    QCOMPARE(QDir(mFolder->path()).entryList(QDir::Files), QStringList{QStringLiteral("Büro Nord.zpro")});
  }

  void findWidgetByName() {
    ProjectDatabase store;
    addPages(store.mWidgetPages, 3, 2);
    const auto element = [&store](int page, int child) -> DB_Widget& {
      return store.mWidgetPages.pages().at(page).mChildren.at(child);
    };
    DB_Widget& early = element(1, 1);
    DB_Widget& late = element(2, 0);
    early.mName = late.mName = QStringLiteral("Lampe");
    QCOMPARE(store.findWidgetByName(QStringLiteral("Lampe")), &early);
    QVERIFY(!store.findWidgetByName(QStringLiteral("lampe")));
    QVERIFY(!store.findWidgetByName(QStringLiteral("Lampe ")));
    QVERIFY(store.mWidgetPages.movePage(2, 0));
    QCOMPARE(store.findWidgetByName(QStringLiteral("Lampe")), &late);
    late.mName = QStringLiteral("Taster");
    QCOMPARE(store.findWidgetByName(QStringLiteral("Lampe")), &early);
    QVERIFY(store.mWidgetPages.takeChild(early.mGuid));
    QVERIFY(!store.findWidgetByName(QStringLiteral("Lampe")));
  }

  /// A page that comes back with its children has them found again; what is doubled gets GUIDs of its own.
  void pagesComeBackWhole() {
    ProjectDatabase store;
    addPages(store.mFbPages, 2, 3);
    const QByteArray dump = Project_Dump::project(store);
    const QUuid guid = store.mFbPages.pages().at(0).mGuid;
    const QUuid block = store.mFbPages.pages().at(0).mChildren.at(1).mGuid;
    std::unique_ptr<DB_FB_Page> taken = store.mFbPages.takePage(guid);
    QVERIFY(!store.mFbPages.page(guid) && !store.mFbPages.child(block));
    auto copy = std::make_unique<DB_FB_Page>(*taken);
    store.mFbPages.insertPage(0, std::move(taken));
    QCOMPARE(Project_Dump::project(store), dump);
    copy->mChildren.append(std::make_unique<DB_FB_Control>(*store.mFbPages.child(block)));
    const DB_FB_Page& added = store.mFbPages.appendPage(std::move(copy));
    QVERIFY(added.mGuid != guid && added.mChildren.at(0).mGuid != block);
    QVERIFY(!Project_Dump::project(store).contains("NOT FOUND"));
    QCOMPARE(store.mFbPages.childCount(), 7);
  }

private:
  std::unique_ptr<QTemporaryDir> mFolder;
  QString mPath;
};

QTEST_GUILESS_MAIN(ProjectDatabase_Test)
#include "ProjectDatabase_Test.moc"
