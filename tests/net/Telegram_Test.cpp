#include "net/Telegram_Batch.h"

#include <QtTest>

namespace {

using Telegram = DB_Address_Network_Telegram;

/// Head of a write of 0c1a to 1/2/3, as docs/protocol.md has it.
const QByteArray cRecord = QByteArray::fromHex("02000000"
                                               "02000000"
                                               "03000000"
                                               "000000000000000000000000"
                                               "010000000200000003000000"
                                               "00000000"
                                               "02000000"
                                               "01"
                                               "0c1a");

Telegram telegram(int sub, const QByteArray& data) {
  return Telegram::to(Group_Address(1, 2, sub), Telegram::Write, data);
}

} // namespace

class Telegram_Test : public QObject {
  Q_OBJECT

private slots:
  void record() {
    QCOMPARE(telegram(3, QByteArray::fromHex("0c1a")).toBytes().toHex(), cRecord.toHex());
    QCOMPARE(Telegram::fromBytes(cRecord), telegram(3, QByteArray::fromHex("0c1a")));
    Telegram all = telegram(3, QByteArray(255, 'x'));
    all.mKind = Telegram::cKindBus;
    all.mSourceArea = 0xfffffffe;
    all.mSourceDevice = 20;
    all.mTime = 1'767'225'600;
    QCOMPARE(all.toBytes().size(), Telegram::cSize);
    QCOMPARE(Telegram::fromBytes(all.toBytes()), all);
  }

  void cut_data() {
    QTest::addColumn<QByteArray>("bytes");
    QTest::addColumn<int>("data");
    QTest::newRow("nothing") << QByteArray() << 0;
    QTest::newRow("head cut off before the length") << cRecord.first(40) << 0;
    QTest::newRow("head alone") << cRecord.first(45) << 0;
    QTest::newRow("data cut off") << cRecord.first(46) << 1;
    QTest::newRow("behind the data") << cRecord + "xyz" << 2;
    QByteArray lying = cRecord;
    lying.replace(40, 4, QByteArray::fromHex("ffffffff"));
    QTest::newRow("length above what is there") << lying << 2;
    QTest::newRow("longer than a record") << lying + QByteArray(400, 'x') << 255;
  }
  void cut() {
    QFETCH(QByteArray, bytes);
    QFETCH(int, data);
    QCOMPARE(Telegram::fromBytes(bytes).mData.size(), data);
    QCOMPARE(Telegram::fromBytes(bytes).isAddressed(), bytes.size() >= 25);
  }

  void batch() {
    QByteArray batch;
    Telegram_Batch::append(batch, telegram(3, QByteArray::fromHex("0c1a")));
    QCOMPARE(batch.toHex(), QByteArray("42010002"
                                       "03020c1a"));
    Telegram read = Telegram::to(Group_Address(31, 7, 255), Telegram::Read, {});
    Telegram_Batch::append(batch, read);
    Telegram_Batch::append(batch, telegram(4, QByteArray(255, 'x')));

    Telegram taken;
    QCOMPARE(Telegram_Batch::decode(batch, batch.size(), 0, 255, taken), 8);
    QCOMPARE(taken.address(), Group_Address(1, 2, 3));
    QCOMPARE(taken.mData, QByteArray::fromHex("0c1a"));
    QCOMPARE(Telegram_Batch::decode(batch, batch.size(), 8, 255, taken), 6);
    QCOMPARE(taken.address(), read.address());
    QCOMPARE(taken.mService, quint32(Telegram::Read));
    QCOMPARE(Telegram_Batch::decode(batch, batch.size(), 14, 255, taken), 6 + 255);
  }

  void batchEnd_data() {
    QTest::addColumn<QByteArray>("batch");
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("offset");
    const QByteArray record = QByteArray::fromHex("4201000203020c1a");
    QTest::newRow("end") << record << 8 << 8;
    QTest::newRow("behind the end") << record << 8 << 9;
    QTest::newRow("before the begin") << record << 8 << -1;
    QTest::newRow("head cut off") << record.first(5) << 5 << 0;
    QTest::newRow("data cut off") << record.first(7) << 7 << 0;
    QTest::newRow("cut off by the data length") << record + QByteArray(8, '\0') << 7 << 0;
    QTest::newRow("data length above what is there") << record.first(7) << 4711 << 0;
    QTest::newRow("zero bytes") << QByteArray(16, '\0') << 16 << 0;
    QTest::newRow("unknown service") << QByteArray("\x43" + record.mid(1)) << 8 << 0;
  }
  void batchEnd() {
    QFETCH(QByteArray, batch);
    QFETCH(int, length);
    QFETCH(int, offset);
    Telegram taken;
    QCOMPARE(Telegram_Batch::decode(batch, length, offset, 255, taken), 0);
  }
};

QTEST_APPLESS_MAIN(Telegram_Test)
#include "Telegram_Test.moc"
