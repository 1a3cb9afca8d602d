#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

/// Files that are no project, or a broken one: opening never harms, tells what is missing, and keeps the rest.
class ProjectDatabase_Damage_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() {
    QVERIFY(mFolder.isValid());
    const QString path = mFolder.filePath(QStringLiteral("whole.zpro"));
    ProjectDatabase store;
    QVERIFY(store.openProject(path, true));
    fill(store);
    QVERIFY(store.ressourceWriteRaw(QStringLiteral("bild.png"), QByteArray(30'000, 'p')));
    QVERIFY(store.recordWriteAll(true));
    mDump = Project_Dump::project(store);
    store.close();
    mWhole = bytesOf(path);
    QVERIFY(mWhole.size() > 100'000);
  }

  void init() {
    mPath = mFolder.filePath(QStringLiteral("a.zpro"));
    QVERIFY(writeFile(mPath, mWhole));
  }

  void cleanup() {
    for (const QString& name : QDir(mFolder.path()).entryList(QDir::Files)) {
      QFile::remove(mFolder.filePath(name));
    }
  }

  void noProject_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("text") << QByteArray("Das ist kein Projekt.\n").repeated(100);
    QTest::newRow("one byte") << QByteArray("x");
    QTest::newRow("zeros") << QByteArray(8192, '\0');
    QTest::newRow("header only") << mWhole.first(16);
    QTest::newRow("picture") << QByteArray("\x89PNG\r\n\x1a\n") + QByteArray(3000, 'x');
    const QString path = mFolder.filePath(QStringLiteral("other.sqlite"));
    run(path, "CREATE TABLE addresses(a, b); INSERT INTO addresses VALUES(1, 2)");
    QTest::newRow("another database") << bytesOf(path);
    run(path, "DROP TABLE addresses");
    QTest::newRow("a database without tables") << bytesOf(path);
    run(path, "CREATE TABLE project(DATA TEXT); INSERT INTO project VALUES('mVersion 2.4')");
    QTest::newRow("a table of an older name only") << bytesOf(path);
  }

  void noProject() {
    QFETCH(QByteArray, bytes);
    QVERIFY(!bytes.isEmpty());
    QVERIFY(writeFile(mPath, bytes));
    ProjectDatabase store;
    for (const bool isReadOnly : {true, false}) {
      QVERIFY(!(isReadOnly ? store.openProjectReadOnly(mPath) : store.openProject(mPath, true)));
      QVERIFY(!store.lastError().isEmpty());
      QVERIFY(!store.isOpen() && store.fileName().isEmpty());
      QCOMPARE(bytesOf(mPath), bytes);
    }
    QVERIFY(!ProjectDatabase::isOlderLayout(mPath));
  }

  void emptyFileIsANewProject() {
    QVERIFY(writeFile(mPath, {}));
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    QVERIFY(!store.loadReport().isDamaged());
    QVERIFY(store.recordWriteAll(false));
  }

  void truncated_data() {
    QTest::addColumn<int>("fortieths");
    for (int part = 1; part < 40; ++part) {
      QTest::addRow("%d of 40", part) << part;
    }
  }

  void truncated() {
    QFETCH(int, fortieths);
    const QByteArray bytes = mWhole.first(mWhole.size() * fortieths / 40);
    QVERIFY(writeFile(mPath, bytes));
    ProjectDatabase store;
    if (store.openProjectReadOnly(mPath)) {
      QVERIFY2(store.loadReport().isDamaged(), "the missing part was not noticed");
      QVERIFY(!store.loadReport().lines().isEmpty());
      QVERIFY(!Project_Dump::project(store).contains("NOT FOUND"));
    } else {
      QVERIFY(!store.lastError().isEmpty());
    }
    store.close();
    QCOMPARE(bytesOf(mPath), bytes);
    if (store.openProject(mPath, true)) {
      store.recordWriteAll(true);
    }
  }

  void overwritten_data() {
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("size");
    QTest::addColumn<char>("with");
    constexpr int cPageSize = 4096;
    const int pages = static_cast<int>(mWhole.size()) / cPageSize;
    for (int page = 0; page < pages; page += 2) {
      QTest::addRow("page %d", page) << page * cPageSize + 100 << 2000 << 'Z';
      // What a file system leaves after a power cut.
      QTest::addRow("zeros from page %d", page + 1) << (page + 1) * cPageSize << (pages - page - 1) * cPageSize << '\0';
    }
  }

  /// No answer is right for all of these, but the store must live.
  void overwritten() {
    QFETCH(int, from);
    QFETCH(int, size);
    QFETCH(char, with);
    QByteArray bytes = mWhole;
    bytes.replace(from, size, QByteArray(size, with));
    QVERIFY(writeFile(mPath, bytes));
    ProjectDatabase store;
    if (store.openProject(mPath, true)) {
      QVERIFY(!Project_Dump::project(store).contains("NOT FOUND"));
      store.recordWriteAll(true);
    } else {
      QVERIFY(!store.lastError().isEmpty());
    }
  }

  void broken_data() {
    QTest::addColumn<QByteArray>("sql");
    QTest::addColumn<QString>("line");
    QTest::addColumn<bool>("isDamaged");
    const auto row = [](const char* name, const QByteArray& sql, const char* line, bool isDamaged = true) {
      QTest::newRow(name) << sql << QString::fromUtf8(line) << isDamaged;
    };
    const QByteArray blocks = quoted(DB_Table::Logic_Blocks);
    const QByteArray subs = quoted(DB_Table::Sub_Groups);
    const QByteArray resources = quoted(DB_Table::Resources);
    const QByteArray insert = "INSERT INTO " + blocks + " VALUES";
    row("table missing", "DROP TABLE " + subs, "Gruppenadressen: Die Tabelle fehlt.");
    row("unused table missing", "DROP TABLE " + quoted(DB_Table::Devices), "Geräte: Die Tabelle fehlt.");
    row("other columns", "DROP TABLE " + blocks + "; CREATE TABLE " + blocks + "(a, b); " + insert + "(1, 2)",
        "Funktionsbausteine: Die Tabelle hat andere Spalten als erwartet.");
    row("resources with other columns", "DROP TABLE " + resources + "; CREATE TABLE " + resources + "(DATA TEXT)",
        "Ressourcen: Die Tabelle hat andere Spalten als erwartet.");
    row("broken text", insert + "('?abc')", "Funktionsbausteine: Nicht lesbare Einträge: 1.");
    row("text in clear", insert + "('mName')", "Funktionsbausteine: Nicht lesbare Einträge: 1.");
    row("NULL, empty, blob and numbers", insert + "(NULL),(''),(x'00ff0203'),(42),(-1.5)",
        "Funktionsbausteine: Nicht lesbare Einträge: 5.");
    row("text that breaks off", "UPDATE " + subs + " SET DATA=substr(DATA, 1, 200) || '?' WHERE rowid=1",
        "Gruppenadressen: Nur teilweise lesbare Einträge: 1.");
    row("child without a parent", insertion(DB_Table::Logic_Blocks, "mName\x02Waise\x03"),
        "Funktionsbausteine: Einträge ohne übergeordneten Eintrag: 1 (bleiben erhalten).", false);
  }

  /// What can be read is there, the report names the rest, and saving brings the file into form again.
  void broken() {
    QFETCH(QByteArray, sql);
    QFETCH(QString, line);
    QFETCH(bool, isDamaged);
    QVERIFY(run(mPath, sql));
    ProjectDatabase store;
    QVERIFY(store.openProjectReadOnly(mPath));
    QVERIFY2(store.loadReport().lines().contains(line), qPrintable(store.loadReport().lines().join('|')));
    QCOMPARE(store.loadReport().isDamaged(), isDamaged);
    QVERIFY(store.openProject(mPath, true));
    QVERIFY(store.loadReport().lines().contains(line));
    const QByteArray dump = Project_Dump::project(store, false);
    QVERIFY(dump.contains("Teil 2-1") && dump.contains("logic page"));
    QVERIFY2(store.recordWriteAll(false), qPrintable(store.lastError()));
    QVERIFY(store.ressourceWriteRaw(QStringLiteral("neu"), "n"));
    QVERIFY(store.openProject(mPath, true));
    QCOMPARE(Project_Dump::project(store, false), dump);
    QVERIFY(!store.loadReport().isDamaged());
    QCOMPARE(store.loadReport().lines().isEmpty(), isDamaged);
  }

  /// A child whose parent is missing comes back as soon as the parent does.
  void orphansAreKept() {
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    const DB_FB_Page& page = store.mFbPages.pages().at(0);
    const QByteArray parent = page.toData();
    QVERIFY(run(mPath, "DELETE FROM " + quoted(DB_Table::Logic_Pages) + " WHERE rowid=1; DELETE FROM " +
                           quoted(DB_Table::Main_Groups)));
    for (int i = 0; i < 2; ++i) {
      QVERIFY(store.openProject(mPath, true));
      QVERIFY(!store.loadReport().isDamaged());
      QCOMPARE(store.mFbPages.childCount(), 3);
      QCOMPARE(store.mAddresses.subGroupCount(), 0);
      QVERIFY(store.recordWriteAll(false));
    }
    QCOMPARE(rows(mPath, DB_Table::Sub_Groups).size(), 12);
    store.close();
    QVERIFY(run(mPath, insertion(DB_Table::Logic_Pages, parent)));
    QVERIFY(store.openProject(mPath, true));
    QCOMPARE(store.mFbPages.childCount(), 6);
    QVERIFY(store.mFbPages.pages().at(1).mCaption == u"Seite 0");
  }

  void doubledKeys() {
    for (const DB_Table table :
         {DB_Table::Main_Groups, DB_Table::Middle_Groups, DB_Table::Sub_Groups, DB_Table::Visu_Pages,
          DB_Table::Visu_Elements, DB_Table::Logic_Pages, DB_Table::Logic_Blocks}) {
      const QByteArray name = quoted(table);
      QVERIFY(run(mPath, "INSERT INTO " + name + " SELECT * FROM " + name));
    }
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    QCOMPARE(store.mAddresses.mainGroups().size(), 4);
    QCOMPARE(store.mAddresses.subGroupCount(), 24);
    QCOMPARE(store.mWidgetPages.childCount(), 12);
    QCOMPARE(store.mFbPages.pages().size(), 4);
    QVERIFY(store.mFbPages.pages().at(2).mChildren.isEmpty());
    const QByteArray dump = Project_Dump::project(store);
    QVERIFY(!dump.contains("NOT FOUND"));
    QVERIFY(store.recordWriteAll(false));
    QVERIFY(store.openProject(mPath, true));
    QCOMPARE(Project_Dump::project(store), dump);
  }

  void hugeRow_data() {
    QTest::addColumn<QByteArray>("piece");
    QTest::addColumn<int>("size");
    QTest::newRow("one value") << QByteArray() << 100'000'000;
    QTest::newRow("many items of one key") << QByteArray("mTitle\x02\x03") << 20'000'000;
    QTest::newRow("many unknown items") << QByteArray("mFuture\x02\x03") << 20'000'000;
    QTest::newRow("markers that do not pair") << QByteArray("mParam_0\x02") << 20'000'000;
  }

  void hugeRow() {
    QFETCH(QByteArray, piece);
    QFETCH(int, size);
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    const QUuid page = store.mFbPages.pages().at(0).mGuid;
    QByteArray data = "mPageGuid\x02" + page.toByteArray(QUuid::WithoutBraces) + "\x03mName\x02";
    data += piece.isEmpty() ? QByteArray(size, 'x') + '\x03' : '\x03' + piece.repeated(size / int(piece.size()));
    QVERIFY(store.execute("DELETE FROM " + quoted(DB_Table::Logic_Blocks)));
    store.close();
    QVERIFY(run(mPath, insertion(DB_Table::Logic_Blocks, data)));
    QElapsedTimer timer;
    timer.start();
    QVERIFY(store.openProject(mPath, true));
    QVERIFY2(timer.elapsed() < 30'000, qPrintable(QString::number(timer.elapsed())));
    QCOMPARE(store.mFbPages.childCount(), 1);
    QCOMPARE(store.mFbPages.pages().at(0).mChildren.at(0).mName.size(), piece.isEmpty() ? size : 0);
  }

private:
  QTemporaryDir mFolder;
  QString mPath;
  QByteArray mWhole;
  QByteArray mDump;
};

QTEST_GUILESS_MAIN(ProjectDatabase_Damage_Test)
#include "ProjectDatabase_Damage_Test.moc"
