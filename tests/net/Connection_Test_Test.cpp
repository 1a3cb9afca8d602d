#include "net/Connection_Test.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/Controller_Records.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"

using namespace Qt::StringLiterals;

namespace Command = Controller_Command;

using Answers = QMap<quint32, QList<std::pair<quint32, QByteArray>>>; ///< what is sent upon a command

class Connection_Test_Test : public QObject {
  Q_OBJECT

  static QByteArray refusal() {
    DB_Refusal refusal;
    refusal.mReason = u"kenne ich nicht"_s;
    return refusal.toData();
  }

private slots:
  void tests_data() {
    QTest::addColumn<bool>("isRelay");
    QTest::addColumn<Answers>("answers");
    QTest::addColumn<QStringList>("told"); ///< regular expressions; "+" before what went well, "-" before what did not
    QTest::addColumn<QList<quint32>>("asked");
    const quint32 check = Command::Connection_Check;
    const quint32 dns = Command::Relay_Dns_Check;
    const quint32 relayCheck = Command::Relay_Check;
    const QString direct = u"Verbinde zur Steuerung"_s;
    const QString relay = u"Verbinde zu VPN Server"_s;
    const QString reached = uR"(\+Verbindung DNS ok, 127\.0\.0\.1:\d+ nach \d+ ms)"_s;
    QTest::newRow("direct") << false << Answers{{check, {{Command::Connection_Check_Reply, "\0"_ba}}}}
                            << QStringList{direct, reached} << QList<quint32>{check};
    QTest::newRow("direct, other replies before")
        << false
        << Answers{{check, {{Command::Relay_Check_Reply, "x\0"_ba}, {Command::Connection_Check_Reply, "\0"_ba}}}}
        << QStringList{direct, reached} << QList<quint32>{check};
    QTest::newRow("direct, wrong") << false
                                   << Answers{{check, {{Command::Connection_Check_Reply, "kein Projekt\0"_ba}}}}
                                   << QStringList{direct, u"-Fehler Verbindung: kein Projekt"_s}
                                   << QList<quint32>{check};
    QTest::newRow("direct, refused") << false << Answers{{check, {{Command::Refused, refusal()}}}}
                                     << QStringList{direct, u"-Fehler Verbindung: kenne ich nicht"_s}
                                     << QList<quint32>{check};
    QTest::newRow("direct, silent") << false << Answers()
                                    << QStringList{direct, direct + uR"( \(Versuch 2/2\))"_s,
                                                   u"-Fehler Verbindung: keine Antwort"_s}
                                    << QList<quint32>{check, check};
    QTest::newRow("relayed") << true
                             << Answers{{dns, {{Command::Relay_Dns_Reply, "ok;10.8.0.7\0"_ba}}},
                                        {relayCheck, {{Command::Relay_Check_Reply, "\0"_ba}}}}
                             << QStringList{relay, uR"(\+DNS Abfrage ok, 10\.8\.0\.7)"_s, direct, reached}
                             << QList<quint32>{dns, relayCheck};
    QTest::newRow("relayed, name not known")
        << true << Answers{{dns, {{Command::Relay_Dns_Reply, "haus.example ist unbekannt\0"_ba}}}}
        << QStringList{relay, u"-Fehler DNS Abfrage: haus.example ist unbekannt"_s} << QList<quint32>{dns};
  }
  void tests() {
    QFETCH(bool, isRelay);
    QFETCH(Answers, answers);
    QFETCH(QStringList, told);
    QFETCH(QList<quint32>, asked);
    Session_Rig rig;
    QVERIFY(rig.create());
    Controller_Link link(rig.mSession);
    Scripted_Peer peer;
    peer.mOnMessage = [&](const Scripted_Peer::Message& message) {
      for (const auto& [command, data] : answers.value(message.mCommand)) {
        peer.send(command, data);
      }
    };
    DB_Connections::ITEM connection = peer.connection();
    if (isRelay) {
      connection.mKind = DB_Connections::ITEM::cRelay;
      connection.mRelayDns = u"haus.example"_s;
      link.client().setRelay(u"127.0.0.1"_s, peer.port());
    }
    Connection_Test test(link, connection, {2, 400});
    connect(&link.client(), qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), &test,
            &Connection_Test::onNetworkRead);
    connect(&link.client(), &Main_Network_Client::onProcessNetworkConnect, &test, &Connection_Test::onNetworkConnect);
    QStringList heard;
    connect(&test, &Connection_Test::step, this, [&heard](const QString& text) { heard.append(text); });
    connect(&test, &Connection_Test::result, this,
            [&heard](const QString& text, bool isOk) { heard.append((isOk ? u'+' : u'-') + text); });
    QSignalSpy ends(&test, &Connection_Test::finished);
    test.start();
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(ends.first().first().toBool(), heard.constLast().startsWith(u'+'));
    QCOMPARE(heard.size(), told.size());
    for (qsizetype i = 0; i < told.size(); ++i) {
      const QRegularExpression pattern(QRegularExpression::anchoredPattern(told[i]));
      QVERIFY2(pattern.match(heard[i]).hasMatch(), qPrintable(heard[i]));
    }
    QList<quint32> commands;
    for (const Scripted_Peer::Message& message : std::as_const(peer.mMessages)) {
      commands.append(message.mCommand);
    }
    QCOMPARE(commands, asked); // nothing else: a test logs on nowhere
    QVERIFY(!link.client().isWanted());
    QCOMPARE(link.state(), Controller_Link::State::Offline);
  }

  void aRelayServiceOfTheUsersOwnIsTheOneThatIsAsked() {
    Session_Rig rig;
    Controller_Link link(rig.mSession);
    Scripted_Peer peer;
    peer.mOnMessage = [&peer](const Scripted_Peer::Message& message) {
      const bool isFirst = message.mCommand == Command::Relay_Dns_Check;
      peer.send(isFirst ? Command::Relay_Dns_Reply : Command::Relay_Check_Reply, isFirst ? "ok;1\0"_ba : "\0"_ba);
    };
    link.client().setRelay({}, peer.port());
    DB_Connections::ITEM connection;
    connection.mKind = DB_Connections::ITEM::cRelay;
    connection.mRelayDns = u"haus.example"_s;
    connection.mRelayHost = u"127.0.0.1"_s;
    Connection_Test test(link, connection, {1, 400});
    connect(&link.client(), qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), &test,
            &Connection_Test::onNetworkRead);
    connect(&link.client(), &Main_Network_Client::onProcessNetworkConnect, &test, &Connection_Test::onNetworkConnect);
    QSignalSpy ends(&test, &Connection_Test::finished);
    test.start();
    QTRY_COMPARE(ends.size(), 1);
    QVERIFY(ends.first().first().toBool());
    QCOMPARE(peer.mAccepted, 2);
  }

  void nobodyListens() {
    Session_Rig rig;
    Controller_Link link(rig.mSession);
    DB_Connections::ITEM connection;
    connection.mAddress = Scripted_Peer::deadAddress();
    Connection_Test test(link, connection, {3, 100});
    connect(&link.client(), &Main_Network_Client::onProcessNetworkConnect, &test, &Connection_Test::onNetworkConnect);
    QSignalSpy steps(&test, &Connection_Test::step);
    QSignalSpy ends(&test, &Connection_Test::finished);
    test.start();
    QTRY_COMPARE(ends.size(), 1);
    QCOMPARE(ends.first().first().toBool(), false);
    QCOMPARE(steps.size(), 3); // the false of each dialling was none of them
    test.start();
    test.cancel();
    QTest::qWait(150);
    QCOMPARE(ends.size(), 1);
    QVERIFY(!link.client().isWanted());
  }

  void whoConnectsInterruptsIt() {
    Session_Rig rig;
    Controller_Link link(rig.mSession);
    Scripted_Peer silent;
    Scripted_Peer other;
    Connection_Test test(link, silent.connection(), {2, 300});
    connect(&link.client(), &Main_Network_Client::onProcessNetworkConnect, &test, &Connection_Test::onNetworkConnect);
    QSignalSpy ends(&test, &Connection_Test::finished);
    QSignalSpy interruptions(&test, &Connection_Test::interrupted);
    test.start();
    QTRY_COMPARE(silent.count(Command::Connection_Check), 1);
    link.connectTo(other.connection());
    QTRY_COMPARE(interruptions.size(), 1);
    QTRY_COMPARE(other.count(Command::Log_On), 1);
    QTest::qWait(400); // nothing of the test goes on
    QCOMPARE(link.state(), Controller_Link::State::LoggingOn);
    QCOMPARE(ends.size(), 0);
  }
};

QTEST_MAIN(Connection_Test_Test)
#include "Connection_Test_Test.moc"
