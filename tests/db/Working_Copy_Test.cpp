#include "db/Working_Copy.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

using State = Working_Copy::State;

class Working_Copy_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mTemp = std::make_unique<QTemporaryDir>(mBase + QStringLiteral("/working-copy-XXXXXX"));
    qputenv("TMPDIR", mTemp->path().toLocal8Bit());
  }

  void thePathFollowsTheRule() {
    const QByteArray hash =
        QCryptographicHash::hash(QStringLiteral("/projekte/ärzte haus").toUtf8(), QCryptographicHash::Md5).toHex();
    const QString expected = mTemp->path() + QStringLiteral("/~lock.Mein Haus.ZPRO.") +
                             QString::fromLatin1(hash.left(8)) + QStringLiteral(".tmp");
    QCOMPARE(Working_Copy::pathFor(QStringLiteral("/Projekte/ÄRZTE Haus/Mein Haus.ZPRO")), expected);
    QCOMPARE(Working_Copy::pathFor(QString()), QString());
    QString second = expected;
    second.replace(QStringLiteral(".tmp"), QStringLiteral(".2.tmp"));
    QCOMPARE(Working_Copy::pathFor(QStringLiteral("/Projekte/ÄRZTE Haus/Mein Haus.ZPRO"), 2), second);
  }

  void aLivingOwnerIsToldFromACrash() {
    QCOMPARE(Working_Copy::stateOf(cProject), State::Free);
    Working_Copy first;
    QVERIFY(first.claim(cProject));
    QCOMPARE(first.path(), Working_Copy::pathFor(cProject));
    QCOMPARE(Working_Copy::stateOf(cProject), State::InUse);
    Working_Copy second;
    QVERIFY(second.claim(cProject));
    QCOMPARE(second.path(), Working_Copy::pathFor(cProject, 2));
    touch(first.path());
    touch(second.path());
    first.release();
    QVERIFY(!QFile::exists(Working_Copy::pathFor(cProject)));
    QCOMPARE(Working_Copy::stateOf(cProject), State::InUse);
    second.release();
    QCOMPARE(Working_Copy::stateOf(cProject), State::Free);
    QCOMPARE(QDir(mTemp->path()).entryList(QDir::Files | QDir::Hidden), QStringList());
  }

  void whatACrashLeftIsFoundAndGoesWithItsJournals() {
    const QString path = Working_Copy::pathFor(cProject);
    for (const char* const suffix : {"", "-journal", "-wal"}) {
      touch(path + QLatin1StringView(suffix));
    }
    touch(Working_Copy::pathFor(cProject, 3));
    writeLockOfDeadProcess(path + QStringLiteral(".lock"));
    QCOMPARE(Working_Copy::stateOf(cProject), State::LeftBehind);
    Working_Copy copy;
    QVERIFY(copy.claim(cProject));
    QCOMPARE(copy.path(), path);
    copy.settle(cProject);
    QCOMPARE(QDir(mTemp->path()).entryList(QDir::Files | QDir::Hidden),
             QStringList(QFileInfo(path + QStringLiteral(".lock")).fileName()));
  }

  /// What could not be opened or saved has not taken the place of anything.
  void whatACrashLeftComesBack() {
    const QString path = Working_Copy::pathFor(cProject);
    const File_State base{true, 5, 7};
    touch(path);
    touch(path + QStringLiteral("-journal"));
    QVERIFY(base.write(path + QStringLiteral(".base")));
    const QStringList before = QDir(mTemp->path()).entryList(QDir::Files | QDir::Hidden);
    {
      Working_Copy copy;
      QVERIFY(copy.claim(cProject) && !QFile::exists(path));
      touch(path);
      copy.rememberBase({});
    }
    QCOMPARE(QDir(mTemp->path()).entryList(QDir::Files | QDir::Hidden), before);
    QVERIFY(Working_Copy::baseOf(path) == base);
  }

  /// A cleaner has deleted file and lock, and another studio has taken the place.
  void aLockOfAnotherStudioIsNotOurs() {
    Working_Copy copy;
    QVERIFY(copy.claim(cProject));
    const QString path = copy.path();
    QVERIFY(QFile::remove(path + QStringLiteral(".lock")));
    writeLockOfDeadProcess(path + QStringLiteral(".lock"));
    touch(path);
    QVERIFY(!copy.keepLock() && copy.path().isEmpty());
    copy.release();
    QVERIFY(QFile::exists(path) && QFile::exists(path + QStringLiteral(".lock")));
  }

  void aJournalWithoutItsFileGoesBeforeAFreshCopyIsMade() {
    const QString path = Working_Copy::pathFor(cProject);
    touch(path + QStringLiteral("-journal"));
    Working_Copy copy;
    QVERIFY(copy.claim(cProject));
    QVERIFY(!QFile::exists(path + QStringLiteral("-journal")));
  }

private:
  static void touch(const QString& path) {
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("x");
  }

  /// A process that has ended cannot be this one's neighbour any more: its id is free.
  static void writeLockOfDeadProcess(const QString& path) {
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("-functions")});
    QVERIFY(process.waitForStarted());
    const qint64 id = process.processId();
    QVERIFY(process.waitForFinished());
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::number(id) + "\nquarna-studio\n" + QSysInfo::machineHostName().toUtf8() + "\n");
  }

  const QString cProject = QStringLiteral("/projekte/haus/Haus.zpro");
  const QString mBase = QDir::tempPath();
  std::unique_ptr<QTemporaryDir> mTemp;
};

QTEST_GUILESS_MAIN(Working_Copy_Test)
#include "Working_Copy_Test.moc"
