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

  void deletingNothingChangesNothing() {
    QSignalSpy changed(mStore.get(), &ProjectDatabase::resourcesChanged);
    QVERIFY(mStore->ressourceDelete(QStringLiteral("fehlt")) && mStore->ressourceDeleteAll());
    QVERIFY(!mStore->ressourceWriteRaw(QStringLiteral("a"), {}));
    QCOMPARE(mStore->lastError(), QStringLiteral("ressourceWriteRaw: Error size/data"));
    QCOMPARE(changed.size(), 0);
  }

  void failedWriteKeepsTheOldOne() {
    const QString name = QStringLiteral("a");
    QSignalSpy changed(mStore.get(), &ProjectDatabase::resourcesChanged);
    for (const auto& [when, how] :
         {std::pair("BEFORE INSERT", "ABORT"), std::pair("AFTER INSERT", "FAIL"), std::pair("AFTER INSERT", "ROLLBACK"),
          std::pair("BEFORE DELETE", "ABORT"), std::pair("", "")}) {
      QVERIFY(mStore->ressourceWriteRaw(name, "old"));
      QVERIFY(mStore->execute(!*when ? QByteArray("PRAGMA max_page_count=1")
                                     : QByteArray("CREATE TRIGGER t ") + when + " ON " + quoted(DB_Table::Resources) +
                                           " BEGIN SELECT RAISE(" + how + ", 'kein Platz'); END"));
      changed.clear();
      QVERIFY2(!mStore->ressourceWriteRaw(name, QByteArray(100'000, 'n')), how);
      QVERIFY(!mStore->lastError().isEmpty() && changed.isEmpty());
      QByteArray bytes;
      QVERIFY(mStore->ressourceReadRaw(name, bytes));
      QCOMPARE(bytes, QByteArray("old"));
      QVERIFY(mStore->execute("DROP TRIGGER IF EXISTS t; PRAGMA max_page_count=1000000"));
    }
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
