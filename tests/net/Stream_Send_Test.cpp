#include "net/Stream_Send.h"
#include "tests/net/Transfer_Rig.h"

using namespace Controller_Command;
using End = Controller_Exchange::End;

class Stream_Send_Test : public QObject {
  Q_OBJECT

private slots:
  void init() { QVERIFY(mRig.connectClient()); }

  void sizes_data() {
    QTest::addColumn<qsizetype>("size");
    QTest::addColumn<int>("pieces");
    QTest::newRow("nothing") << qsizetype(0) << 0;
    QTest::newRow("two pieces") << Byte_Stream::cChunk + 1 << 2;
    QTest::newRow("8 MB") << 128 * Byte_Stream::cChunk << 128;
  }

  /// What arrives is what was sent, whole.
  void sizes() {
    QFETCH(qsizetype, size);
    QFETCH(int, pieces);
    const QByteArray bytes(size, 'x');
    Byte_Stream arrived;
    bool isWhole = true;
    mRig.mBefore = [&](const Scripted_Peer::Message& message) {
      isWhole = isWhole && (message.mCommand == Persistent_Send_Begin ? arrived.begin(message.mData)
                                                                      : arrived.take(message.mData));
      if (arrived.isComplete()) {
        mRig.mPeer.send(Persistent_Taken, QByteArray("17", 3));
      }
    };
    Stream_Send send(mRig.mClient, cWhat, bytes);
    QCOMPARE(mRig.run(send), End::Done);
    QVERIFY(isWhole && arrived.bytes() == bytes && arrived.announced().mName == cWhat.mName);
    QCOMPARE(mRig.mPeer.count(Persistent_Send_Data), pieces);
    QCOMPARE(send.replyText(), QStringLiteral("17"));
  }

  /// While the controller takes nothing, the rest waits here: progress stands still, and giving up sends no more of it.
  void controllerThatDoesNotRead() {
    constexpr qsizetype cSize = 64LL * 1024 * 1024;
    mRig.mPeer.mSocket->setReadBufferSize(1);
    mRig.mPeer.mSocket->disconnect();
    Stream_Send send(mRig.mClient, cWhat, QByteArray(cSize, 'x'));
    send.setTimeout(300);
    QCOMPARE(mRig.run(send), End::NoAnswer);
    QVERIFY(mRig.mClient.bytesToWrite() < Paced_Sender::cMostWaiting + 2 * Byte_Stream::cChunk);
    const QString last = mRig.mLabels.constLast();
    QVERIFY2(last.startsWith("Werte senden ") && !last.endsWith(" 100/100"), qPrintable(last));
  }

private:
  const Stream_Send::What cWhat = {Persistent_Send_Begin, Persistent_Send_Data, Persistent_Taken,
                                   QStringLiteral("werte.txt"), QStringLiteral("Werte senden")};
  Transfer_Rig mRig;
};

QTEST_GUILESS_MAIN(Stream_Send_Test)
#include "Stream_Send_Test.moc"
