#include "tests/db/Project_Dump.h"
#include "tests/mcp/Tool_Rig.h"

#include <QtTest>

using namespace Qt::StringLiterals;

class Statistic_Tools_Test : public QObject {
  Q_OBJECT

  static QJsonObject object(const char* json) { return QJsonDocument::fromJson(json).object(); }

  /// Recordings of 1/2/3 and 1/2/4, on a project of the controllers 1 (main) and 4.
  static void fill(Tool_Rig& rig) {
    ProjectDatabase& database = rig.mSession.database();
    DB_Statistic::Recording light;
    light.mName = u"Licht"_s;
    light.mAddressKey = rig.addAddress({1, 2, 3}, u"Flur"_s)->mKey;
    DB_Statistic::Recording power;
    power.mName = u"Leistung"_s;
    power.mAddressKey = rig.addAddress({1, 2, 4}, u"Netz"_s)->mKey;
    database.mStatistic.mRecordings = {light, power};
    database.mProject.mControllers = {{1, u"Keller"_s, u"a"_s, true}, {4, u"Dach"_s, u"b"_s, false}};
  }

private slots:
  void edits_data() {
    QTest::addColumn<QString>("tool");
    QTest::addColumn<QByteArray>("arguments");
    QTest::addColumn<QByteArray>("answer"); // these members at least; a text: the error
    const auto row = [](const char* name, const char* tool, const char* arguments, const char* answer) {
      QTest::newRow(name) << QString(QLatin1String(tool)) + u"_statistic_recording"_s << QByteArray(arguments)
                          << QByteArray(answer);
    };
    row("add", "add", R"({"address":"1/2/4"})",
        R"({"index":2,"count":3,"name":"1/2/4","address":"1/2/4","address_name":"Netz","trigger_type":"change",
            "trigger_value":0,"active":true,"write_only":false,"tab":0,"controller_index":0,
            "controller_name":"Keller"})");
    row("add all", "add",
        R"({"address":" 1/2/3 ","controller_index":4,"trigger_type":"TIME","trigger_time_type":"minutes",
            "trigger_time_secs":900,"tab":7,"write_only":true,"name":"X","trigger_value":null})",
        R"({"index":2,"controller_index":4,"controller_name":"Dach","trigger_type":"time","trigger_time_type":"minutes",
            "trigger_time_secs":900,"tab":7,"write_only":true,"name":"X"})");
    row("every minute unless told", "add", R"({"address":"1/2/3","trigger_type":"2"})",
        R"({"trigger_type":"time","trigger_time_type":"seconds","trigger_time_secs":60})");
    row("one unit unless told", "add", R"({"address":"1/2/3","trigger_type":"time","trigger_time_type":"hours"})",
        R"({"trigger_time_type":"hours","trigger_time_secs":3600})");
    row("threshold without effect", "add", R"({"address":"1/2/3","trigger_type":"telegram","trigger_value":2})",
        R"({"trigger_type":"telegram","warning":"trigger_value wirkt nur mit trigger_type 'change'."})");
    row("only the controller", "update", R"({"index":1,"controller_index":4})",
        R"({"index":1,"count":2,"name":"Leistung","address":"1/2/4","controller_index":4})");
    row("off", "update", R"({"index":0,"active":false,"address":"1/2/4"})", R"({"active":false,"address":"1/2/4"})");
    row("nothing", "update", R"({"index":0})", R"({"index":0,"name":"Licht"})");
    row("delete", "delete", R"({"index":0})", R"({"deleted":true,"name":"Licht","count":1})");
    row("no address", "add", R"({"address":"Flur"})", "Adresse ungueltig, erwartet \"haupt/mittel/unter\": Flur");
    row("two numbers", "add", R"({"address":"1/2"})", "Adresse ungueltig, erwartet \"haupt/mittel/unter\": 1/2");
    row("strange address", "add", R"({"address":"1/2/9"})", "Adresse nicht gefunden: 1/2/9");
    row("missing", "add", "{}", "Parameter 'address' fehlt");
    row("strange controller", "add", R"({"address":"1/2/3","controller_index":2})",
        "controller_index 2 steht nicht in der Steuerungsliste des Projekts, erlaubt: 0, 1, 4");
    row("strange trigger", "add", R"({"address":"1/2/3","trigger_type":"value"})",
        "trigger_type 'value' unbekannt, erlaubt: change, telegram, time");
    row("strange unit", "update", R"({"index":0,"trigger_time_type":"weeks"})",
        "trigger_time_type 'weeks' unbekannt, erlaubt: seconds, minutes, hours, days");
    row("minutes for seconds", "add",
        R"({"address":"1/2/3","trigger_type":"time","trigger_time_type":"minutes","trigger_time_secs":15})",
        "trigger_time_secs 15 ist kein Vielfaches von 60: die Angabe ist immer in Sekunden, auch mit "
        "trigger_time_type 'minutes'");
    row("below zero", "update", R"({"index":0,"trigger_value":-1})",
        "Parameter 'trigger_value' ausserhalb des gueltigen Bereichs: -1 (erlaubt 0 bis 1000000000)");
    row("index", "update", R"({"index":2,"address":"?"})", "Index ausserhalb des gueltigen Bereichs: 2 (Anzahl: 2)");
    row("index below zero", "delete", R"({"index":-1})", "Index ausserhalb des gueltigen Bereichs: -1 (Anzahl: 2)");
    row("index no number", "delete", R"({"index":"0"})",
        "Parameter 'index' hat den falschen Typ: erwartet ganze Zahl, erhalten Text");
  }
  void edits() {
    QFETCH(const QString, tool);
    QFETCH(const QByteArray, arguments);
    QFETCH(const QByteArray, answer);
    Tool_Rig rig;
    fill(rig);
    const QByteArray before = Project_Dump::project(rig.mSession.database());
    const QJsonObject given = object(arguments);
    QVERIFY(arguments == "{}" || !given.isEmpty());
    const QJsonObject told = rig.call(tool, given);
    const QJsonObject expected = object(answer);
    const bool isChange = QByteArray(QTest::currentDataTag()) != "nothing" && !expected.isEmpty();
    for (auto it = expected.begin(); it != expected.end(); ++it) {
      QVERIFY2(told.value(it.key()) == it.value(), qPrintable(it.key() + u": "_s + told.value(it.key()).toString()));
    }
    QCOMPARE(told.value(u"error"_s).toString(), expected.isEmpty() ? QString::fromUtf8(answer) : QString());
    QCOMPARE(told.contains(u"hint"_s), !expected.isEmpty());
    QCOMPARE(rig.mSession.history().canUndo(), isChange);
    rig.mSession.history().undo();
    QVERIFY(!rig.mSession.history().canUndo());
    QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
  }

  void lists() {
    Tool_Rig rig;
    QCOMPARE(rig.call(u"get_statistic_recordings"_s).value(u"count"_s).toInt(-1), 0);
    fill(rig);
    DB_Statistic& statistic = rig.mSession.database().mStatistic;
    statistic.mRecordings[1].mAddressKey = QUuid::createUuid();
    statistic.mRecordings[1].mTriggerType = 9;
    const QJsonObject told = rig.call(u"get_statistic_recordings"_s);
    const QJsonArray list = told.value(u"recordings"_s).toArray();
    QCOMPARE(told.value(u"count"_s).toInt(), 2);
    QCOMPARE(list.at(0).toObject().value(u"address"_s).toString(), u"1/2/3"_s);
    QVERIFY(!list.at(0).toObject().contains(u"fault"_s));
    QVERIFY(list.at(1).toObject().contains(u"fault"_s));
    QVERIFY(!list.at(1).toObject().contains(u"address"_s));
    QVERIFY(told.contains(u"warning"_s));
    QVERIFY(!rig.call(u"update_statistic_recording"_s, object(R"({"index":1,"name":"Y"})")).contains(u"error"_s));
  }

  /// The dialog would overwrite what a tool does; to read is allowed.
  void refusedWhileTheDialogIsOpen() {
    Tool_Rig rig;
    fill(rig);
    const QByteArray before = Project_Dump::project(rig.mSession.database());
    rig.mStudio.mIsRecordingDialogOpen = true;
    const QString refusal = u"Der Dialog \"Aufzeichnung\" ist geoeffnet - bitte zuerst schliessen."_s;
    QCOMPARE(rig.errorOf(u"add_statistic_recording"_s, object(R"({"address":"1/2/3"})")), refusal);
    QCOMPARE(rig.errorOf(u"update_statistic_recording"_s, object(R"({"index":0})")), refusal);
    QCOMPARE(rig.errorOf(u"delete_statistic_recording"_s, object(R"({"index":0})")), refusal);
    QCOMPARE(rig.call(u"get_statistic_recordings"_s).value(u"count"_s).toInt(), 2);
    rig.mStudio.mIsRecordingDialogOpen = false;
    rig.mState.setOperatingMode(true);
    QVERIFY(!rig.errorOf(u"delete_statistic_recording"_s, object(R"({"index":0})")).isEmpty());
    QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
  }
};

QTEST_GUILESS_MAIN(Statistic_Tools_Test)
#include "Statistic_Tools_Test.moc"
