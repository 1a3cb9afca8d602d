#include "net/Byte_Stream.h"

#include <QtTest>

class Byte_Stream_Test : public QObject {
  Q_OBJECT

private slots:
  void wholeAgain_data() {
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("pieces");
    QTest::newRow("nothing") << 0 << 0;
    QTest::newRow("one byte") << 1 << 1;
    QTest::newRow("one piece") << 65536 << 1;
    QTest::newRow("one byte more") << 65537 << 2;
  }
  void wholeAgain() {
    QFETCH(int, size);
    QByteArray bytes(size, 'a');
    for (int at = 0; at < size; ++at) {
      bytes[at] = char(at * 7);
    }
    const QList<QByteArrayView> chunks = Byte_Stream::chunks(bytes);
    QTEST(int(chunks.size()), "pieces");
    Byte_Stream stream;
    QVERIFY(stream.begin(Byte_Stream::announce(bytes, QStringLiteral("Bild.png")).toData()));
    for (const QByteArrayView chunk : chunks) {
      QVERIFY(!stream.isComplete());
      QVERIFY(stream.take(chunk));
    }
    QVERIFY(stream.isComplete());
    QCOMPARE(stream.bytes(), bytes);
    QCOMPARE(stream.announced().mName, QStringLiteral("Bild.png"));
  }

  void refused() {
    QString error;
    Byte_Stream stream;
    QVERIFY(!stream.take("abc", &error));
    QVERIFY(!error.isEmpty());
    for (const qint64 size : {qint64(-1), Byte_Stream::cMost + 1}) {
      DB_Stream_Begin begin = Byte_Stream::announce("abc");
      begin.mSize = size;
      error.clear();
      QVERIFY(!stream.begin(begin.toData(), &error));
      QVERIFY(!error.isEmpty() && !stream.isBegun());
    }
    QVERIFY(!stream.begin("kein Satz"));
    for (const char* const other : {"abcd", "abd"}) { // too long, and another text of that length
      error.clear();
      QVERIFY(stream.begin(Byte_Stream::announce("abc").toData()));
      QVERIFY(!stream.take(QByteArrayView(other), &error));
      QVERIFY(!error.isEmpty());
    }
  }
};

QTEST_APPLESS_MAIN(Byte_Stream_Test)
#include "Byte_Stream_Test.moc"
