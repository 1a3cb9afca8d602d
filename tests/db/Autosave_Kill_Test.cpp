#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <cstdio>

namespace {

constexpr int cAddresses = 1000;
constexpr int cLongestRunMs = 250;
constexpr int cWaitMs = 60'000;

QUuid keyOf(int generation) {
  return QUuid::createUuidV5(QUuid(), QString::number(generation));
}

/// Every third address gets another name, one comes, one goes, and a page with a block comes in front of the others.
/// The same wherever it is done.
void change(ProjectDatabase& store, int generation) {
  for (int i = generation % 3; i < cAddresses; i += 3) {
    const DB_Address_Sub_Group* const group = store.mAddresses.subGroup(Group_Address(i / 512, i / 256 % 2, i % 256));
    store.mAddresses.change(group->mKey, [generation](DB_Data_Base& record) {
      static_cast<DB_Address_Sub_Group&>(record).mName = QString::number(generation).repeated(1 + generation % 9);
    });
  }
  static_cast<void>(store.mAddresses.take(keyOf(generation - 3)));
  auto address = std::make_unique<DB_Address_Sub_Group>();
  address->mKey = keyOf(generation);
  address->mNumber = 7; // there are others of that number
  address->mMiddleKey = store.mAddresses.middleGroup(0, generation % 2)->mKey;
  store.mAddresses.add(std::move(address));
  store.mFbPages.takePage(keyOf(-generation + 2));
  auto page = std::make_unique<DB_FB_Page>();
  page->mGuid = keyOf(-generation);
  store.mFbPages.insertPage(0, std::move(page));
  auto block = std::make_unique<DB_FB_Control>();
  block->mGuid = keyOf(1'000'000 + generation);
  block->mPageGuid = keyOf(-generation);
  store.mFbPages.appendChild(std::move(block));
}

/// The process that is killed: changes the project and autosaves, over and over.
int autosaveForever(const QString& path) {
  Session_State state;
  Project_Session session(state);
  if (!session.open(path)) {
    return 1;
  }
  std::puts("ready");
  std::fflush(stdout);
  std::getchar();
  for (int generation = 1;; ++generation) {
    change(session.database(), generation);
    if (!session.autosave()) {
      return 1;
    }
    std::printf("%d\n", generation);
    std::fflush(stdout);
  }
}

} // namespace

/// A studio killed at any moment leaves the project file as it was, and a working file with the last autosaved state or
/// the one that was just being written, whole. STUDIO_KILLS sets how often for each row, 12 times if unset.
class Autosave_Kill_Test : public QObject {
  Q_OBJECT

private slots:
  void aKillLeavesAWholeState_data() {
    QTest::addColumn<QByteArray>("fault");
    QTest::newRow("sound project") << QByteArray();
    QTest::newRow("a table is missing: the working file is made anew")
        << QByteArray("DROP TABLE `") + DB_Tables::name(DB_Table::Mail) + '`';
    const QByteArray update = QByteArray("UPDATE `") + DB_Tables::name(DB_Table::Sub_Groups) + "` SET rowid=";
    QTest::newRow("rows with gaps") << update + "-rowid;" + update + "-3*rowid";
  }

  void aKillLeavesAWholeState() {
    QFETCH(QByteArray, fault);
    Session_Rig rig;
    QVERIFY(rig.create());
    for (int i = 0; i < cAddresses; ++i) {
      rig.addAddress({i / 512, i / 256 % 2, i % 256}, QString());
    }
    QCOMPARE(rig.mSession.save(), Project_Session::Save_Result::Saved);
    rig.mSession.close();
    DB_Sqlite file;
    QVERIFY(file.open(rig.path(), DB_Sqlite::Mode::ReadWrite) && file.execute(fault));
    file.close();
    const QByteArray bytes = Session_Rig::bytesOf(rig.path());

    const int kills = qEnvironmentVariable("STUDIO_KILLS", QStringLiteral("12")).toInt();
    int autosaves = 0;
    int journals = 0;
    int unfinished = 0;
    for (int i = 0; i < kills; ++i) {
      int done = 0;
      runAndKill(rig.path(), done);
      QCOMPARE(Session_Rig::bytesOf(rig.path()), bytes);
      journals += QFileInfo(Working_Copy::pathFor(rig.path()) + QStringLiteral("-journal")).size() > 0 ? 1 : 0;
      QByteArray found;
      recover(rig, found);
      if (QTest::currentTestFailed()) {
        return;
      }
      QCOMPARE(Session_Rig::bytesOf(rig.path()), bytes);
      QVERIFY(rig.mSession.open(rig.path()));
      for (int generation = 1; generation <= done; ++generation) {
        change(rig.mSession.database(), generation);
      }
      const bool isDone = Project_Dump::project(rig.mSession.database()) == found;
      change(rig.mSession.database(), done + 1);
      QVERIFY2(isDone || Project_Dump::project(rig.mSession.database()) == found, qPrintable(QString::number(done)));
      rig.mSession.close();
      autosaves += done;
      unfinished += isDone ? 0 : 1;
    }
    qInfo("%d kills after %d autosaves, %d with a journal, %d times the state that was being written", kills, autosaves,
          journals, unfinished);
  }

private:
  /// `done` is the last autosave that the process told the end of.
  static void runAndKill(const QString& path, int& done) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--autosave"), path});
    QVERIFY(process.waitForStarted(cWaitMs) && process.waitForReadyRead(cWaitMs));
    process.readAll();
    process.write("\n");
    QVERIFY(process.waitForBytesWritten(cWaitMs));
    QThread::usleep(QRandomGenerator::global()->bounded(cLongestRunMs * 1000));
    process.kill();
    QVERIFY(process.waitForFinished(cWaitMs) && process.exitStatus() == QProcess::CrashExit);
    const QByteArray told = process.readAll();
    const QByteArrayList lines = told.left(told.lastIndexOf('\n')).split('\n');
    done = lines.last().toInt();
  }

  static void recover(Session_Rig& rig, QByteArray& dump) {
    const auto found = Working_Copy::findLeftBehind(rig.path());
    Working_Copy copy;
    if (found) {
      QVERIFY(copy.adopt(found->mPath) && rig.mSession.recover(rig.path(), std::move(copy)));
      rig.mSession.acceptRecovered();
    } else {
      QVERIFY(rig.mSession.open(rig.path()));
    }
    dump = Project_Dump::project(rig.mSession.database());
    rig.mSession.close();
  }
};

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 3 && arguments[1] == u"--autosave") {
    return autosaveForever(arguments[2]);
  }
  Autosave_Kill_Test test;
  return QTest::qExec(&test, argc, argv);
}

#include "Autosave_Kill_Test.moc"
