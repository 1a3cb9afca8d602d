#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

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

  void noProject() {
    const QString path = mFolder.filePath(QStringLiteral("other.sqlite"));
    run(path, "CREATE TABLE addresses(a, b); INSERT INTO addresses VALUES(1, 2)");
    const QByteArray otherDatabase = bytesOf(path);
    run(path, "DROP TABLE addresses");
    const QByteArray withoutTables = bytesOf(path);
    run(path, "CREATE TABLE project(DATA TEXT); INSERT INTO project VALUES('mVersion 2.4')");
    for (const QByteArray& bytes :
         {QByteArray("Das ist kein Projekt.\n").repeated(100), QByteArray("x"), QByteArray(8192, '\0'),
          mWhole.first(16), otherDatabase, withoutTables, bytesOf(path)}) {
      QVERIFY(!bytes.isEmpty() && writeFile(mPath, bytes));
      ProjectDatabase store;
      for (const bool isReadOnly : {true, false}) {
        QVERIFY(!(isReadOnly ? store.openProjectReadOnly(mPath) : store.openProject(mPath, true)));
        QVERIFY(!store.lastError().isEmpty());
        QVERIFY(!store.isOpen() && store.fileName().isEmpty());
        QCOMPARE(bytesOf(mPath), bytes);
      }
      QVERIFY(!ProjectDatabase::isOlderLayout(mPath));
    }
  }

  void truncated() {
    for (int part = 1; part < 40; ++part) {
      const QByteArray bytes = mWhole.first(mWhole.size() * part / 40);
      QVERIFY(writeFile(mPath, bytes));
      ProjectDatabase store;
      const bool isOpen = store.openProjectReadOnly(mPath);
      QVERIFY2(isOpen ? store.loadReport().isDamaged() : !store.lastError().isEmpty(), "the cut was not noticed");
      QVERIFY(!Project_Dump::project(store).contains("NOT FOUND"));
      store.close();
      QCOMPARE(bytesOf(mPath), bytes);
      if (store.openProject(mPath, true)) {
        store.recordWriteAll(true);
      }
    }
  }

  /// Garbage in the middle, and zeros to the end as a file system leaves them after a power cut. No answer is right for
  /// all of these, but the store must live.
  void overwritten() {
    constexpr qsizetype cPageSize = 4096;
    for (qsizetype at = 0; at + cPageSize < mWhole.size(); at += cPageSize) {
      const bool isCut = at / cPageSize % 2 == 1;
      const qsizetype size = isCut ? mWhole.size() - at : 2000;
      QByteArray bytes = mWhole;
      bytes.replace(isCut ? at : at + 100, size, QByteArray(size, isCut ? '\0' : 'Z'));
      QVERIFY(writeFile(mPath, bytes));
      ProjectDatabase store;
      if (store.openProject(mPath, true)) {
        QVERIFY(!Project_Dump::project(store).contains("NOT FOUND"));
        store.recordWriteAll(true);
      } else {
        QVERIFY(!store.lastError().isEmpty());
      }
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
    row("other columns", "DROP TABLE " + blocks + "; CREATE TABLE " + blocks + "(a, b); " + insert + "(1, 2)",
        "Funktionsbausteine: Die Tabelle hat andere Spalten als erwartet.");
    row("resources with other columns", "DROP TABLE " + resources + "; CREATE TABLE " + resources + "(DATA TEXT)",
        "Ressourcen: Die Tabelle hat andere Spalten als erwartet.");
    row("broken text", insert + "('?abc')", "Funktionsbausteine: Nicht lesbare Einträge: 1.");
    row("NULL, empty, blob and numbers", insert + "(NULL),(''),(x'00ff0203'),(42),(-1.5)",
        "Funktionsbausteine: Nicht lesbare Einträge: 5.");
    row("text that breaks off", "UPDATE " + subs + " SET DATA=substr(DATA, 1, 200) || '?' WHERE rowid=1",
        "Gruppenadressen: Nur teilweise lesbare Einträge: 1.");
    row("text cut between two groups", "UPDATE " + subs + " SET DATA=substr(DATA, 1, 200) WHERE rowid=1",
        "Gruppenadressen: Nur teilweise lesbare Einträge: 1.");
    row("padding in the middle",
        "UPDATE " + subs + " SET DATA=substr(DATA, 1, 200) || '!' || substr(DATA, 202) WHERE rowid=1",
        "Gruppenadressen: Nur teilweise lesbare Einträge: 1.");
    row("no UTF-8",
        insertion(DB_Table::Main_Groups, "mName\x02"
                                         "B\xfcro\x03"),
        "Hauptgruppen: Nur teilweise lesbare Einträge: 1.");
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

private:
  QTemporaryDir mFolder;
  QString mPath;
  QByteArray mWhole;
  QByteArray mDump;
};

QTEST_GUILESS_MAIN(ProjectDatabase_Damage_Test)
#include "ProjectDatabase_Damage_Test.moc"
