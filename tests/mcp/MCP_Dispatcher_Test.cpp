#include "tests/db/Project_Dump.h"
#include "tests/mcp/Tool_Rig.h"
#include "tests/mcp/Trial_Tools.h"

#include <QDateTime>
#include <QtTest>

/// The methods of the protocol and what surrounds every tool call.
class MCP_Dispatcher_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase();
  void methods_data();
  void methods();
  void listedBytes();
  void arguments_data();
  void arguments();
  void unknownArguments();
  void onlyWhatIsAllowed();
  void aCallIsOneStep();
  void aFailureIsTakenBack();
  void withoutProject();
  void suppressedMessages();
  void theAssistantIsActiveForAWhile();
  void log();
};

namespace {

QJsonObject json(const QByteArray& text) {
  return QJsonDocument::fromJson(text).object();
}

} // namespace

void MCP_Dispatcher_Test::initTestCase() {
  QCOMPARE(MCP_Catalogue::names().size(), 107);
  QCOMPARE(MCP_Catalogue().faults(), QStringList());
}

void MCP_Dispatcher_Test::methods_data() {
  QTest::addColumn<QByteArray>("request");
  QTest::addColumn<QByteArray>("response");
  const QByteArray unknown = R"("error":{"code":-32601,"message":"Methode nicht gefunden: )";
  QTest::newRow("id 0") << QByteArray(R"({"id":0,"method":"ping"})")
                        << QByteArray(R"({"jsonrpc":"2.0","id":0,)" + unknown + R"(ping"}})");
  QTest::newRow("beyond 32 bits") << QByteArray(R"({"id":9007199254740993,"method":"ping"})")
                                  << QByteArray(R"({"jsonrpc":"2.0","id":9007199254740993,)" + unknown + R"(ping"}})");
  for (const QByteArray id : {R"("a")", "-3", "null", "1.5", "1e300", "[1]", "9223372036854775808"}) {
    QTest::newRow(id.constData()) << QByteArray(R"({"id":)" + id + R"(,"method":"server/discover"})")
                                  << QByteArray(R"({"jsonrpc":"2.0",)" + unknown + R"(server/discover"}})");
  }
  QTest::newRow("no method") << QByteArray("{}") << QByteArray(R"({"jsonrpc":"2.0",)" + unknown + R"("}})");
  QTest::newRow("a method is exact") << QByteArray(R"({"id":1,"method":"Tools/List"})")
                                     << QByteArray(R"({"jsonrpc":"2.0","id":1,)" + unknown + R"(Tools/List"}})");
  QTest::newRow("placeholders in it") << QByteArray(R"({"id":1,"method":"%1 %2"})")
                                      << QByteArray(R"({"jsonrpc":"2.0","id":1,)" + unknown + R"(%1 %2"}})");
  QTest::newRow("notification") << QByteArray(R"({"id":4,"method":"notifications/initialized"})") << QByteArray("{}");
  QTest::newRow("initialize") << QByteArray(
                                     R"({"id":1,"method":"initialize","params":{"protocolVersion":"2099-01-01"}})")
                              << QByteArray(R"({"jsonrpc":"2.0","id":1,"result":{"protocolVersion":"2024-11-05",)"
                                            R"("capabilities":{"tools":{}},"serverInfo":)"
                                            R"({"name":"RZ8800-Studio-MCP","version":"1.0"}}})");
  const auto failed = [](const QByteArray& text) {
    return R"({"jsonrpc":"2.0","id":2,"result":{"content":[{"type":"text","text":"{\"error\":\")" + text +
           R"(\"}"}],"isError":true}})";
  };
  QTest::newRow("unknown tool") << QByteArray(R"({"id":2,"method":"tools/call","params":{"name":"x"}})")
                                << QByteArray(failed("Unbekanntes Werkzeug: x"));
  QTest::newRow("published, but not there")
      << QByteArray(R"({"id":2,"method":"tools/call","params":{"name":"run_project_generator","arguments":{}}})")
      << QByteArray(failed("Unbekanntes Werkzeug: run_project_generator"));
  for (const QByteArray params : {"null", "[]", R"({"name":1})"}) {
    QTest::addRow("params %s", params.constData())
        << QByteArray(R"({"id":2,"method":"tools/call","params":)" + params + "}")
        << QByteArray(failed("Unbekanntes Werkzeug: "));
  }
}

void MCP_Dispatcher_Test::methods() {
  QFETCH(const QByteArray, request);
  QFETCH(const QByteArray, response);
  Tool_Rig rig(Trial_Tools::catalogue());
  QCOMPARE(rig.mDispatcher.dispatch(json(request)), json(response));
  QCOMPARE(json(rig.mDispatcher.answer(json(request))), json(response));
}

void MCP_Dispatcher_Test::listedBytes() {
  Tool_Rig rig(Trial_Tools::catalogue());
  for (const QByteArray id : {R"("id":7,)", R"("id":0,)", R"("id":-1,)", ""}) {
    const QJsonObject request = json("{" + id + R"("method":"tools/list"})");
    const QByteArray bytes = rig.mDispatcher.answer(request);
    QCOMPARE(json(bytes), rig.mDispatcher.dispatch(request));
    QCOMPARE(json(bytes).value("result").toObject(), rig.mDispatcher.catalogue().list());
    QVERIFY(bytes.contains(R"(Pr\u00fcft.)"));
  }
}

void MCP_Dispatcher_Test::arguments_data() {
  QTest::addColumn<QByteArray>("given"); // besides "text"
  QTest::addColumn<QString>("error");
  const auto row = [](const QByteArray& given, const QString& error) {
    QTest::newRow(given.left(60).constData()) << given << error;
  };
  const auto wrong = [](const QString& name, const QString& wanted, const QString& got) {
    return QStringLiteral("Parameter '%1' hat den falschen Typ: erwartet %2, erhalten %3").arg(name, wanted, got);
  };
  const QString flag = QStringLiteral("Wahrheitswert (true oder false)");
  row("{}", {});
  row(R"({"text":null})", "Parameter 'text' fehlt");
  row(R"({"text":7})", wrong("text", "Text", "Zahl 7"));
  row(R"({"count":1.5})", wrong("count", "ganze Zahl", "Zahl 1.5"));
  row(R"({"count":"1"})", wrong("count", "ganze Zahl", "Text"));
  row(R"({"count":true})", wrong("count", "ganze Zahl", "Wahrheitswert"));
  row(R"({"count":1e300})", "Parameter 'count' ausserhalb des gueltigen Bereichs: 1e+300 "
                            "(erlaubt -2147483648 bis 2147483647)");
  row(R"({"count":2147483648})", "Parameter 'count' ausserhalb des gueltigen Bereichs: 2147483648 "
                                 "(erlaubt -2147483648 bis 2147483647)");
  row(R"({"count":-2147483648})", {});
  row(R"({"count":null})", {});
  row(R"({"level":4})", "Parameter 'level' ausserhalb des gueltigen Bereichs: 4 (erlaubt 0 bis 3)");
  row(R"({"level":3.0})", {});
  row(R"({"value":1e300})", {});
  row(R"({"value":[1]})", wrong("value", "Zahl", "Liste"));
  row(R"({"on":1})", wrong("on", flag, "Zahl 1"));
  row(R"({"list":{}})", wrong("list", "Liste", "Objekt"));
  row(R"({"object":[]})", wrong("object", "Objekt", "Liste"));
  row(R"({"summary":true})", {});
  row(R"({"summary":1})", {});
  row(R"({"summary":"ja"})", wrong("summary", "ganze Zahl", "Text"));
  row(R"({"registers":[{}]})", {});
  row(R"({"registers":{}})", wrong("registers", "Liste", "Objekt"));
  row(R"({"target":[true,null]})", {});
  row(R"({"text":1,"count":"x"})", wrong("text", "Text", "Zahl 1"));
}

void MCP_Dispatcher_Test::arguments() {
  QFETCH(const QByteArray, given);
  QFETCH(const QString, error);
  QJsonObject arguments{{QStringLiteral("text"), QStringLiteral("da")}};
  const QJsonObject added = json(given);
  for (auto it = added.begin(); it != added.end(); ++it) {
    arguments.insert(it.key(), it.value());
  }
  Tool_Rig rig(Trial_Tools::catalogue());
  const QJsonObject object = rig.call("update_fb", arguments);
  QCOMPARE(object.value("error").toString(), error);
  if (error.isEmpty()) {
    QCOMPARE(object, QJsonObject({{"arguments", arguments}}));
  }
}

void MCP_Dispatcher_Test::unknownArguments() {
  Tool_Rig rig(Trial_Tools::catalogue());
  const auto warning = [&rig](const QString& tool, const QJsonObject& arguments) {
    return rig.call(tool, arguments).value("warning").toString();
  };
  QCOMPARE(warning("open_project", {{"filename", "a"}}), QString());
  QCOMPARE(warning("open_project", {{"file", "a"}, {"b", QJsonValue()}}), "Unbekannte Parameter ignoriert: b, file.");
  QCOMPARE(warning("open_project", {{"1", 1}, {"2", 1}, {"3", 1}, {"4", 1}, {"5", 1}, {"6", 1}, {"7", 1}}),
           "Unbekannte Parameter ignoriert: 1, 2, 3, 4, 5 und 2 weitere.");
  QCOMPARE(warning("add_fb_page", {{"caption", "a"}, {"titel", "b"}}),
           "Unbekannte Parameter ignoriert: titel. Umbenannt.");
}

void MCP_Dispatcher_Test::onlyWhatIsAllowed() {
  Tool_Rig rig(Trial_Tools::catalogue());
  const QByteArray before = Project_Dump::project(rig.mSession.database());
  rig.mState.setOperatingMode(true);
  QCOMPARE(rig.errorOf("add_fb_page", {{"caption", "x"}}), Session_State::operatingModeRefusal());
  QCOMPARE(rig.call("update_fb", {{"text", "x"}}).contains("error"), false);
  QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
}

void MCP_Dispatcher_Test::aCallIsOneStep() {
  Tool_Rig rig(Trial_Tools::catalogue());
  History& history = rig.mSession.history();
  const QByteArray before = Project_Dump::project(rig.mSession.database());
  rig.call("add_fb_page", {{"caption", "Eins"}});
  const QByteArray between = Project_Dump::project(rig.mSession.database());
  rig.call("add_fb_page", {{"caption", "Zwei"}});
  QCOMPARE(history.position(), size_t(2)); // closed before the answer, in one turn of the event loop
  QCOMPARE(history.undoText(), QStringLiteral("Umbenennen"));
  QVERIFY(history.undo());
  QCOMPARE(Project_Dump::project(rig.mSession.database()), between);
  QVERIFY(history.undo());
  QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
}

void MCP_Dispatcher_Test::aFailureIsTakenBack() {
  Tool_Rig rig(Trial_Tools::catalogue());
  History& history = rig.mSession.history();
  rig.call("add_fb_page", {{"caption", "Eins"}});
  QVERIFY(history.undo());
  const QByteArray before = Project_Dump::project(rig.mSession.database());
  const QJsonObject failed = rig.call("add_fb_page", {{"caption", "Zwei"}, {"fail", true}});
  QCOMPARE(failed, QJsonObject({{"error", "Umbenennen gescheitert"}}));
  QCOMPARE(Project_Dump::project(rig.mSession.database()), before);
  QCOMPARE(history.position(), size_t(0));
  QVERIFY(history.redo());
}

void MCP_Dispatcher_Test::withoutProject() {
  Tool_Rig rig(Trial_Tools::catalogue());
  rig.mSession.close();
  const QString closed = QStringLiteral("Kein Projekt geoeffnet");
  QCOMPARE(rig.errorOf("update_fb", {{"text", 1}}), closed);
  QCOMPARE(rig.errorOf("gibt es nicht"), closed);
  QCOMPARE(rig.errorOf("open_project", {{"filename", "a"}}), QString());
  QCOMPARE(QJsonDocument(rig.mDispatcher.callTool("update_fb", {})).toJson(QJsonDocument::Compact),
           QByteArray(R"({"content":[{"text":"{\"error\":\"Kein Projekt geoeffnet\"}","type":"text"}],)"
                      R"("isError":true})"));
}

void MCP_Dispatcher_Test::suppressedMessages() {
  Tool_Rig rig(Trial_Tools::catalogue());
  rig.mState.setSuppressedMessage("von früher");
  QCOMPARE(rig.call("save_project"), QJsonObject());
  QCOMPARE(rig.call("save_project", {{"text", "Überschreiben?"}}),
           QJsonObject({{"suppressed_message", "Überschreiben?"}}));
  QCOMPARE(rig.call("update_fb", {{"text", 1}}).contains("suppressed_message"), false);
  QCOMPARE(rig.mState.suppressedMessage(), QString());
}

void MCP_Dispatcher_Test::theAssistantIsActiveForAWhile() {
  Tool_Rig rig(Trial_Tools::catalogue());
  QVERIFY(!rig.mState.assistantActive(QDateTime::currentMSecsSinceEpoch()));
  static_cast<void>(rig.mDispatcher.dispatch(json(R"({"method":"tools/list"})")));
  QVERIFY(!rig.mState.assistantActive(QDateTime::currentMSecsSinceEpoch()));
  const qint64 begun = QDateTime::currentMSecsSinceEpoch();
  rig.call("save_project");
  const qint64 ended = QDateTime::currentMSecsSinceEpoch();
  QVERIFY(!rig.mState.toolCallRunning());
  QVERIFY(rig.mState.assistantActive(begun + 14'999));
  QVERIFY(!rig.mState.assistantActive(ended + 15'000));
}

void MCP_Dispatcher_Test::log() {
  Tool_Rig rig(Trial_Tools::catalogue());
  const auto call = [&rig](const QString& argument) {
    static_cast<void>(rig.mDispatcher.dispatch(
        {{"method", "tools/call"},
         {"params", QJsonObject{{"name", "open_project"}, {"arguments", QJsonObject{{"filename", argument}}}}}}));
  };
  static QStringList lines;
  lines.clear();
  const auto before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { lines.append(text); });
  call("leise");
  rig.mDispatcher.setDebug(true);
  static_cast<void>(rig.mDispatcher.answer({{"method", "initialize"}}));
  static_cast<void>(rig.mDispatcher.answer({{"method", "tools/list"}}));
  static_cast<void>(rig.mDispatcher.answer({{"method", "notifications/initialized"}}));
  call("ä %1");
  call(QString(300, u'x'));
  qInstallMessageHandler(before);
  const QString start = QStringLiteral("[MCP] tools/call: open_project  args: {\"filename\":\"");
  QCOMPARE(lines, QStringList({"[MCP] initialize", "[MCP] tools/list", start + "ä %1\"}",
                               start + QString(200 - 13, u'x') + "..."}));
}

QTEST_GUILESS_MAIN(MCP_Dispatcher_Test)
#include "MCP_Dispatcher_Test.moc"
