#include "db/House_Mode.h"
#include "db/Project_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/mcp/Link_Rig.h"

using namespace Qt::StringLiterals;

namespace {

QJsonObject json(const char* text) {
  return QJsonDocument::fromJson(text).object();
}

const char* const cGroup = R"({"controllers":[{"index":3,"name":"Haupt","address":"10.0.0.3","is_main":true},)"
                           R"({"index":4,"name":"Keller","address":"10.0.0.4:10010"}]})";

/// The stand-in runs a project with these controllers.
void putGroup(Link_Rig& rig) {
  DB_Project project;
  project.mProjectId = QUuid::createUuid();
  project.mControllers = {{3, u"Haupt"_s, u"10.0.0.3"_s, true}, {4, u"Keller"_s, u"10.0.0.4"_s, false}};
  Simulator_Project held;
  held.setHeader(project);
  QVERIFY(rig.mServer.controller().startProject(held));
}

} // namespace

class Controller_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void theListIsOneStep();
  void aListThatIsWrongNamesTheEntry_data();
  void aListThatIsWrongNamesTheEntry();
  void whatNeedsALink();
  void status();
  void noAnswerInTime();
  void aLinkThatIsLostMeanwhile();
  void whatIsEditedMeanwhileIsAStepOfItsOwn();
  void ownNumber();
  void aNumberThatMayNotBe_data();
  void aNumberThatMayNotBe();
  void debugLevel();
  void houseModeIsRefused_data();
  void houseModeIsRefused();
  void theWayToAHouseModeLeadsThere();
  void houseModeTravels_data();
  void houseModeTravels();
  void playMode();
};

void Controller_Tools_Test::theListIsOneStep() {
  Tool_Rig rig;
  const QUuid page = rig.mSession.database().mFbPages.pages().at(0).mGuid;
  QVERIFY(rig.call(u"get_controller_list"_s).contains(u"note"));
  const QByteArray before = Project_Dump::project(rig.mSession.database());
  const QJsonObject set = rig.call(u"set_controller_list"_s, json(cGroup));
  QCOMPARE(set.value(u"count").toInt(), 2);
  QCOMPARE(set.value(u"main_index").toInt(), 3);
  const QJsonArray list = rig.call(u"get_controller_list"_s).value(u"controllers").toArray();
  QCOMPARE(list, set.value(u"controllers").toArray());
  // A page of no controller is the main one's.
  const QJsonArray pages = list.at(0).toObject().value(u"pages").toArray();
  QCOMPARE(pages.first().toObject().value(u"guid").toString(), page.toString());
  QVERIFY(list.at(1).toObject().value(u"pages").toArray().isEmpty());
  rig.mSession.history().undo();
  QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
  QVERIFY(!rig.mSession.history().canUndo());

  rig.mSession.database().mFbPages.page(page)->mControllerIndex = 9;
  const QJsonObject lost = rig.call(u"set_controller_list"_s, json(cGroup));
  QCOMPARE(lost.value(u"pages_without_controller").toArray().size(), 1);
  QVERIFY(lost.contains(u"warning"));
}

void Controller_Tools_Test::aListThatIsWrongNamesTheEntry_data() {
  QTest::addColumn<QByteArray>("second");
  QTest::addColumn<QString>("error");
  QTest::newRow("no object") << QByteArray("null") << u"erwartet ein Objekt"_s;
  QTest::newRow("no name") << QByteArray(R"({"index":4,"address":"a"})") << u"Parameter 'name' fehlt"_s;
  QTest::newRow("number as text") << QByteArray(R"({"index":"4","name":"K","address":"a"})") << u"'index'"_s;
  QTest::newRow("huge") << QByteArray(R"({"index":1e99,"name":"K","address":"a"})") << u"'index'"_s;
  QTest::newRow("number twice") << QByteArray(R"({"index":3,"name":"K","address":"a"})") << u"Die Nummer 3"_s;
  QTest::newRow("bad address") << QByteArray(R"({"index":4,"name":"K","address":"a b"})") << u"\"a b\""_s;
  QTest::newRow("two main") << QByteArray(R"({"index":4,"name":"K","address":"a","is_main":true})")
                            << u"Hauptsteuerung"_s;
}

void Controller_Tools_Test::aListThatIsWrongNamesTheEntry() {
  QFETCH(const QByteArray, second);
  QFETCH(const QString, error);
  Tool_Rig rig;
  const QByteArray before = Project_Dump::project(rig.mSession.database());
  const QByteArray list =
      R"({"controllers":[{"index":3,"name":"Haupt","address":"10.0.0.3","is_main":true},)" + second + "]}";
  const QString told = rig.errorOf(u"set_controller_list"_s, json(list.constData()));
  QVERIFY2(told.startsWith(u"controllers["_s) && told.contains(error), qPrintable(told));
  QVERIFY2(told.startsWith(u"controllers[1]"_s) || error.contains(u"3"_s) || error.startsWith(u"Haupt"_s),
           qPrintable(told));
  QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
}

void Controller_Tools_Test::whatNeedsALink() {
  Link_Rig rig;
  const QString none = u"Keine Verbindung zur Steuerung"_s;
  QCOMPARE(rig.errorOf(u"get_controller_status"_s), none + u" (connect_runtime aufrufen)"_s);
  QCOMPARE(rig.errorOf(u"write_project_to_controller"_s), none);
  QCOMPARE(rig.errorOf(u"set_controller_index"_s, json(R"({"index":1})")), none);
  QCOMPARE(rig.errorOf(u"set_debug_level"_s, json(R"({"level":0})")), none);
}

void Controller_Tools_Test::status() {
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  QCOMPARE(
      rig.call(u"get_controller_status"_s).value(u"note").toString(),
      u"Die verbundene Steuerung fuehrt keinen Verbund - die Steuerungsliste im eingespielten Projekt ist leer."_s);
  putGroup(rig);
  rig.mServer.controller().settings().mNumber = 3;
  rig.call(u"set_controller_list"_s, json(cGroup));
  const QJsonObject status = rig.call(u"get_controller_status"_s);
  QCOMPARE(status.value(u"count").toInt(), 2);
  QCOMPARE(status.value(u"connected_controller_index").toInt(), 3);
  const QJsonObject own = status.value(u"controllers").toArray().at(0).toObject();
  QCOMPARE(own.value(u"state_text").toString(), u"diese Steuerung"_s);
  QCOMPARE(own.value(u"generation").toInt(), 1);
  QCOMPARE(own.value(u"name").toString(), u"Haupt"_s);
  QCOMPARE(own.value(u"version").toString(), rig.mServer.controller().informations().mRuntimeVersion);
  const QJsonObject partner = status.value(u"controllers").toArray().at(1).toObject();
  QCOMPARE(partner.value(u"state_text").toString(), u"nicht erreichbar"_s);
  QCOMPARE(partner.value(u"seconds_since").toInt(), -1);
  QCOMPARE(partner.value(u"distribution_text").toString(), u"nichts zu verteilen"_s);
}

void Controller_Tools_Test::noAnswerInTime() {
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  QVERIFY(rig.mServer.faults().add(u"mute=1462"_s));
  QCOMPARE(rig.errorOf(u"get_controller_status"_s, json(R"({"timeout_seconds":-5})")),
           u"Keine Antwort der Steuerung innerhalb der Wartezeit"_s);
  QVERIFY(rig.mLink.isOnline());
}

void Controller_Tools_Test::aLinkThatIsLostMeanwhile() {
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  QVERIFY(rig.mServer.faults().add(u"mute=1462"_s));
  QString second;
  QTimer::singleShot(50, &rig.mLink, [&] { second = rig.errorOf(u"get_play_mode"_s); });
  QTimer::singleShot(100, &rig.mLink, [&] { rig.mServer.closeSessions(); });
  QCOMPARE(rig.errorOf(u"get_controller_status"_s), u"Keine Verbindung zur Steuerung (connect_runtime aufrufen)"_s);
  QVERIFY(second.startsWith(u"Es laeuft bereits ein Werkzeugaufruf"_s));
}

void Controller_Tools_Test::whatIsEditedMeanwhileIsAStepOfItsOwn() {
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  QVERIFY(rig.mServer.faults().add(u"pause-header=100@1463"_s));
  QTimer::singleShot(20, &rig.mLink, [&] {
    QVERIFY(Project_Edits::renamePage(rig.mSession, rig.mSession.database().mFbPages.pages().at(0).mGuid, u"Neu"_s));
  });
  QVERIFY(!rig.call(u"get_controller_status"_s).contains(u"error"));
  QCOMPARE(rig.mSession.database().mFbPages.pages().at(0).mCaption, u"Neu"_s);
  rig.mSession.history().undo();
  QVERIFY(rig.mSession.database().mFbPages.pages().at(0).mCaption != u"Neu"_s);
  QVERIFY(!rig.mSession.history().canUndo());
}

void Controller_Tools_Test::ownNumber() {
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  rig.call(u"set_controller_list"_s, json(cGroup));
  QCOMPARE(rig.call(u"set_controller_index"_s, json(R"({"index":4})")), json(R"({"index":4,"target":"connected"})"));
  QCOMPARE(rig.mServer.controller().settings().mNumber, 4);
  QCOMPARE(rig.mSession.database().mControllerInformations.mNumber, 4);
  QVERIFY(rig.call(u"set_controller_index"_s, json(R"({"index":200,"target":"connected"})")).contains(u"warning"));
  QVERIFY(rig.call(u"set_controller_index"_s, json(R"({"index":0})")).contains(u"note"));
  QCOMPARE(rig.mServer.controller().settings().mNumber, 0);

  // A partner: a second stand-in, asked by the first one.
  Simulator_Server partner(Link_Rig::options());
  QVERIFY(partner.listen());
  std::vector<DB_Controller>& controllers = rig.mSession.database().mProject.mControllers;
  controllers.at(1).mAddress = u"127.0.0.1:%1"_s.arg(partner.port());
  for (const QJsonValue& target : {QJsonValue(4), QJsonValue(u"keller"_s), QJsonValue(controllers.at(1).mAddress)}) {
    partner.controller().settings().mNumber = 0;
    const QJsonObject set = rig.call(u"set_controller_index"_s, {{u"index"_s, 4}, {u"target"_s, target}});
    QCOMPARE(set, json(R"({"index":4,"target":"Keller"})"));
    QCOMPARE(partner.controller().settings().mNumber, 4);
  }
  QCOMPARE(rig.mServer.controller().settings().mNumber, 0);
}

void Controller_Tools_Test::aNumberThatMayNotBe_data() {
  QTest::addColumn<QByteArray>("arguments");
  QTest::addColumn<QString>("error");
  QTest::newRow("none") << QByteArray(R"({"target":"connected"})") << u"Parameter 'index' fehlt"_s;
  QTest::newRow("fraction") << QByteArray(R"({"index":1.5})") << u"ganze Zahl"_s;
  QTest::newRow("high") << QByteArray(R"({"index":256})") << u"0 bis 255"_s;
  QTest::newRow("text") << QByteArray(R"({"index":"4"})") << u"'index'"_s;
  QTest::newRow("nobody") << QByteArray(R"({"index":1,"target":"Dach"})") << u"keine Steuerung: Dach"_s;
  QTest::newRow("no partner's number") << QByteArray(R"({"index":1,"target":7})") << u"keine Steuerung: 7"_s;
  QTest::newRow("target of no kind") << QByteArray(R"({"index":1,"target":[]})") << u"'target'"_s;
}

void Controller_Tools_Test::aNumberThatMayNotBe() {
  QFETCH(const QByteArray, arguments);
  QFETCH(const QString, error);
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  rig.mServer.controller().settings().mNumber = 9;
  const QString told = rig.errorOf(u"set_controller_index"_s, json(arguments.constData()));
  QVERIFY2(told.contains(error), qPrintable(told));
  QCOMPARE(rig.mServer.controller().settings().mNumber, 9);
}

void Controller_Tools_Test::debugLevel() {
  Link_Rig rig;
  const QString wrong = u"level muss 0 (nur wichtige Meldungen) oder 1 (alle Meldungen) sein"_s;
  QCOMPARE(rig.errorOf(u"set_debug_level"_s, json(R"({"level":2})")), wrong);
  QVERIFY(rig.goOnline());
  QCOMPARE(rig.call(u"set_debug_level"_s, json(R"({"level":1})")).value(u"level").toInt(-1), 1);
  QVERIFY(rig.mServer.faults().add(u"refuse=58"_s));
  QVERIFY(!rig.errorOf(u"set_debug_level"_s, json(R"({"level":0})")).isEmpty());
}

void Controller_Tools_Test::houseModeIsRefused_data() {
  QTest::addColumn<QByteArray>("arguments");
  QTest::addColumn<bool>("isOnline");
  QTest::addColumn<QString>("error");
  const QString none =
      u"Es fehlt der Zielmodus. Bitte 'mode' (present, absent oder vacation) oder 'value' (0, 1 oder 2) "
      "angeben."_s;
  const QString allowed = u" Erlaubt: present (0), absent (1), vacation (2)."_s;
  QTest::newRow("nothing") << QByteArray("{}") << false << none;
  QTest::newRow("null") << QByteArray(R"({"mode":null})") << true << none;
  QTest::newRow("text") << QByteArray(R"({"mode":"Urlaub"})") << false << u"Ungueltiger Modus 'Urlaub'."_s + allowed;
  QTest::newRow("text before number") << QByteArray(R"({"mode":"","value":9})") << true
                                      << u"Ungueltiger Modus ''."_s + allowed;
  QTest::newRow("number") << QByteArray(R"({"value":3})") << false << u"Ungueltiger Wert 3."_s + allowed;
  QTest::newRow("negative") << QByteArray(R"({"value":-1})") << true << u"Ungueltiger Wert -1."_s + allowed;
  QTest::newRow("two minds") << QByteArray(R"({"mode":"absent","value":0})") << true
                             << u"'mode' (absent = 1) und 'value' (0) widersprechen sich. Bitte nur eines davon "
                                "angeben."_s;
  QTest::newRow("offline")
      << QByteArray(R"({"mode":"absent"})") << false
      << u"Keine Verbindung zur Runtime. Der Anwesenheits-Status wird in der Runtime gehalten; ohne "
         "Verbindung wird die Aenderung verworfen. Bitte zuerst mit der Runtime verbinden und den "
         "Vorgang wiederholen."_s;
  QTest::newRow("no variable") << QByteArray(R"({"mode":"absent","value":1})") << true
                               << u"Die Variable des Hausmodus (Hausmodus) existiert im Projekt nicht. Sie wird "
                                  "angelegt, sobald ein Bedienelement im Projekt vorhanden ist."_s;
}

void Controller_Tools_Test::houseModeIsRefused() {
  QFETCH(const QByteArray, arguments);
  QFETCH(const bool, isOnline);
  QFETCH(const QString, error);
  Link_Rig rig;
  QVERIFY(!isOnline || rig.goOnline());
  QCOMPARE(rig.errorOf(u"set_presence_mode"_s, json(arguments.constData())), error);
  const QJsonObject present = rig.call(u"get_presence_mode"_s);
  QCOMPARE(present.value(u"available"), QJsonValue(false));
  QVERIFY(present.value(u"hint").toString().contains(u"create_address"_s));
}

void Controller_Tools_Test::theWayToAHouseModeLeadsThere() {
  Link_Rig rig;
  QVERIFY(rig.goOnline());
  const QJsonObject mode = json(R"({"mode":"absent"})");
  QVERIFY(rig.call(u"set_presence_mode"_s, mode)
              .value(u"hint")
              .toString()
              .contains(u"comment 'Hausmodus' und data_type 5010"_s));
  rig.call(u"create_address"_s, json(R"({"main":0,"middle":0,"sub":9,"comment":"Hausmodus","data_type":5010})"));
  QCOMPARE(rig.call(u"set_presence_mode"_s, mode).value(u"address").toString(), u"0/0/9"_s);
}

void Controller_Tools_Test::houseModeTravels_data() {
  QTest::addColumn<QString>("dpt");
  QTest::addColumn<bool>("isTold"); // a value of that type is read as a number
  QTest::newRow("counter") << u"5.010"_s << true;
  QTest::newRow("mode") << u"20.102"_s << true;
  QTest::newRow("no type") << QString() << false;
}

void Controller_Tools_Test::houseModeTravels() {
  QFETCH(const QString, dpt);
  QFETCH(const bool, isTold);
  Link_Rig rig;
  const Group_Address address(2, 1, 7);
  rig.addAddress(Group_Address(3, 0, 0), House_Mode::cVariable.toString());
  const DB_Address_Sub_Group& group = *rig.addAddress(address, House_Mode::cVariable.toString());
  rig.mSession.database().mAddresses.subGroup(group.mKey)->mDpt = Datapoint_Id::parse(dpt).value_or(Datapoint_Id());
  QJsonObject present = rig.call(u"get_presence_mode"_s);
  QCOMPARE(present.value(u"warning").toString(),
           u"Runtime nicht verbunden - der Wert ist der letzte im Studio bekannte Stand."_s);
  QVERIFY(!present.contains(u"value") && present.contains(u"note"));
  QVERIFY(rig.goOnline());
  const QJsonObject set = rig.call(u"set_presence_mode"_s, json(R"({"mode":"vacation"})"));
  QCOMPARE(set, json(R"({"value":2,"mode":"vacation","address":"2/1/7","comment":"Hausmodus"})"));
  QTRY_COMPARE(rig.mServer.controller().values().value(address), QByteArray(1, 2));
  rig.mServer.controller().writeValue(address, QByteArray(1, 1));
  QTRY_COMPARE(rig.mSession.values().find(group.mKey)->mPayload, QByteArray(1, 1));
  present = rig.call(u"get_presence_mode"_s);
  QCOMPARE(present.value(u"address").toString(), u"2/1/7"_s);
  QCOMPARE(present.value(u"connected"), QJsonValue(true));
  QVERIFY(!present.contains(u"warning"));
  if (isTold) {
    QCOMPARE(present.value(u"value").toInt(-1), 1);
    QCOMPARE(present.value(u"mode").toString(), u"absent"_s);
  }
}

void Controller_Tools_Test::playMode() {
  Tool_Rig rig;
  QCOMPARE(rig.call(u"get_play_mode"_s), json(R"({"enabled":false,"connected":false})"));
  QVERIFY(rig.call(u"set_play_mode"_s).contains(u"warning"));
  QVERIFY(rig.mState.operatingMode());
  for (const QString& tool : {u"add_connection"_s, u"set_controller_list"_s}) {
    const QJsonObject arguments = tool.startsWith(u"add") ? json(R"({"ip":"10.0.0.1"})") : json(cGroup);
    QCOMPARE(rig.errorOf(tool, arguments), Session_State::operatingModeRefusal());
  }
  QCOMPARE(rig.call(u"set_play_mode"_s, json(R"({"enabled":false})")).value(u"enabled"), QJsonValue(false));
}

QTEST_GUILESS_MAIN(Controller_Tools_Test)
#include "Controller_Tools_Test.moc"
