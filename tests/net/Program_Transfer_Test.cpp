#include "db/Project_Image.h"
#include "net/Program_Transfer.h"
#include "net/Project_Digests.h"
#include "tests/net/Transfer_Rig.h"

using namespace Controller_Command;
using End = Controller_Exchange::End;
using List = Transfer_Rig::List;

class Program_Transfer_Test : public QObject {
  Q_OBJECT

private slots:
  void wire_data() {
    QTest::addColumn<bool>("isSame");
    QTest::addColumn<bool>("isRunning");
    QTest::addColumn<Program_Transfer::Options>("options");
    QTest::addColumn<List>("commands");
    const List sent = {Program_Begin, Program_Data, Program_End};
    QTest::newRow("changed") << false << true << Program_Transfer::Options()
                             << List{Compare} + sent + List{Program_Start};
    QTest::newRow("same") << true << true << Program_Transfer::Options() << List{Compare};
    QTest::newRow("same, stopped") << true << false << Program_Transfer::Options()
                                   << List{Compare} + sent + List{Program_Start};
    QTest::newRow("same, forced") << true << true << Program_Transfer::Options{true, true}
                                  << sent + List{Program_Start};
    QTest::newRow("changed, not to start")
        << false << true << Program_Transfer::Options{false, false} << List{Compare} + sent;
    QTest::newRow("same, not to start") << true << false << Program_Transfer::Options{false, false} << List{Compare};
  }

  void wire() {
    QFETCH(bool, isSame);
    QFETCH(bool, isRunning);
    QFETCH(Program_Transfer::Options, options);
    QFETCH(List, commands);
    const QByteArray program = Project_Image::program(mRig.mSession.database()).toBytes();
    mRig.mControllerProject.mProgramDigest = Project_Digests::program(isSame ? program : QByteArray("anders"));
    mRig.mControllerProject.mIsRunning = isRunning;
    QVERIFY(mRig.connectClient());
    Program_Transfer transfer(mRig.mClient, mRig.mSession, options);
    QCOMPARE(mRig.run(transfer), End::Done);
    QCOMPARE(mRig.commands(), commands);
    QCOMPARE(transfer.wasSent(), commands.contains(Program_Data));
    if (transfer.wasSent()) {
      QCOMPARE(mRig.mPeer.last(Program_Data), program);
    }
  }

  void givenUp_data() {
    QTest::addColumn<quint32>("at");
    QTest::addColumn<bool>("isTold");
    QTest::newRow("comparing") << quint32(Compare) << false;
    QTest::newRow("sending") << quint32(Program_Data) << true;
    QTest::newRow("starting") << quint32(Program_Start) << true;
  }

  /// The controller is told to forget what it has got, also when the transfer is deleted.
  void givenUp() {
    QFETCH(quint32, at);
    QFETCH(bool, isTold);
    mRig.mControllerProject = {};
    for (const bool isDeleted : {false, true}) {
      QVERIFY(mRig.connectClient());
      auto transfer = std::make_unique<Program_Transfer>(mRig.mClient, mRig.mSession, Program_Transfer::Options());
      bool isReached = false;
      mRig.mBefore = [&](const Scripted_Peer::Message& message) {
        if (message.mCommand == at) {
          isReached = mRig.mIsSilent = true;
          if (isDeleted) {
            transfer.reset();
          } else {
            transfer->cancel();
          }
        }
      };
      transfer->start();
      QTRY_VERIFY(isReached);
      QCOMPARE(mRig.commands().contains(Transfer_Abort), isTold);
    }
  }

private:
  Transfer_Rig mRig;
};

QTEST_GUILESS_MAIN(Program_Transfer_Test)
#include "Program_Transfer_Test.moc"
