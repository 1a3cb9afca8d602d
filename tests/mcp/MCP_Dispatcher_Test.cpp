#include "mcp/MCP_Call.h"
#include "tests/mcp/Tool_Rig.h"

#include <QtTest>

/// The methods of the protocol and what surrounds every tool call.
class MCP_Dispatcher_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase();
  void methods_data();
  void methods();
};

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
  for (const QByteArray id : {R"("a")", "-3", "null", "1.5", "1e300", "[1]"}) {
    QTest::newRow(id.constData()) << QByteArray(R"({"id":)" + id + R"(,"method":"server/discover"})")
                                  << QByteArray(R"({"jsonrpc":"2.0",)" + unknown + R"(server/discover"}})");
  }
  QTest::newRow("no method") << QByteArray("{}") << QByteArray(R"({"jsonrpc":"2.0",)" + unknown + R"("}})");
  QTest::newRow("notification") << QByteArray(R"({"id":4,"method":"notifications/initialized"})") << QByteArray("{}");
  QTest::newRow("initialize") << QByteArray(
                                     R"({"id":1,"method":"initialize","params":{"protocolVersion":"2099-01-01"}})")
                              << QByteArray(R"({"jsonrpc":"2.0","id":1,"result":{"protocolVersion":"2024-11-05",)"
                                            R"("capabilities":{"tools":{}},"serverInfo":)"
                                            R"({"name":"RZ8800-Studio-MCP","version":"1.0"}}})");
}

void MCP_Dispatcher_Test::methods() {
  QFETCH(const QByteArray, request);
  QFETCH(const QByteArray, response);
  Tool_Rig rig;
  const QJsonObject wanted = QJsonDocument::fromJson(response).object();
  QCOMPARE(rig.mDispatcher.dispatch(QJsonDocument::fromJson(request).object()), wanted);
}

QTEST_GUILESS_MAIN(MCP_Dispatcher_Test)
#include "MCP_Dispatcher_Test.moc"
