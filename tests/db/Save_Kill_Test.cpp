#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

#include <QElapsedTimer>
#include <QProcess>
#include <QRandomGenerator>
#include <QThread>

#include <cstdio>

namespace {

constexpr int cAddresses = 2000;
constexpr int cWaitMs = 60'000;

template <class Visit>
void forEachAddress(const Address_Tree& tree, Visit&& visit) {
  for (const auto& main : tree.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      for (const auto& sub : middle->mSubGroups) {
        visit(*sub);
      }
    }
  }
}

void rename(const Address_Tree& tree, const QString& prefix) {
  forEachAddress(tree, [&prefix](auto& sub) { sub.mName = prefix + QString::number(sub.mNumber).repeated(4); });
}

/// The process that is killed: opens the project and, once told to, changes every address and saves.
int saveOnce(const QString& path, const QString& prefix) {
  Session_State state;
  Project_Session session(state);
  if (!session.open(path)) {
    return 1;
  }
  rename(session.database().mAddresses, prefix);
  std::puts("ready");
  std::fflush(stdout);
  std::getchar();
  const bool isSaved = session.save() == Project_Session::Save_Result::Saved;
  std::puts("done");
  std::fflush(stdout);
  std::getchar();
  return isSaved ? 0 : 1;
}

} // namespace

/// A studio killed at any moment of a save leaves the whole old or the whole new project. STUDIO_KILLS sets how often,
/// 12 times if unset.
class Save_Kill_Test : public QObject {
  Q_OBJECT

private slots:
  void aKillLeavesTheOldOrTheNewProject() {
    Session_Rig rig;
    QVERIFY(rig.create());
    for (int i = 0; i < cAddresses; ++i) {
      rig.addAddress({i / 512, i / 256 % 2, i % 256}, QString());
    }
    rename(rig.mSession.database().mAddresses, QStringLiteral("A"));
    QCOMPARE(rig.mSession.save(), Project_Session::Save_Result::Saved);
    rig.mSession.close();

    const int kills = qEnvironmentVariable("STUDIO_KILLS", QStringLiteral("12")).toInt();
    const qint64 saveUs = saveFor(rig.path(), u'B', -1);
    QVERIFY(saveUs > 0);
    QChar present = u'B';
    int sawNew = 0;
    for (int i = 0; i < kills; ++i) {
      const QChar next = present == u'A' ? u'B' : u'A';
      const qint64 killAfterUs = QRandomGenerator::global()->bounded(saveUs + saveUs / 10);
      QVERIFY(saveFor(rig.path(), next, killAfterUs) >= 0);
      QChar found;
      readBack(rig, found);
      if (QTest::currentTestFailed()) {
        return;
      }
      QVERIFY2(found == present || found == next, "neither the old nor the new project");
      sawNew += found == next ? 1 : 0;
      present = found;
    }
    qInfo("%d kills within %lld ms of a save, %d times the new project", kills, saveUs / 1000, sawNew);
  }

private:
  /// Microseconds that the save took or was let run; -1 when the process did not come up. Kills after `killAfterUs`,
  /// unless that is negative.
  static qint64 saveFor(const QString& path, QChar prefix, qint64 killAfterUs) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--save"), path, QString(prefix)});
    if (!process.waitForStarted(cWaitMs) || !process.waitForReadyRead(cWaitMs)) {
      process.kill();
      process.waitForFinished(cWaitMs);
      return -1;
    }
    process.readAll();
    QElapsedTimer timer;
    process.write("\n");
    process.waitForBytesWritten(cWaitMs);
    timer.start();
    if (killAfterUs < 0) {
      process.waitForReadyRead(cWaitMs);
    } else {
      QThread::usleep(static_cast<unsigned long>(killAfterUs));
    }
    const qint64 us = timer.nsecsElapsed() / 1000;
    process.kill();
    process.waitForFinished(cWaitMs);
    return us;
  }

  /// The one prefix that every address's name has.
  static void readBack(Session_Rig& rig, QChar& prefix) {
    QVERIFY2(rig.mSession.open(rig.path()), qPrintable(rig.mSession.lastError()));
    QVERIFY(rig.mSession.database().loadReport().lines().isEmpty());
    const Address_Tree& tree = rig.mSession.database().mAddresses;
    QCOMPARE(tree.subGroupCount(), cAddresses);
    prefix = tree.subGroup(Group_Address(0, 0, 0))->mName.at(0);
    forEachAddress(
        tree, [&prefix](const auto& sub) { QCOMPARE(sub.mName, prefix + QString::number(sub.mNumber).repeated(4)); });
    rig.mSession.close();
  }
};

int main(int argc, char** argv) {
  QCoreApplication application(argc, argv);
  const QStringList arguments = QCoreApplication::arguments();
  if (arguments.size() == 4 && arguments[1] == u"--save") {
    return saveOnce(arguments[2], arguments[3]);
  }
  Save_Kill_Test test;
  return QTest::qExec(&test, argc, argv);
}

#include "Save_Kill_Test.moc"
