#include "db/Project_Image.h"
#include "net/Controller_Command.h"
#include "net/Controller_Request.h"
#include "net/Program_Transfer.h"
#include "net/Project_Comparison.h"
#include "net/Project_Transfer.h"
#include "net/Stream_Load.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Project_Sample.h"
#include "tests/simulator/Simulator_Rig.h"

using namespace Controller_Command;
using End = Controller_Exchange::End;
using Verdict = Project_Comparison::Verdict;

/// A project on its way to the controller and back, as the user goes it.
class Project_Round_Trip_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Simulator_Rig>();
    Project_Sample::addAddresses(store(), 2, 2, 20);
    Project_Sample::addPages(store().mFbPages, 3, 10);
    Project_Sample::addPages(store().mWidgetPages, 2, 10);
    store().mMail.setData(store().mMail.toData() + "mFuture\x02" + "später\x03");
    QVERIFY(store().ressourceWriteRaw("bild ä.png", QByteArray(300'000, '\1')));
    QVERIFY(store().ressourceWriteRaw("Ton.wav", "x"));
    QVERIFY(mRig->goOnline());
    QCOMPARE(compare(), Verdict::NoProject);
  }

  void writeAndLoad() {
    Project_Transfer transfer(mRig->client(), mRig->mSession, {});
    QCOMPARE(run(transfer), End::Done);
    QVERIFY(transfer.generation() > 0 && !store().mProject.mControllerProjectId.isEmpty());
    QCOMPARE(compare(), Verdict::Same);

    Stream_Load load(mRig->client(), {Load, "project", Load_Begin, Load_Data, "Warte", "Lade"});
    QCOMPARE(run(load), End::Done);
    const QString path = mRig->path(QStringLiteral("geladen.zpro"));
    QString error;
    QVERIFY2(Project_Image::writeFile(load.bytes(), path, &error), qPrintable(error));
    ProjectDatabase loaded;
    QVERIFY(loaded.openProject(path, true));
    QVERIFY(loaded.loadReport().lines().isEmpty());
    // The controller has it as it was saved before it was written.
    loaded.mProject.mTimestamp = store().mProject.mTimestamp;
    QCOMPARE(Project_Dump::project(loaded, false), Project_Dump::project(store(), false));
    QStringList names;
    QVERIFY(loaded.ressourceList(names));
    names.sort();
    QCOMPARE(names, (QStringList{"Ton.wav", "bild ä.png"}));
    QByteArray bytes;
    QVERIFY(loaded.ressourceReadRaw("bild ä.png", bytes) && bytes == QByteArray(300'000, '\1'));
  }

  /// Whatever becomes of the resources here, the controller has these afterwards and no others.
  void changedResources_data() {
    QTest::addColumn<QStringList>("names");
    QTest::newRow("none any more") << QStringList();
    QTest::newRow("another one") << QStringList{"neu.png"};
    QTest::newRow("name cut in a character") << QStringList{u'a' + QString(200, u'ä')};
    QTest::newRow("name that looks like a path") << QStringList{"../../etc/passwd"};
  }

  void changedResources() {
    QFETCH(QStringList, names);
    Project_Transfer first(mRig->client(), mRig->mSession, {});
    QCOMPARE(run(first), End::Done);
    QVERIFY(store().ressourceDeleteAll());
    for (const QString& name : names) {
      QVERIFY(store().ressourceWriteRaw(name, "neu"));
    }
    QCOMPARE(compare(), Verdict::Different);
    Project_Transfer second(mRig->client(), mRig->mSession, {});
    QCOMPARE(run(second), End::Done);
    QCOMPARE(compare(), Verdict::Same);
    QCOMPARE(mRig->controller().project().mResources.size(), names.size());

    Stream_Load load(mRig->client(), {Load, "project", Load_Begin, Load_Data, "Warte", "Lade"});
    QCOMPARE(run(load), End::Done);
    const QString path = mRig->path(QStringLiteral("geladen.zpro"));
    QVERIFY(Project_Image::writeFile(load.bytes(), path));
    QVERIFY(mRig->mSession.open(path));
    QCOMPARE(compare(), Verdict::Same);
  }

  /// A changed program goes over alone; a changed record does not.
  void changedProgram() {
    Project_Transfer first(mRig->client(), mRig->mSession, {});
    QCOMPARE(run(first), End::Done);
    store().mFbPages.pages().at(1).mChildren.at(0).mX += 20;
    QCOMPARE(compare(), Verdict::Different);
    Program_Transfer program(mRig->client(), mRig->mSession, {});
    QCOMPARE(run(program), End::Done);
    QVERIFY(program.wasSent() && program.controllerProject().mIsRunning);
    QCOMPARE(compare(), Verdict::Same);
    Program_Transfer again(mRig->client(), mRig->mSession, {});
    QVERIFY(run(again) == End::Done && !again.wasSent());
    store().mMail.mServer += u'x';
    QCOMPARE(compare(), Verdict::Different);
  }

  void givenUp_data() {
    QTest::addColumn<QString>("label");
    QTest::addColumn<bool>("isLost");
    for (const char* const label :
         {"Programm übertragen", "Steuerung stopp", "Projekt...", "Projekt übertragen, Runtime start..."}) {
      QTest::addRow("cancelled at %s", label) << QString::fromUtf8(label) << false;
      QTest::addRow("link lost at %s", label) << QString::fromUtf8(label) << true;
    }
  }

  /// The controller goes on with what it had.
  void givenUp() {
    QFETCH(QString, label);
    QFETCH(bool, isLost);
    Project_Transfer first(mRig->client(), mRig->mSession, {});
    QCOMPARE(run(first), End::Done);
    const QByteArray before = mRig->controller().project().toBytes();
    store().mFbPages.pages().at(1).mChildren.at(0).mX += 20;
    Project_Transfer second(mRig->client(), mRig->mSession, {});
    connect(&second, &Controller_Exchange::progress, this, [&](const QString& shown) {
      if (shown == label && isLost) {
        mRig->client().disconnectFromController();
      } else if (shown == label) {
        second.cancel();
      }
    });
    QCOMPARE(run(second), isLost ? End::NoLink : End::Cancelled);
    QTRY_VERIFY(mRig->controller().isRunning());
    QCOMPARE(mRig->controller().project().toBytes(), before);
    QVERIFY(!mRig->mSession.isModified());
  }

private:
  ProjectDatabase& store() { return mRig->mSession.database(); }

  static End run(Controller_Exchange& exchange) {
    exchange.start();
    if (!Simulator_Rig::waitFor([&exchange] { return exchange.isFinished(); }, 20'000)) {
      qFatal("no end");
    }
    return exchange.end();
  }

  Verdict compare() {
    Controller_Request request(mRig->client(), Compare, {}, Compare_Reply, {});
    if (run(request) != End::Done) {
      qFatal("no comparison");
    }
    const Project_Comparison comparison(store().mProject, *Project_Digests::of(store()),
                                        request.replyRecord<DB_Controller_Project>());
    return comparison.verdict();
  }

  std::unique_ptr<Simulator_Rig> mRig;
};

QTEST_GUILESS_MAIN(Project_Round_Trip_Test)
#include "Project_Round_Trip_Test.moc"
