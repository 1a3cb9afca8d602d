#include "db/Address_Value_Text.h"

#include <QtTest>

/// What is typed becomes a payload, and the payload a text.
class Address_Value_Text_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

  void typedAndShown_data() {
    QTest::addColumn<QString>("type");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QByteArray>("payload"); // hexadecimal, empty: refused
    QTest::addColumn<QString>("shown");
    QTest::newRow("switch") << "1.001"
                            << "1" << QByteArray("01") << "Ein";
    QTest::newRow("switch, text") << "1.001"
                                  << "Aus" << QByteArray("00") << "Aus";
    QTest::newRow("switch, main number only") << "1"
                                              << "1" << QByteArray("01") << "Ein";
    QTest::newRow("temperature") << "9.001"
                                 << "21,5" << QByteArray("0c33") << "21,5 °C";
    QTest::newRow("temperature, point") << "9.001"
                                        << "21.5" << QByteArray("0c33") << "21,5 °C";
    QTest::newRow("below absolute zero") << "9.001"
                                         << "-280" << QByteArray() << QString();
    QTest::newRow("float, main number only") << "9"
                                             << "-280" << QByteArray("a12a") << "-280";
    QTest::newRow("no number") << "9.001"
                               << "warm" << QByteArray() << QString();
    QTest::newRow("nothing") << "9.001"
                             << "" << QByteArray() << QString();
    QTest::newRow("byte, main number only") << "5"
                                            << "255" << QByteArray("ff") << "255";
    QTest::newRow("byte too large") << "5"
                                    << "256" << QByteArray() << QString();
    QTest::newRow("compound") << "232.600"
                              << "r=1 g=2 b=3" << QByteArray("010203") << "Rot: 1, Grün: 2, Blau: 3";
    QTest::newRow("compound, cut") << "232.600"
                                   << "r=1 g=2" << QByteArray() << QString();
    QTest::newRow("no type") << ""
                             << "0c 1A" << QByteArray("0c1a") << "0C 1A";
    QTest::newRow("no type, half a byte") << ""
                                          << "0c 1" << QByteArray() << QString();
    QTest::newRow("no type, no digits") << ""
                                        << "xy" << QByteArray() << QString();
    QTest::newRow("unknown type") << "999.1"
                                  << "01" << QByteArray("01") << "01";
  }

  void typedAndShown() {
    QFETCH(const QString, type);
    QFETCH(const QString, typed);
    QFETCH(const QByteArray, payload);
    const Datapoint_Id id = Datapoint_Id::parse(type).value_or(Datapoint_Id());
    QString error;
    const std::optional<QByteArray> bytes = Address_Value_Text::parse(id, typed, &error);
    QCOMPARE(bytes.has_value(), !payload.isEmpty());
    QCOMPARE(error.isEmpty(), bytes.has_value());
    if (bytes) {
      QCOMPARE(bytes->toHex(), payload);
      const Address_Value value{*bytes, Address_Value_Text::decode(id, *bytes), 0, {}, false};
      QTEST(Address_Value_Text::text(id, value), "shown");
      QCOMPARE(Address_Value_Text::parse(id, Address_Value_Text::typed(id, value)), bytes);
    }
  }

  void timeTellsTheDayWhenItIsAnother() {
    const QDateTime at({2026, 11, 20}, {14, 3, 27});
    Address_Value value;
    value.mTime = at.toMSecsSinceEpoch();
    QCOMPARE(Address_Value_Text::time(value, at.addSecs(60)), QStringLiteral("14:03:27"));
    QCOMPARE(Address_Value_Text::time(value, at.addDays(1)), QStringLiteral("20.11.26 14:03:27"));
    value.mIsStale = true;
    QCOMPARE(Address_Value_Text::time(value, at), QStringLiteral("14:03:27, veraltet"));
  }
};

QTEST_GUILESS_MAIN(Address_Value_Text_Test)
#include "Address_Value_Text_Test.moc"
