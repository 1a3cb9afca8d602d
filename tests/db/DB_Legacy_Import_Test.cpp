#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"

#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

class DB_Legacy_Import_Test : public QObject {
  Q_OBJECT

private slots:
  /// A file of the older layout, made from one of today: plain names, texts in clear, no devices.
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    mPath = mFolder->filePath(QStringLiteral("alt.zpro"));
    ProjectDatabase store;
    QVERIFY(store.openProject(mPath, true));
    fill(store);
    store.mProject.mVersion = QStringLiteral("0.000");
    QVERIFY(store.ressourceWriteRaw(QStringLiteral("bild.png"), "\x89PNG\x02\x03!="));
    QVERIFY(store.recordWriteAll(false));
    mDump = Project_Dump::project(store);
    store.close();
    QVERIFY(!ProjectDatabase::isOlderLayout(mPath));
    QByteArray sql = "BEGIN;";
    for (const DB_Table_Row& row : DB_Tables::all()) {
      const QByteArray plain = QByteArray("`") + row.mPlainName + '`';
      sql += "ALTER TABLE " + quoted(row.mTable) + " RENAME TO " + plain + ';';
      if (row.mTable != DB_Table::Resources) {
        sql += "DELETE FROM " + plain + ';';
        for (const QByteArray& data : rows(mPath, row.mTable)) {
          sql += "INSERT INTO " + plain + " VALUES('" + data + "');";
        }
      }
    }
    QVERIFY(run(mPath, sql + "DROP TABLE devices; CREATE TABLE undo(a); CREATE TABLE search_cache(b); COMMIT"));
  }

  void converts() {
    const QByteArray before = bytesOf(mPath);
    QVERIFY(ProjectDatabase::isOlderLayout(mPath));
    QCOMPARE(bytesOf(mPath), before);
    QVERIFY(writeFile(mPath + ".import", "of an earlier try"));
    ProjectDatabase store;
    QVERIFY2(store.openProject(mPath, true), qPrintable(store.lastError()));
    QCOMPARE(bytesOf(mPath + ".import"), before);
    QCOMPARE(Project_Dump::project(store), mDump);
    QVERIFY(!store.loadReport().isDamaged());
    for (const DB_Table_Row& row : DB_Tables::all()) {
      QVERIFY2(store.tableExists(row.mName), row.mPlainName);
      QVERIFY2(!store.tableExists(row.mPlainName), row.mPlainName);
    }
    QVERIFY(!store.tableExists("undo") && !store.tableExists("search_cache"));
    store.close();
    QVERIFY(!ProjectDatabase::isOlderLayout(mPath));
    for (const QByteArray& row : rawRows(mPath, quoted(DB_Table::Sub_Groups))) {
      QCOMPARE(DB_Scramble::scramble(DB_Scramble::unscramble(row)), row);
    }
    QVERIFY(run(mPath, "VACUUM"));
    QVERIFY(!bytesOf(mPath).contains("mAuthor"));
  }

  void readOnlyConvertsNothing() {
    const QByteArray before = bytesOf(mPath);
    ProjectDatabase store;
    QVERIFY(store.openProjectReadOnly(mPath));
    QVERIFY(store.loadReport().isDamaged());
    store.close();
    QCOMPARE(bytesOf(mPath), before);
    QVERIFY(!QFile::exists(mPath + ".import"));
  }

  /// Without a backup nothing is touched, and no empty project takes the place of the older one.
  void noBackupNoConversion() {
    QVERIFY(QDir().mkpath(mPath + ".import/a"));
    const QByteArray before = bytesOf(mPath);
    ProjectDatabase store;
    QVERIFY(!store.openProject(mPath, true));
    QVERIFY(store.lastError().contains(QStringLiteral(".import")));
    QVERIFY(!store.isOpen() && store.fileName().isEmpty());
    QCOMPARE(bytesOf(mPath), before);
  }

  void onlyOneVersionIsOlder() {
    for (const char* const version : {"0", "2.3146", "0.0001", "0.000"}) {
      QVERIFY(run(mPath, QByteArray("UPDATE project SET DATA='mVersion\x02") + version + "\x03'"));
      QCOMPARE(ProjectDatabase::isOlderLayout(mPath), qstrcmp(version, "0.000") == 0);
    }
  }

private:
  std::unique_ptr<QTemporaryDir> mFolder;
  QString mPath;
  QByteArray mDump;
};

QTEST_GUILESS_MAIN(DB_Legacy_Import_Test)
#include "DB_Legacy_Import_Test.moc"
