#include "db/Address_Edits.h"
#include "db/Project_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QDir>

using Save = Project_Session::Save_Result;

class Project_Session_Test : public QObject {
  Q_OBJECT

private slots:
  void init() { mRig = std::make_unique<Session_Rig>(); }

  void savingAsGoesOnUnderTheNewNameAndLeavesTheOldFile() {
    QVERIFY(mRig->create());
    const QUuid key = mRig->addAddress({1, 1, 1}, QStringLiteral("alt"))->mKey;
    QCOMPARE(mRig->mSession.save(), Save::Saved);
    const QByteArray oldBytes = Session_Rig::bytesOf(mRig->path());
    QVERIFY(Address_Edits::set(mRig->mSession, {key}, Address_Edits::Field::Name, QStringLiteral("neu")));
    const QString other = mRig->path(QStringLiteral("Anderes Haus.zpro"));
    QCOMPARE(mRig->mSession.saveAs(other), Save::Saved);
    QCOMPARE(mRig->mSession.path(), other);
    QCOMPARE(mRig->mSession.database().mProject.mName, QStringLiteral("Anderes Haus"));
    QCOMPARE(mRig->mSession.database().fileName(), Working_Copy::pathFor(other));
    QVERIFY(!mRig->mSession.isModified());
    QVERIFY(mRig->mSession.history().canUndo());
    QCOMPARE(Session_Rig::bytesOf(mRig->path()), oldBytes);
    QVERIFY(!QFile::exists(Working_Copy::pathFor(mRig->path())));
    QVERIFY(mRig->mSession.history().undo());
    QCOMPARE(mRig->mSession.save(), Save::Saved);
    reopenIsEqual();
  }

  void aFailedSaveLosesNothing_data() {
    QTest::addColumn<int>("fault");
    QTest::newRow("the folder is gone") << 0;
    QTest::newRow("a folder stands in the place of the file") << 1;
    QTest::newRow("the working file is full") << 2;
  }

  void aFailedSaveLosesNothing() {
    QFETCH(int, fault);
    QVERIFY(mRig->create());
    const QUuid key = mRig->addAddress({1, 1, 1}, QStringLiteral("alt"))->mKey;
    QCOMPARE(mRig->mSession.save(), Save::Saved);
    const QByteArray oldBytes = Session_Rig::bytesOf(mRig->path());
    for (int i = 0; i < 255; ++i) {
      mRig->addAddress({2, 1, i}, QString(200, u'x'));
    }
    QVERIFY(Address_Edits::set(mRig->mSession, {key}, Address_Edits::Field::Name, QStringLiteral("neu")));
    mRig->mSession.database().mProject.mTimestamp = 1; // whatever it was, a save that fails leaves it
    const QByteArray edited = Project_Dump::project(mRig->mSession.database());
    const QString moved = mRig->folder() + QStringLiteral("-weg");
    if (fault == 0) {
      QVERIFY(QDir().rename(mRig->folder(), moved));
    } else if (fault == 1) {
      QVERIFY(QFile::rename(mRig->path(), mRig->path(QStringLiteral("alt"))));
      QVERIFY(QDir().mkdir(mRig->path()));
    } else {
      QVERIFY(mRig->mSession.database().execute("PRAGMA max_page_count=1"));
    }
    QCOMPARE(mRig->mSession.save(), fault == 2 ? Save::WriteFailed : Save::PublishFailed);
    QVERIFY(!mRig->mSession.lastError().isEmpty());
    QVERIFY(mRig->mSession.isModified());
    QCOMPARE(Project_Dump::project(mRig->mSession.database()), edited);
    if (fault == 0) {
      QVERIFY(QDir().rename(moved, mRig->folder()));
    } else if (fault == 1) {
      QVERIFY(QDir().rmdir(mRig->path()));
      QVERIFY(QFile::rename(mRig->path(QStringLiteral("alt")), mRig->path()));
    } else {
      QVERIFY(mRig->mSession.database().execute("PRAGMA max_page_count=1000000"));
    }
    QCOMPARE(Session_Rig::bytesOf(mRig->path()), oldBytes);
    QCOMPARE(mRig->mSession.save(), Save::Saved);
    reopenIsEqual();
  }

  /// What cleans the temporary directory up may take the working file as well.
  void aVanishedWorkingFileIsMadeAnew() {
    QVERIFY(mRig->create());
    const QUuid key = mRig->addAddress({1, 1, 1}, QStringLiteral("alt"))->mKey;
    QVERIFY(mRig->mSession.database().ressourceWriteRaw(QStringLiteral("bild"), "bytes"));
    QCOMPARE(mRig->mSession.save(), Save::Saved);
    for (const bool isOtherName : {false, true}) {
      QVERIFY(Address_Edits::set(mRig->mSession, {key}, Address_Edits::Field::Name,
                                 QStringLiteral("neu %1").arg(isOtherName)));
      QVERIFY(QFile::remove(mRig->mSession.database().fileName()));
      const QString path = mRig->path(QStringLiteral("Anderes Haus.zpro"));
      QCOMPARE(isOtherName ? mRig->mSession.saveAs(path) : mRig->mSession.save(), Save::Saved);
      QByteArray bytes;
      QVERIFY(mRig->mSession.database().ressourceReadRaw(QStringLiteral("bild"), bytes));
      reopenIsEqual();
    }
  }

private:
  void reopenIsEqual() {
    const QByteArray before = Project_Dump::project(mRig->mSession.database());
    const QString path = mRig->mSession.path();
    mRig->mSession.close();
    QVERIFY(!mRig->mSession.isOpen());
    QVERIFY2(mRig->mSession.open(path), qPrintable(mRig->mSession.lastError()));
    QCOMPARE(Project_Dump::project(mRig->mSession.database()), before);
    QVERIFY(!mRig->mSession.isModified());
  }

  std::unique_ptr<Session_Rig> mRig;
};

QTEST_GUILESS_MAIN(Project_Session_Test)
#include "Project_Session_Test.moc"
