#include "db/Connection_Defaults.h"
#include "net/Controller_Discovery.h"

#include <QNetworkDatagram>
#include <QUdpSocket>
#include <QtTest>

using namespace Qt::StringLiterals;

namespace {

constexpr int cNever = 3'600'000;

QByteArray answer(const QString& name, const QString& serial, int port = 10001) {
  DB_Discovery_Answer answer;
  answer.mName = name;
  answer.mSerialNumber = serial;
  answer.mPort = port;
  return answer.toData();
}

/// A port that nobody on this machine listens on.
quint16 freePort() {
  QUdpSocket socket;
  return socket.bind(QHostAddress::LocalHost, 0) ? socket.localPort() : 0;
}

} // namespace

class Controller_Discovery_Test : public QObject {
  Q_OBJECT

private slots:
  void searchesOnTheSecondTickAndThenEveryNinth() {
    Controller_Discovery discovery(u"127.0.0.1"_s, freePort(), cNever);
    QSignalSpy searches(&discovery, &Controller_Discovery::searched);
    QVERIFY(discovery.start());
    QList<int> ticks;
    for (int tick = 1; tick <= 30; ++tick) {
      const qsizetype before = searches.size();
      QVERIFY(QMetaObject::invokeMethod(&discovery, "onTick"));
      if (searches.size() > before) {
        ticks.append(tick);
      }
    }
    QCOMPARE(ticks, (QList<int>{2, 11, 20, 29}));
  }

  void aControllerOnThisMachineIsFoundOnce() {
    const quint16 port = freePort();
    QUdpSocket controller;
    QVERIFY(controller.bind(QHostAddress::AnyIPv4, port, QUdpSocket::ShareAddress | QUdpSocket::ReuseAddressHint));
    const QHostAddress everyone(u"127.255.255.255"_s);
    QByteArrayList searches;
    connect(&controller, &QUdpSocket::readyRead, &controller, [&] {
      while (controller.hasPendingDatagrams()) {
        const QByteArray datagram = controller.receiveDatagram().data();
        if (datagram == DB_Discovery_Answer::cSearch) {
          searches.append(datagram);
          controller.writeDatagram(answer(u"Keller"_s, u"RZ-1"_s, 10010), everyone, port);
        }
      }
    });
    Controller_Discovery discovery(u"127.255.255.255"_s, port, 20);
    QVERIFY(discovery.start());
    QTRY_VERIFY(searches.size() >= 2); // its own echo comes back as often
    QTRY_COMPARE(discovery.found().size(), 1U);
    QTest::qWait(50);
    QCOMPARE(discovery.found().size(), 1U);
    QCOMPARE(searches.first(), QByteArray("RZ8800_AUTO_SEARCH"));
    const DB_Connections::ITEM& found = discovery.found().front().mConnection;
    QCOMPARE(found.mName, u"Keller"_s);
    QCOMPARE(found.mAddress, u"127.0.0.1:10010"_s);
    QCOMPARE(found.mUser, u"root"_s);
    QCOMPARE(found.mPassword, Connection_Defaults::password());
    QCOMPARE(found.mKind, 0);
    discovery.stop();
    QVERIFY(!discovery.isSearching());
    const qsizetype sent = searches.size();
    QTest::qWait(300); // more than nine ticks
    QVERIFY(searches.size() <= sent + 1);
  }

  void datagrams_data() {
    QTest::addColumn<QByteArrayList>("datagrams");
    QTest::addColumn<QStringList>("found");
    const QString here = u"(127.0.0.1)"_s;
    QTest::newRow("two names") << QByteArrayList{answer(u"A"_s, u"1"_s), answer(u"B"_s, u"2"_s), answer(u"A"_s, u"1"_s)}
                               << QStringList{u"A %1 1"_s.arg(here), u"B %1 2"_s.arg(here)};
    QTest::newRow("echo in another case is no echo, but no answer either")
        << QByteArrayList{"RZ8800_AUTO_SEARCH", "rz8800_auto_search"} << QStringList();
    QTest::newRow("an echo with a zero byte")
        << QByteArrayList{QByteArray("RZ8800_AUTO_SEARCH\0", 19)} << QStringList();
    QTest::newRow("empty, binary, huge") << QByteArrayList{QByteArray(""), QByteArray("\0\x02\x03\xff\xfe", 5),
                                                           QByteArray(60'000, '\x02')}
                                         << QStringList();
    QTest::newRow("lines and an impossible port")
        << QByteArrayList{answer(u"A\nB"_s, QString(), 70'000)} << QStringList{u"A B %1"_s.arg(here)};
    QTest::newRow("a name of 50,000 letters") << QByteArrayList{answer(QString(50'000, u'x'), u"1"_s)}
                                              << QStringList{u"%1 %2 1"_s.arg(QString(255, u'x'), here)};
  }
  void datagrams() {
    QFETCH(QByteArrayList, datagrams);
    QFETCH(QStringList, found);
    const quint16 port = freePort();
    Controller_Discovery discovery(u"127.0.0.1"_s, port, cNever);
    QVERIFY(discovery.start());
    QUdpSocket sender;
    QVERIFY(sender.bind(QHostAddress::LocalHost, 0));
    datagrams.append(answer(u"last"_s, {}));
    for (const QByteArray& datagram : std::as_const(datagrams)) {
      QCOMPARE(sender.writeDatagram(datagram, QHostAddress::LocalHost, port), datagram.size());
    }
    const auto texts = [&discovery] {
      QStringList texts;
      for (const auto& one : discovery.found()) {
        texts.append(one.text());
      }
      return texts;
    };
    found.append(u"last (127.0.0.1)"_s);
    QTRY_COMPARE(texts(), found);
  }

  void targets() {
    const auto listed = Controller_Discovery::targets(u" 10.0.0.255, 127.255.255.255,nonsense,::1, 10.0.0.255"_s);
    QCOMPARE(listed, (QList<QHostAddress>{QHostAddress(u"10.0.0.255"_s), QHostAddress(u"127.255.255.255"_s)}));
    QVERIFY(Controller_Discovery::targets(u"nonsense"_s).isEmpty());
    const auto all = Controller_Discovery::targets(u" "_s);
    QCOMPARE(all.first(), QHostAddress(QHostAddress::Broadcast));
    QCOMPARE(all.count(QHostAddress(u"127.255.255.255"_s)), 1);
  }
};

QTEST_MAIN(Controller_Discovery_Test)
#include "Controller_Discovery_Test.moc"
