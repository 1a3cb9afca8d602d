#include "db/Connection_Address.h"

#include <QtTest>

class Connection_Address_Test : public QObject {
  Q_OBJECT

private slots:
  void endpoint_data() {
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("host");
    QTest::addColumn<int>("port");
    QTest::newRow("host") << "192.168.1.20"
                          << "192.168.1.20" << 10001;
    QTest::newRow("port") << "192.168.1.20:10010"
                          << "192.168.1.20" << 10010;
    QTest::newRow("blanks") << " 192.168.1.20 : 10010\n"
                            << "192.168.1.20" << 10010;
    QTest::newRow("copied link") << "https://steuerung.example:10010/start?a=1"
                                 << "steuerung.example" << 10010;
    QTest::newRow("user") << "root@steuerung.example"
                          << "steuerung.example" << 10001;
    QTest::newRow("three parts are no port") << "a:b:c"
                                             << "a:b:c" << 10001;
    QTest::newRow("IPv6") << "[fe80::1]"
                          << "fe80::1" << 10001;
    QTest::newRow("16 bits") << "h:70000"
                             << "h" << 70000 - 65536;
    QTest::newRow("highest of 32 bits") << "h:4294967295"
                                        << "h" << 65535;
    QTest::newRow("above 32 bits") << "h:4294967297"
                                   << "h" << 0;
    QTest::newRow("no number") << "h:x"
                               << "h" << 0;
    QTest::newRow("no port behind the point") << "h:"
                                              << "h" << 0;
    QTest::newRow("nothing") << ""
                             << "" << 10001;
  }
  void endpoint() {
    QFETCH(QString, text);
    QFETCH(QString, host);
    QFETCH(int, port);
    const auto address = Connection_Address::parse(Connection_Address::normalised(text), 10001);
    QCOMPARE(address.mHost, host);
    QCOMPARE(int(address.mPort), port);
  }
};

QTEST_APPLESS_MAIN(Connection_Address_Test)
#include "Connection_Address_Test.moc"
