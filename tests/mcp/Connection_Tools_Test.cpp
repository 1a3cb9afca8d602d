#include "mcp/MCP_Controller.h"
#include "tests/db/Project_Dump.h"
#include "tests/mcp/Link_Rig.h"

#include <QElapsedTimer>

using namespace Qt::StringLiterals;

namespace {

QJsonObject json(const char* text) {
  return QJsonDocument::fromJson(text).object();
}

} // namespace

class Connection_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void anEditIsOneStepThatUndoTakesBack_data();
  void anEditIsOneStepThatUndoTakesBack();
  void aRefusalChangesNothing_data();
  void aRefusalChangesNothing();
  void passwordsStayInside();
  void theSelectionMovesAlong();
  void connectAndDisconnect();
  void whyItDoesNotConnect_data();
  void whyItDoesNotConnect();
  void waits();
  void whatTheUserDoesMeanwhile();
  void aChangeOfTheConnectionInUseIsNoted();
  void anotherSelectionIsToldWhileConnected();
};

void Connection_Tools_Test::anEditIsOneStepThatUndoTakesBack_data() {
  QTest::addColumn<QString>("tool");
  QTest::addColumn<QByteArray>("arguments");
  QTest::addColumn<QByteArray>("answer"); // members of it
  QTest::newRow("add") << u"add_connection"_s << QByteArray(R"({"ip":"10.0.0.7:10010"})")
                       << QByteArray(R"({"index":2,"ip":"10.0.0.7:10010","user":"root","password_set":true,)"
                                     R"("selected":true,"selected_index":2,"vpn":false,"name":"Steuerung"})");
  QTest::newRow("add, selection stays") << u"add_connection"_s
                                        << QByteArray(R"({"ip":"haus.local","set_default":false,"name":"Keller"})")
                                        << QByteArray(
                                               R"({"index":2,"name":"Keller","selected":false,"selected_index":0})");
  QTest::newRow("add, relayed") << u"add_connection"_s << QByteArray(R"({"vpn":true,"vpn_email":"ich@haus.example"})")
                                << QByteArray(R"({"vpn":true,"vpn_email":"ich@haus.example"})");
  QTest::newRow("update") << u"update_connection"_s
                          << QByteArray(R"({"index":1,"name":"Neu","set_default":true,"user":null})")
                          << QByteArray(R"({"index":1,"name":"Neu","ip":"10.0.0.2","selected_index":1,"user":"root"})");
  QTest::newRow("delete") << u"delete_connection"_s << QByteArray(R"({"index":0})")
                          << QByteArray(R"({"count":1,"selected_index":0,"selected_name":"Zweite"})");
  QTest::newRow("select by index") << u"select_connection"_s << QByteArray(R"({"index":1})")
                                   << QByteArray(R"({"name":"Zweite","selected_index":1})");
  QTest::newRow("select by name") << u"select_connection"_s << QByteArray(R"({"name":"ZWEITE"})")
                                  << QByteArray(R"({"index":1,"selected":true})");
}

void Connection_Tools_Test::anEditIsOneStepThatUndoTakesBack() {
  QFETCH(const QString, tool);
  QFETCH(const QByteArray, arguments);
  QFETCH(const QByteArray, answer);
  Tool_Rig rig;
  rig.call(u"add_connection"_s, json(R"({"ip":"10.0.0.2","name":"Zweite","set_default":false})"));
  rig.mSession.database().mConnections.mItems.at(0).mName = u"Erste"_s;
  const QByteArray before = Project_Dump::project(rig.mSession.database());
  const QString lastStep = rig.mSession.history().undoText();

  const QJsonObject given = rig.call(tool, json(arguments));
  const QJsonObject wanted = json(answer);
  for (auto member = wanted.begin(); member != wanted.end(); ++member) {
    QCOMPARE(given.value(member.key()), member.value());
  }
  QVERIFY(Project_Dump::project(rig.mSession.database()) != before);
  rig.mSession.history().undo();
  QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
  QCOMPARE(rig.mSession.history().undoText(), lastStep);
}

void Connection_Tools_Test::aRefusalChangesNothing_data() {
  QTest::addColumn<QString>("tool");
  QTest::addColumn<QByteArray>("arguments");
  QTest::addColumn<QString>("error");
  const QString outside = u"Index ausserhalb des gueltigen Bereichs: %1 (Anzahl: 2)"_s;
  for (const QString& tool : {u"update_connection"_s, u"delete_connection"_s, u"select_connection"_s}) {
    QTest::addRow("%s behind", qPrintable(tool)) << tool << QByteArray(R"({"index":2})") << outside.arg(2);
    QTest::addRow("%s before", qPrintable(tool)) << tool << QByteArray(R"({"index":-1})") << outside.arg(-1);
  }
  QTest::newRow("no address") << u"add_connection"_s << QByteArray("{}") << u"braucht eine Adresse"_s;
  QTest::newRow("bad address") << u"add_connection"_s << QByteArray(R"({"ip":"300.1.1.1"})") << u"\"300.1.1.1\""_s;
  QTest::newRow("relayed to nobody") << u"add_connection"_s << QByteArray(R"({"vpn":true})") << u"DNS-Namen"_s;
  QTest::newRow("half an update") << u"update_connection"_s
                                  << QByteArray(R"({"index":0,"name":" ","set_default":true})")
                                  << u"braucht einen Namen"_s;
  QTest::newRow("neither") << u"select_connection"_s << QByteArray("{}") << u"Parameter 'index' oder 'name' fehlt"_s;
  QTest::newRow("unknown name") << u"select_connection"_s << QByteArray(R"({"name":"Nirgends"})") << u"\"Nirgends\""_s;
  QTest::newRow("same name twice") << u"select_connection"_s << QByteArray(R"({"name":"Haus"})")
                                   << u"nicht eindeutig"_s;
  QTest::newRow("empty name") << u"select_connection"_s << QByteArray(R"({"name":" "})") << u"'name'"_s;
  QTest::newRow("name of another") << u"select_connection"_s << QByteArray(R"({"index":0,"name":"10.0.0.2"})")
                                   << u"verschiedene"_s;
}

void Connection_Tools_Test::aRefusalChangesNothing() {
  QFETCH(const QString, tool);
  QFETCH(const QByteArray, arguments);
  QFETCH(const QString, error);
  Tool_Rig rig;
  rig.mSession.database().mConnections.mItems.at(0).mName = u"Haus"_s;
  const QJsonObject twice =
      rig.call(u"add_connection"_s, json(R"({"ip":"10.0.0.2","name":"haus","set_default":false})"));
  QVERIFY(twice.value(u"warning").toString().contains(u"haus"_s));
  const QByteArray before = Project_Dump::project(rig.mSession.database());
  const QString told = rig.errorOf(tool, json(arguments));
  QVERIFY2(told.contains(error), qPrintable(told));
  QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
}

void Connection_Tools_Test::passwordsStayInside() {
  Tool_Rig rig;
  const QJsonObject secret = json(R"({"ip":"10.0.0.2","password":"geheim1","vpn_password":"geheim2"})");
  QList<QJsonObject> answers = {rig.call(u"add_connection"_s, secret), rig.call(u"list_connections"_s),
                                rig.call(u"update_connection"_s, json(R"({"index":1,"password":"geheim3"})"))};
  QCOMPARE(rig.mSession.database().mConnections.mItems.at(1).mPassword, u"geheim3"_s);
  QCOMPARE(rig.mSession.database().mConnections.mItems.at(1).mRelayPassword, u"geheim2"_s);
  for (const QJsonObject& answer : std::as_const(answers)) {
    QVERIFY(!QJsonDocument(answer).toJson().contains("geheim"));
  }
}

void Connection_Tools_Test::theSelectionMovesAlong() {
  Tool_Rig rig;
  rig.call(u"add_connection"_s, json(R"({"ip":"10.0.0.2"})"));
  rig.call(u"add_connection"_s, json(R"({"ip":"10.0.0.3"})"));
  QCOMPARE(rig.call(u"delete_connection"_s, json(R"({"index":0})")).value(u"selected_index").toInt(), 1);
  QCOMPARE(rig.call(u"delete_connection"_s, json(R"({"index":1})")).value(u"selected_index").toInt(), 0);
  QVERIFY(rig.call(u"delete_connection"_s, json(R"({"index":0})")).contains(u"hint"));
  const QJsonObject list = rig.call(u"list_connections"_s);
  QCOMPARE(list.value(u"selected_index").toInt(), -1);
  QVERIFY(list.value(u"hint").toString().contains(u"add_connection"_s));
  QCOMPARE(rig.errorOf(u"connect_runtime"_s),
           u"Im Projekt ist keine Verbindung zur Steuerung hinterlegt (Menue Online -> Verbindung auswaehlen)"_s);
  rig.call(u"add_connection"_s, json(R"({"ip":"127.0.0.1:1","set_default":false})"));
  QCOMPARE(rig.errorOf(u"connect_runtime"_s), u"Netzwerk-Client nicht verfuegbar"_s);
}

void Connection_Tools_Test::connectAndDisconnect() {
  Link_Rig rig;
  const QJsonObject off{{u"connect"_s, false}};
  QCOMPARE(rig.call(u"connect_runtime"_s, off), json(R"({"connected":false,"was_connected":false})"));
  QJsonObject wanted{{u"connected"_s, true},
                     {u"connection"_s, rig.mSession.database().mConnections.mItems.at(0).mName},
                     {u"target"_s, u"127.0.0.1:%1"_s.arg(rig.mServer.port())},
                     {u"vpn"_s, false}};
  QCOMPARE(rig.call(u"connect_runtime"_s), wanted);
  wanted.insert(u"already_connected"_s, true);
  QCOMPARE(rig.call(u"connect_runtime"_s), wanted);
  QCOMPARE(rig.call(u"connect_runtime"_s, off), json(R"({"connected":false,"was_connected":true})"));
  QCOMPARE(rig.mLink.state(), Controller_Link::State::Offline);
}

void Connection_Tools_Test::whyItDoesNotConnect_data() {
  QTest::addColumn<QString>("fault");
  QTest::addColumn<QString>("password");
  QTest::addColumn<bool>("isTimeout");
  QTest::addColumn<QString>("reason");
  QTest::newRow("wrong password") << QString() << u"falsch"_s << false << u"lehnt die Anmeldung ab"_s;
  QTest::newRow("closes at once") << u"close=1"_s << QString() << false << u"bei der Anmeldung beendet"_s;
  QTest::newRow("says nothing") << u"silence"_s << QString() << true << u"antwortet nicht auf die Anmeldung"_s;
  QTest::newRow("nobody there") << u"gone"_s << QString() << true << u"."_s;
}

void Connection_Tools_Test::whyItDoesNotConnect() {
  QFETCH(const QString, fault);
  QFETCH(const QString, password);
  QFETCH(const bool, isTimeout);
  QFETCH(const QString, reason);
  Link_Rig rig;
  QSignalSpy refused(&rig.mLink, &Controller_Link::refused);
  DB_Connections::ITEM& item = rig.mSession.database().mConnections.mItems.at(0);
  if (fault == u"gone") {
    item.mAddress = u"127.0.0.1:1"_s;
  } else if (!fault.isEmpty()) {
    QVERIFY(rig.mServer.faults().add(fault));
  }
  if (!password.isEmpty()) {
    item.mPassword = password;
  }
  QElapsedTimer time;
  time.start();
  const QJsonObject answer = rig.call(u"connect_runtime"_s, json(R"({"timeout_seconds":0})"));
  QCOMPARE(answer.value(u"error").toString(), isTimeout
                                                  ? u"Keine Verbindung zur Runtime (Zeitueberschreitung)"_s
                                                  : u"Keine Verbindung zur Runtime (Verbindung fehlgeschlagen)"_s);
  QVERIFY2(answer.value(u"reason").toString().contains(reason) || reason == u".",
           qPrintable(answer[u"reason"].toString()));
  QVERIFY(!answer.value(u"reason").toString().isEmpty());
  QCOMPARE(answer.value(u"connected"), QJsonValue(false));
  QVERIFY(!isTimeout || time.elapsed() >= 950);
  // Nothing goes on that nobody waits for, and nothing is told late.
  QCOMPARE(rig.mLink.state(), Controller_Link::State::Offline);
  QVERIFY(!rig.mLink.client().isWanted());
  const qsizetype toldBefore = refused.size();
  QTest::qWait(50);
  QCOMPARE(refused.size(), toldBefore);
}

void Connection_Tools_Test::waits() {
  using namespace std::chrono_literals;
  QCOMPARE(MCP_Controller::waitOf(0), 1000ms);
  QCOMPARE(MCP_Controller::waitOf(-1e300), 1000ms);
  QCOMPARE(MCP_Controller::waitOf(2.5), 2500ms);
  QCOMPARE(MCP_Controller::waitOf(300), 60'000ms);
  QCOMPARE(MCP_Controller::waitOf(1e300), 60'000ms);
}

void Connection_Tools_Test::whatTheUserDoesMeanwhile() {
  Link_Rig rig;
  QVERIFY(rig.mServer.faults().add(u"silence"_s));
  QString second;
  QTimer::singleShot(100, &rig.mLink, [&] { second = rig.errorOf(u"connect_runtime"_s); });
  QTimer::singleShot(150, &rig.mLink, [&] { rig.mSession.close(); });
  QTimer::singleShot(200, &rig.mLink, [&] { rig.mLink.disconnectLink(); });
  QCOMPARE(rig.errorOf(u"connect_runtime"_s), u"Keine Verbindung zur Runtime (Verbindung fehlgeschlagen)"_s);
  QVERIFY(second.startsWith(u"Es laeuft bereits ein Werkzeugaufruf"_s) || second == u"Kein Projekt geoeffnet"_s);

  Link_Rig other;
  QVERIFY(other.mServer.faults().add(u"silence"_s));
  QVERIFY(other.mLink.connectToSelected());
  QCOMPARE(other.errorOf(u"connect_runtime"_s),
           u"Ein Verbindungsaufbau laeuft bereits - bitte kurz warten und erneut aufrufen"_s);
  QVERIFY(other.mLink.state() != Controller_Link::State::Offline);
}

void Connection_Tools_Test::aChangeOfTheConnectionInUseIsNoted() {
  Link_Rig rig;
  rig.call(u"add_connection"_s, json(R"({"ip":"10.0.0.2","set_default":false})"));
  QVERIFY(rig.goOnline());
  QVERIFY(!rig.call(u"update_connection"_s, json(R"({"index":1,"name":"Andere"})")).contains(u"note"));
  QVERIFY(rig.call(u"update_connection"_s, json(R"({"index":0,"user":"ich"})")).contains(u"note"));
  QVERIFY(rig.call(u"select_connection"_s, json(R"({"index":1})")).contains(u"note"));
  QVERIFY(rig.call(u"delete_connection"_s, json(R"({"index":0})")).contains(u"note"));
  QVERIFY(rig.mLink.isOnline());
}

void Connection_Tools_Test::anotherSelectionIsToldWhileConnected() {
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  QVERIFY(!rig.call(u"connect_runtime"_s).contains(u"warning"));
  QVERIFY(!rig.call(u"add_connection"_s, json(R"({"ip":"10.0.0.2","set_default":false})")).contains(u"note"));
  QVERIFY(rig.call(u"add_connection"_s, json(R"({"ip":"10.0.0.3","name":"Neue"})")).contains(u"note"));
  const QJsonObject connected = rig.call(u"connect_runtime"_s);
  QCOMPARE(connected.value(u"already_connected"), QJsonValue(true));
  QVERIFY(connected.value(u"warning").toString().contains(u"Neue (10.0.0.3)"_s));
  rig.call(u"select_connection"_s, json(R"({"index":0})"));
  QVERIFY(!rig.call(u"connect_runtime"_s).contains(u"warning"));
  QVERIFY(rig.call(u"update_connection"_s, json(R"({"index":1,"set_default":true})")).contains(u"note"));
}

QTEST_GUILESS_MAIN(Connection_Tools_Test)
#include "Connection_Tools_Test.moc"
