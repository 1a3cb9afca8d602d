#include "net/Message_Reader.h"
#include "net/Network_Cipher.h"
#include "net/Network_Frame.h"

#include <QBuffer>
#include <QDateTime>
#include <QtTest>

namespace {

constexpr qint64 cStamp = 1'767'225'600'123'456;

// openssl enc -aes-256-ecb -nopad -K 5a1ce37709b46fd2388e41fa9325c860ad177be95402bf863df12a98c56e0d73
const QByteArray cPlain = QByteArray::fromHex("15000000200000001100000072210000"
                                              "00b955690000000040e2010000000000"
                                              "48616c6c6f2c20537465756572756e67"
                                              "21000000000000000000000000000000");
const QByteArray cEnciphered = QByteArray::fromHex("7d111d106ececa9a31b96e894af3aee4"
                                                   "2171b7c69a2c3e55371ee6d7d24fa1b3"
                                                   "3d266517f59d1a260bc6a322614121ad"
                                                   "6c970cd30881b7503ded4a75b33b7f62");

/// A header that says what it is told to, with as many payload bytes as it promises, 1,024 at the most.
QByteArray frame(quint32 command, quint32 padded, quint32 length, quint32 magic = Network_Message::cMagic) {
  Network_Message header = Network_Message::make(command, length, cStamp);
  header.mPaddedLength = padded;
  header.mMagic = magic;
  return Network_Frame::pack(header, QByteArray(std::min(padded, 1024U), 'x'));
}

} // namespace

class Network_Frame_Test : public QObject {
  Q_OBJECT

private slots:
  void cipherIsThatOfAnotherTool() {
    QByteArray bytes = cPlain;
    QVERIFY(Network_Cipher::encipher({bytes.data(), static_cast<size_t>(bytes.size())}));
    QCOMPARE(bytes.toHex(), cEnciphered.toHex());
    QVERIFY(Network_Cipher::decipher({bytes.data(), static_cast<size_t>(bytes.size())}));
    QCOMPARE(bytes.toHex(), cPlain.toHex());
    QVERIFY(!Network_Cipher::encipher({bytes.data(), 15}));
    QCOMPARE(Network_Frame::pack(Network_Message::make(21, 17, cStamp), "Hallo, Steuerung!"), cEnciphered);
  }

  void padding_data() {
    QTest::addColumn<int>("length");
    QTest::addColumn<int>("padded");
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("1") << 1 << 16;
    QTest::newRow("16") << 16 << 16;
    QTest::newRow("17") << 17 << 32;
  }
  void padding() {
    QFETCH(int, length);
    QFETCH(int, padded);
    QByteArray bytes = Network_Frame::pack(7, QByteArray(length, 'x'));
    QCOMPARE(bytes.size(), 32 + padded);
    const auto header = Network_Frame::header(bytes);
    QVERIFY(header);
    QCOMPARE(int(header->mPaddedLength), padded);
    QCOMPARE(int(header->mDataLength), length);
    QVERIFY(std::abs(header->mSeconds - QDateTime::currentSecsSinceEpoch()) < 60);
    QVERIFY(header->mMicroseconds >= 0 && header->mMicroseconds < 1'000'000);
    QVERIFY(Network_Cipher::decipher({bytes.data(), static_cast<size_t>(bytes.size())}));
    QCOMPARE(bytes.mid(32), QByteArray(length, 'x') + QByteArray(padded - length, '\0'));
  }

  void reader_data() {
    QTest::addColumn<QByteArray>("first");
    QTest::addColumn<QString>("expected"); // "command/payload bytes" of each message, "!" where it is out of step
    const QString next = QStringLiteral("9/0");
    QTest::newRow("header alone") << frame(5, 0, 0) << "5/0 9/0";
    QTest::newRow("header alone, whatever its data length") << frame(5, 0, 4711) << "5/0 9/0";
    QTest::newRow("payload") << frame(5, 48, 33) << "5/48 9/0";
    QTest::newRow("two at once") << frame(5, 16, 16) + frame(6, 32, 17) << "5/16 6/32 9/0";
    QTest::newRow("wrong magic") << frame(5, 16, 16, 8561) + frame(6, 0, 0) << "! 9/0";
    QTest::newRow("no whole blocks") << frame(5, 17, 17) << "! 9/0";
    QTest::newRow("smaller than the data") << frame(5, 16, 17) << "! 9/0";
    QTest::newRow("above 256 MB") << frame(5, 256U * 1024 * 1024 + 16, 1) << "! 9/0";
    QTest::newRow("whole before what is out of step") << frame(5, 16, 1) + QByteArray(32, 'x') << "5/16 ! 9/0";
  }
  void reader() {
    QFETCH(QByteArray, first);
    QFETCH(QString, expected);
    // All at once, in segments that end inside header and payload, and byte by byte. Only the first finds what is
    // behind a wrong magic in the same buffer, so the others meet rows that hold none.
    for (const qsizetype segment : {qsizetype(4096), qsizetype(33), qsizetype(1)}) {
      if (segment != 4096 && expected.contains(u'!')) {
        continue;
      }
      QByteArray bytes;
      QBuffer buffer(&bytes);
      QVERIFY(buffer.open(QIODevice::ReadOnly));
      Message_Reader reader;
      QStringList found;
      for (const QByteArray& part : {first, frame(9, 0, 0)}) {
        for (qsizetype at = 0; at < part.size(); at += segment) {
          bytes.append(part.mid(at, segment));
          for (auto step = reader.next(buffer); step != Message_Reader::Step::Missing; step = reader.next(buffer)) {
            found.append(step == Message_Reader::Step::OutOfStep
                             ? QStringLiteral("!")
                             : QStringLiteral("%1/%2").arg(reader.message().mCommand).arg(reader.payload().size()));
            QVERIFY(reader.payload() == QByteArray(reader.payload().size(), 'x') || found.constLast() == u'!');
          }
        }
      }
      QCOMPARE(found.join(u' '), expected);
    }
  }

  void pendingHeader() {
    QByteArray bytes = frame(5, 256U * 1024 * 1024, 1).first(40);
    QBuffer buffer(&bytes);
    QVERIFY(buffer.open(QIODevice::ReadOnly));
    Message_Reader reader;
    QCOMPARE(reader.next(buffer), Message_Reader::Step::Missing);
    QCOMPARE(reader.pendingLength(), 256LL * 1024 * 1024);
    QCOMPARE(reader.payload().capacity(), 0); // nothing is taken before the bytes are there
    reader.clear();
    QVERIFY(!reader.isPending());
  }
};

QTEST_APPLESS_MAIN(Network_Frame_Test)
#include "Network_Frame_Test.moc"
