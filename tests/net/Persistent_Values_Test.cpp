#include "net/Persistent_Values.h"

#include <QtTest>

class Persistent_Values_Test : public QObject {
  Q_OBJECT

private slots:
  void text() {
    const Persistent_Values values{{{{1, 2, 3}, "\x0c\x1a"}, {{0, 0, 1}, QByteArray(1, '\0')}}};
    QCOMPARE(values.toBytes(), QByteArray("1/2/3;0C1A\n0/0/1;00\n"));
    const auto read = Persistent_Values::fromBytes("1/2/3;0c1A\r\n\n0/0/1;00");
    QVERIFY(read && read->mValues == values.mValues);
    QVERIFY(Persistent_Values::fromBytes({})->mValues.empty());
  }

  void wrong_data() {
    QTest::addColumn<QByteArray>("line");
    QTest::newRow("no value") << QByteArray("1/2/3;");
    QTest::newRow("no divider") << QByteArray("1/2/3");
    QTest::newRow("odd digits") << QByteArray("1/2/3;123");
    QTest::newRow("no digits") << QByteArray("1/2/3;0G");
    QTest::newRow("too long") << "1/2/3;" + QByteArray(512, '0');
    QTest::newRow("no address") << QByteArray("1/8/3;00");
    QTest::newRow("two levels") << QByteArray("1/515;00");
    QTest::newRow("leading zero") << QByteArray("1/2/03;00");
    QTest::newRow("again") << QByteArray("1/1/1;00");
    QTest::newRow("two dividers") << QByteArray("1/2/3;00;00");
  }

  void wrong() {
    QFETCH(QByteArray, line);
    QString error;
    QVERIFY(!Persistent_Values::fromBytes("1/1/1;01\n" + line + "\n", &error));
    QVERIFY2(error.contains("Zeile 2"), qPrintable(error));
  }
};

QTEST_GUILESS_MAIN(Persistent_Values_Test)
#include "Persistent_Values_Test.moc"
