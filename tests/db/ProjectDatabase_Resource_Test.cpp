#include "tests/db/Project_Sample.h"

#include <QSignalSpy>
#include <QTemporaryDir>
#include <QtTest>

using namespace Project_Sample;

class ProjectDatabase_Resource_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mFolder = std::make_unique<QTemporaryDir>();
    QVERIFY(mFolder->isValid());
    mPath = mFolder->filePath(QStringLiteral("a.zpro"));
    mStore = std::make_unique<ProjectDatabase>();
    QVERIFY(mStore->openProject(mPath, true));
  }

  void names() {
    const QString other = QStringLiteral("other");
    QVERIFY(mStore->ressourceWriteRaw(other, "o"));
    const QStringList allowed = {QStringLiteral("'; DROP TABLE x; --"), QStringLiteral("\"a\" `b` 'c' %s ?1"),
                                 QStringLiteral("größer \U0001F3E0.png"), QString(256, u'ä')};
    const QStringList refused = {QString(257, u'ä'), QString(600, u'x'), QString()};
    for (const QString& name : allowed + refused) {
      const bool isAllowed = allowed.contains(name);
      QCOMPARE(mStore->ressourceWriteRaw(name, "bytes"), isAllowed);
      QCOMPARE(mStore->lastError().isEmpty(), isAllowed);
      QByteArray bytes = "old";
      QCOMPARE(mStore->ressourceReadRaw(name, bytes), isAllowed);
      QCOMPARE(bytes, isAllowed ? QByteArray("bytes") : QByteArray());
      QStringList names;
      QVERIFY(mStore->ressourceList(names));
      QCOMPARE(names, isAllowed ? QStringList({other, name}) : QStringList(other));
      QVERIFY(mStore->ressourceDelete(name));
      QVERIFY(mStore->ressourceList(names));
      QCOMPARE(names, QStringList(other));
    }
  }

  /// Resources do not wait for the save, stand in the file as they are, and stay through saving.
  void writtenAtOnce() {
    const QString name = QStringLiteral("a");
    QVERIFY(mStore->ressourceWriteRaw(name, "in clear"));
    QVERIFY(bytesOf(mPath).contains("in clear"));
    QVERIFY(mStore->recordWriteAll(true));
    QVERIFY(mStore->openProject(mPath, true));
    QByteArray bytes;
    QVERIFY(mStore->ressourceReadRaw(name, bytes));
    QVERIFY(mStore->ressourceDeleteAll());
    QVERIFY(rawRows(mPath, quoted(DB_Table::Resources)).isEmpty());
  }

  void failedWriteKeepsTheOldOne_data() {
    QTest::addColumn<QByteArray>("sql");
    const QByteArray table = quoted(DB_Table::Resources);
    const auto trigger = [&table](const char* when, const char* how) {
      return QByteArray("CREATE TRIGGER t ") + when + " ON " + table + " BEGIN SELECT RAISE(" + how +
             ", 'kein Platz'); END";
    };
    QTest::newRow("insert aborts") << trigger("BEFORE INSERT", "ABORT");
    QTest::newRow("insert fails") << trigger("AFTER INSERT", "FAIL");
    QTest::newRow("insert rolls back") << trigger("AFTER INSERT", "ROLLBACK");
    QTest::newRow("delete aborts") << trigger("BEFORE DELETE", "ABORT");
    QTest::newRow("file full") << QByteArray("PRAGMA max_page_count=1");
  }

  void failedWriteKeepsTheOldOne() {
    QFETCH(QByteArray, sql);
    const QString name = QStringLiteral("a");
    QVERIFY(mStore->ressourceWriteRaw(name, "old"));
    QVERIFY(mStore->execute(sql));
    QSignalSpy changed(mStore.get(), &ProjectDatabase::resourcesChanged);
    QVERIFY(!mStore->ressourceWriteRaw(name, QByteArray(100'000, 'n')));
    QVERIFY(!mStore->lastError().isEmpty());
    QCOMPARE(changed.count(), 0);
    QByteArray bytes;
    QVERIFY(mStore->ressourceReadRaw(name, bytes));
    QCOMPARE(bytes, QByteArray("old"));
    QVERIFY(mStore->execute("DROP TRIGGER IF EXISTS t"));
    QVERIFY(mStore->execute("PRAGMA max_page_count=1000000"));
    QVERIFY(mStore->ressourceWriteRaw(name, "new"));
    QVERIFY(mStore->recordWriteAll(true));
  }

private:
  std::unique_ptr<QTemporaryDir> mFolder;
  QString mPath;
  std::unique_ptr<ProjectDatabase> mStore;
};

QTEST_GUILESS_MAIN(ProjectDatabase_Resource_Test)
#include "ProjectDatabase_Resource_Test.moc"
