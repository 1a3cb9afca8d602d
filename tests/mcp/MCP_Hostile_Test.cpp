#include "tests/db/Project_Dump.h"
#include "tests/mcp/Hostile_Requests.h"
#include "tests/mcp/Server_Rig.h"
#include "tests/mcp/Trial_Tools.h"

#include <QDir>
#include <QtTest>

namespace {

/// The tools of a test without the one that waits.
MCP_Catalogue trialTools() {
  std::vector<MCP_Tool> tools = Trial_Tools::catalogue().tools();
  std::erase_if(tools, [](const MCP_Tool& tool) { return tool.mHandler == Trial_Tools::wait; });
  return MCP_Catalogue(std::move(tools));
}

MCP_Catalogue allTools() {
  return {};
}

} // namespace

/// 1,000 requests of somebody who means no good: the server still answers, and a project is as it was unless a tool
/// has told that it succeeded.
class MCP_Hostile_Test : public QObject {
  Q_OBJECT

private slots:
  void thousandRequests_data() {
    QTest::addColumn<unsigned>("seed");
    QTest::addColumn<bool>("isTrial");
    QTest::newRow("all tools") << 7001U << false;
    QTest::newRow("tools of a test") << 7002U << true;
  }
  void thousandRequests();
};

void MCP_Hostile_Test::thousandRequests() {
  QFETCH(const unsigned, seed);
  QFETCH(const bool, isTrial);
  Server_Rig rig(isTrial ? trialTools() : allTools());
  QDir::setCurrent(rig.folder()); // for names of files without a folder
  const ProjectDatabase& store = rig.mSession.database();
  const QStringList guids = {store.mFbPages.pages().at(0).mGuid.toString(QUuid::WithoutBraces),
                             store.mWidgetPages.pages().at(0).mGuid.toString()};
  Hostile_Requests requests(seed, rig.mServer->dispatcher().catalogue(), guids);
  const QByteArray initialize = Raw_Client::post("/mcp", R"({"id":0,"method":"initialize"})");
  const QByteArray wellAnswered = rig.exchange(initialize);
  QVERIFY(wellAnswered.contains("2024-11-05"));
  const auto dump = [&rig] {
    return rig.mSession.path().toUtf8() + '\n' + Project_Dump::project(rig.mSession.database());
  };
  QMap<QByteArray, int> statuses;
  int failures = 0;
  int successes = 0;
  QByteArray before = dump();
  for (int number = 0; number < 1000; ++number) {
    const QByteArray request = requests.next();
    const QByteArray answer = Raw_Client::beside([&request, port = rig.port()] {
      const Raw_Client client(port);
      client.send(request);
      client.endSending();
      return client.readAll();
    });
    ++statuses[answer.isEmpty() ? QByteArray("no answer") : answer.mid(9, 3)];
    const bool isSuccess = answer.contains(R"("isError":false})");
    successes += isSuccess ? 1 : 0;
    failures += answer.contains(R"("isError":true})") ? 1 : 0;
    QVERIFY2(!answer.endsWith("TIMEOUT") && !answer.endsWith("RESET"), request);
    const QByteArray after = dump();
    QVERIFY2(isSuccess || after == before, request);
    before = after;
    if (number % 100 == 0) {
      QCOMPARE(rig.exchange(initialize), wellAnswered);
    }
  }
  QCOMPARE(rig.exchange(initialize), wellAnswered);
  QTRY_COMPARE(rig.connectionCount(), 0);
  QTRY_COMPARE(rig.mServer->sessionCount(), 0);
  QStringList told;
  for (auto it = statuses.cbegin(); it != statuses.cend(); ++it) {
    told.append(QStringLiteral("%1: %2").arg(QString::fromLatin1(it.key())).arg(it.value()));
  }
  qInfo("1,000 hostile requests, %d tools: %s; of the calls, %d answered an error and %d a result",
        int(rig.mServer->dispatcher().catalogue().tools().size()), qPrintable(told.join(", ")), failures, successes);
}

QTEST_GUILESS_MAIN(MCP_Hostile_Test)
#include "MCP_Hostile_Test.moc"
