#include "db/Address_Edits.h"
#include "db/Edit_Scope.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QDir>

namespace {

using namespace Qt::StringLiterals;

} // namespace

/// Autosaving and what is done with a working file that was left behind.
class Project_Session_Autosave_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mKey = mRig->addAddress({1, 1, 1}, u"alt"_s)->mKey;
    QCOMPARE(mRig->mSession.save(), Project_Session::Save_Result::Saved);
    mProjectBytes = Session_Rig::bytesOf(mRig->path());
  }

  void theWorkingFileFollowsAndNothingElse() {
    rename(u"neu"_s);
    const qint64 time = session().database().mProject.mTimestamp;
    QVERIFY(session().isAutosaveDue() && autosaveIsRight());
    QVERIFY(!session().isAutosaveDue() && session().isModified() && session().history().canUndo());
    QCOMPARE(session().database().mProject.mTimestamp, time);
    QVERIFY(session().history().undo());
    QVERIFY2(session().isAutosaveDue() && !session().isModified(), "what was undone must not come back");
    QVERIFY(session().history().redo());
    QVERIFY2(!session().isAutosaveDue(), "the autosaved state again");
    QVERIFY(session().history().undo() && autosaveIsRight());
    QVERIFY(session().history().redo() && session().isAutosaveDue());
    QCOMPARE(session().save(), Project_Session::Save_Result::Saved);
    QVERIFY(!session().isAutosaveDue());
  }

  /// Steps beyond the limit are forgotten: the oldest state that can be reached is not the one that was written.
  void theOldestStatesAreToldApart() {
    for (size_t i = 0; i <= History::cLimit; ++i) {
      rename(QString::number(i));
    }
    while (session().history().undo()) {
    }
    QVERIFY(session().isAutosaveDue());
  }

  void notInTheMiddleOfAChange() {
    {
      Edit_Scope scope(session().history(), u"Schritt"_s);
      QVERIFY(!session().mayAutosave() && !session().autosave());
    }
    session().database().mAddresses.beginChange();
    QVERIFY(!session().mayAutosave());
    session().database().mAddresses.endChange();
    QVERIFY(session().mayAutosave());
  }

  void aFailureLosesNothing_data() {
    QTest::addColumn<QString>("fault");
    for (const char* const fault : {"the disk is full", "the temporary folder is gone"}) {
      QTest::newRow(fault) << QString::fromUtf8(fault);
    }
  }

  void aFailureLosesNothing() {
    QFETCH(QString, fault);
    rename(QString(200, u'x'));
    for (int i = 0; i < 255; ++i) {
      mRig->addAddress({2, 1, i}, QString(200, u'x'));
    }
    const QString moved = mRig->tempFolder() + u"-weg"_s;
    if (fault == u"the disk is full"_s) {
      QVERIFY(session().database().execute("PRAGMA max_page_count=1"));
    } else {
      QVERIFY(QDir().rename(mRig->tempFolder(), moved));
      QFile file(mRig->tempFolder()); // so that it cannot be made again
      QVERIFY(file.open(QIODevice::WriteOnly));
    }
    const QByteArray dump = dumpOf(session().database());
    QVERIFY(!session().autosave() && !session().lastError().isEmpty());
    QVERIFY(session().isModified() && session().isAutosaveDue() && session().history().canUndo());
    QCOMPARE(dumpOf(session().database()), dump);
    if (fault == u"the disk is full"_s) {
      QVERIFY(session().database().execute("PRAGMA max_page_count=1000000"));
    } else {
      QVERIFY(QFile::remove(mRig->tempFolder()) && QDir().rename(moved, mRig->tempFolder()));
    }
    QVERIFY(autosaveIsRight());
  }

  void aVanishedWorkingFileComesBackWithItsLock() {
    rename(u"neu"_s);
    QVERIFY(session().database().ressourceWriteRaw(u"bild"_s, "bytes"));
    QVERIFY(QDir(mRig->tempFolder()).removeRecursively());
    QVERIFY(autosaveIsRight());
    QCOMPARE(Working_Copy::stateOf(mRig->path()), Working_Copy::State::InUse);
    QCOMPARE(session().save(), Project_Session::Save_Result::Saved);
  }

  /// The readable rest takes the damaged file's place in one go, so that a crash does not leave a file without records.
  void aDamagedProjectIsAutosavedWhole() {
    session().close();
    DB_Sqlite file;
    QVERIFY(file.open(mRig->path(), DB_Sqlite::Mode::ReadWrite));
    QVERIFY(file.execute("DROP TABLE `"_ba + DB_Tables::name(DB_Table::Mail) + '`'));
    file.close();
    mProjectBytes = Session_Rig::bytesOf(mRig->path());
    QVERIFY(session().open(mRig->path()));
    QVERIFY(session().database().ressourceWriteRaw(u"bild"_s, "bytes"));
    ProjectDatabase loaded;
    QVERIFY(loaded.openProjectReadOnly(session().database().fileName()));
    QCOMPARE(Project_Dump::project(loaded), Project_Dump::project(session().database()));
    rename(u"neu"_s);
    QVERIFY(autosaveIsRight());
  }

  void recovering_data() {
    QTest::addColumn<bool>("isAccepted");
    QTest::newRow("accepted: our own now") << true;
    QTest::newRow("not accepted: left where it was") << false;
  }

  void recovering() {
    QFETCH(bool, isAccepted);
    rename(u"neu"_s);
    QVERIFY(session().autosave());
    const QByteArray dump = dumpOf(session().database());
    const QString left = crash(2);
    Working_Copy copy;
    QVERIFY(copy.adopt(left));
    Working_Copy second;
    QVERIFY2(!second.adopt(left), "only one studio gets it");
    QVERIFY(session().recover(mRig->path(), std::move(copy)));
    QCOMPARE(dumpOf(session().database()), dump);
    QVERIFY(session().isModified() && !session().history().canUndo() && !session().isAutosaveDue());
    if (isAccepted) {
      session().acceptRecovered();
      rename(u"neuer"_s);
      QVERIFY(autosaveIsRight());
    }
    session().close();
    QCOMPARE(QFile::exists(left), !isAccepted);
    QCOMPARE(Working_Copy::stateOf(mRig->path()),
             isAccepted ? Working_Copy::State::Free : Working_Copy::State::LeftBehind);
    QCOMPARE(Session_Rig::bytesOf(mRig->path()), mProjectBytes);
  }

  void whatIsFoundOfSeveral() {
    rename(u"neu"_s);
    QVERIFY(session().autosave());
    const QString first = crash(1);
    const QString third = copyOf(first, 3);
    const QString same = Working_Copy::pathFor(mRig->path(), 2);
    const QString empty = Working_Copy::pathFor(mRig->path(), 4);
    QVERIFY(QFile::copy(mRig->path(), same));
    QFile file(empty);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QFile older(first);
    QVERIFY(older.open(QIODevice::ReadWrite));
    QVERIFY(older.setFileTime(QDateTime::currentDateTime().addSecs(-60), QFileDevice::FileModificationTime));
    older.close();
    std::optional<Working_Copy::Left_Behind> found = Working_Copy::findLeftBehind(mRig->path());
    QVERIFY(found && found->mPath == third && found->mFurther == 1);
    {
      Working_Copy running;
      QVERIFY(running.claim(mRig->path(), Working_Copy::Others::Keep));
      QVERIFY2(!Working_Copy::findLeftBehind(mRig->path()), "a running studio has it");
    }
    Working_Copy::removeNeedless(mRig->path());
    QVERIFY(!QFile::exists(same) && !QFile::exists(empty) && QFile::exists(first) && QFile::exists(third));
    QVERIFY(QFile::remove(first) && QFile::remove(third) && QFile::copy(mRig->path(), same));
    QVERIFY(!Working_Copy::findLeftBehind(mRig->path()));
    QFile journal(same + u"-journal"_s);
    QVERIFY(journal.open(QIODevice::WriteOnly) && journal.write("x") == 1);
    journal.close();
    found = Working_Copy::findLeftBehind(mRig->path());
    QVERIFY2(found && found->mPath == same, "a journal has still to be rolled back");
  }

private:
  [[nodiscard]] Project_Session& session() { return mRig->mSession; }
  static QByteArray dumpOf(ProjectDatabase& store) { return Project_Dump::project(store, false); }

  void rename(const QString& name) {
    QVERIFY(Address_Edits::set(session(), {mKey}, Address_Edits::Field::Name, name));
    session().history().commit();
  }

  bool autosaveIsRight() {
    ProjectDatabase loaded;
    return session().autosave() && loaded.openProjectReadOnly(session().database().fileName()) &&
           dumpOf(loaded) == dumpOf(session().database()) && Session_Rig::bytesOf(mRig->path()) == mProjectBytes;
  }

  [[nodiscard]] QString copyOf(const QString& workingPath, int number) const {
    const QString path = Working_Copy::pathFor(mRig->path(), number);
    return QFile::copy(workingPath, path) ? path : QString();
  }

  /// Closes the project and leaves the working file of that number, as a studio that is killed would.
  QString crash(int number) {
    const QString kept = mRig->path(u"kept"_s);
    QFile::copy(session().database().fileName(), kept);
    session().close();
    return copyOf(kept, number);
  }

  std::unique_ptr<Session_Rig> mRig;
  QUuid mKey;
  QByteArray mProjectBytes;
};

QTEST_GUILESS_MAIN(Project_Session_Autosave_Test)
#include "Project_Session_Autosave_Test.moc"
