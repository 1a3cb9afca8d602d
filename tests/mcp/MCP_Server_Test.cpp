#include "mcp/MCP_SseSession.h"
#include "tests/mcp/Server_Rig.h"
#include "tests/mcp/Trial_Tools.h"

#include <QRegularExpression>
#include <QtTest>

#include <sys/resource.h>

#include <chrono>
#include <thread>

namespace {

constexpr auto cInitialize = R"({"jsonrpc":"2.0","id":0,"method":"initialize"})";
constexpr auto cParseError = R"({"jsonrpc":"2.0","id":null,"error":{"code":-32700,"message":"Parse error"}})";
constexpr auto cNotFound = R"({"error":"Not Found"})";
constexpr auto cNoSession = R"({"error":"Session not found"})";
constexpr auto cForbidden = R"({"error":"Forbidden"})";
constexpr auto cBusy =
    R"({\"error\":\"Es laeuft bereits ein Werkzeugaufruf \u2014 bitte dessen Antwort abwarten\"}","type":"text"}],"isError":true})";

QByteArray reply(const QByteArray& status, const QByteArray& body) {
  return "HTTP/1.1 " + status +
         "\r\nContent-Type: application/json; charset=utf-8\r\nAccess-Control-Allow-Origin: *\r\n"
         "Access-Control-Allow-Methods: POST, GET, OPTIONS\r\nAccess-Control-Allow-Headers: Content-Type\r\n"
         "Content-Length: " +
         QByteArray::number(body.size()) + "\r\nConnection: close\r\n\r\n" + body;
}

QByteArray call(const QByteArray& tool, int id = 1) {
  return "{\"jsonrpc\":\"2.0\",\"id\":" + QByteArray::number(id) +
         ",\"method\":\"tools/call\",\"params\":{\"name\":\"" + tool + "\",\"arguments\":{}}}";
}

void aMoment() {
  std::this_thread::sleep_for(std::chrono::milliseconds(1));
}

/// An open event stream.
struct Stream {
  explicit Stream(quint16 port) : mClient(port) {
    mClient.send("GET /sse HTTP/1.1\r\nAccept: text/event-stream\r\nContent-Length: 99\r\n\r\n");
    const QByteArray head = mClient.readTo("\r\n\r\n");
    mHead = head.contains("event:") ? head : head + mClient.readTo("\r\n\r\n");
    const qsizetype at = mHead.indexOf("sessionId=");
    mId = mHead.sliced(at + 10).trimmed();
  }
  [[nodiscard]] QByteArray post(quint16 port, const QByteArray& body) const {
    return Server_Rig::exchange(port, Raw_Client::post(path(), body));
  }
  [[nodiscard]] QByteArray path() const { return "/messages?sessionId=" + mId; }
  [[nodiscard]] QByteArray event() const { return mClient.readTo("\r\n\r\n"); }

  Raw_Client mClient;
  QByteArray mHead;
  QByteArray mId;
};

} // namespace

/// The server over real sockets: a client in a thread beside, the server in the loop of this one.
class MCP_Server_Test : public QObject {
  Q_OBJECT

private slots:
  void init() { mRig = std::make_unique<Server_Rig>(Trial_Tools::catalogue()); }
  void cleanup() {
    if (mRig->mServer) {
      QTRY_COMPARE(mRig->connectionCount(), 0); // every one of them goes
    }
    mRig.reset();
  }

  void requests_data();
  void requests();
  void foreignPages_data();
  void foreignPages();
  void splitAtEveryByte();
  void threeHundredAtOnce();
  void clientsThatEndTheirSide();
  void anAnswerBeforeTheBodyArrives();
  void streams();
  void whileAToolWaits();
  void clientsThatVanishWhileAToolWaits_data();
  void clientsThatVanishWhileAToolWaits();
  void aStreamClosedDuringItsCall();
  void aPostClosedDuringItsCall();
  void whileTheLinkIsRead();
  void theServerGoesFirst();
  void outOfDescriptors();
  void logLines();
  void onlyOnLoopbackAndOnlyOnce();

private:
  std::unique_ptr<Server_Rig> mRig;
};

void MCP_Server_Test::requests_data() {
  QTest::addColumn<QByteArray>("request");
  QTest::addColumn<QByteArray>("answer");
  const auto row = [](const char* name, const QByteArray& request, const char* status, const QByteArray& body) {
    QTest::newRow(name) << request << reply(status, body);
  };
  const auto post = [](const QByteArray& headers, const QByteArray& body) {
    return "POST /mcp HTTP/1.1\r\n" + headers + "\r\n" + body;
  };
  const auto unknown = [](const QByteArray& id, const QByteArray& method) {
    return R"({"error":{"code":-32601,"message":"Methode nicht gefunden: )" + method + R"("},)" + id +
           R"("jsonrpc":"2.0"})";
  };
  row("options", "OPTIONS /x?y HTTP/1.1\r\n\r\n", "204 No Content", "");
  row("options of nothing", "OPTIONS\r\n\r\n", "204 No Content", "");
  row("unknown method", Raw_Client::post("/mcp", R"({"id":3,"method":"x"})"), "200 OK", unknown(R"("id":3,)", "x"));
  row("text id", Raw_Client::post("/mcp", R"({"id":"a","method":"x"})"), "200 OK", unknown("", "x"));
  row("escapes", Raw_Client::post("/mcp", R"({"id":3,"method":"ä\u0000ÿ😀€"})"), "200 OK",
      unknown(R"("id":3,)", R"(\u00e4\u0000\u00ff\ud83d\ude00\u20ac)"));
  row("notification", Raw_Client::post("/mcp", R"({"method":"notifications/initialized"})"), "200 OK", "{}");
  row("a list", Raw_Client::post("/mcp", "[1,2]"), "200 OK", cParseError);
  row("a number", Raw_Client::post("/mcp", "7"), "200 OK", cParseError);
  row("broken", Raw_Client::post("/mcp", R"({"id":1)"), "200 OK", cParseError);
  row("no UTF-8", Raw_Client::post("/mcp", "{\"method\":\"\xff\xfe\"}"), "200 OK", cParseError);
  row("deep", Raw_Client::post("/mcp", QByteArray(2'000'000, '[')), "200 OK", cParseError);
  row("deep objects", Raw_Client::post("/mcp", QByteArray(R"({"a":)").repeated(500'000)), "200 OK", cParseError);
  row("empty", Raw_Client::post("/mcp", ""), "200 OK", cParseError);
  row("no length", post("", "{}"), "200 OK", cParseError);
  row("negative length", post("Content-Length: -5\r\n", "{}"), "200 OK", cParseError);
  row("no number", post("Content-Length: 0x2\r\n", "{}"), "200 OK", cParseError);
  row("beyond 32 bits", post("Content-Length: 4294967298\r\n", "{}"), "200 OK", cParseError);
  row("first length counts", post("Content-Length: 2\r\nContent-Length: 1\r\n", "{}"), "200 OK", unknown("", ""));
  row("also a bad one", post("Content-Length: x\r\nContent-Length: 2\r\n", "{}"), "200 OK", cParseError);
  row("in any case", post("  cOnTeNt-LENGTH:2  \r\n", "{}"), "200 OK", unknown("", ""));
  row("another header", post("X-Content-Length: 1\r\nContent-Length : 1\r\nContent-Length: 2\r\n", "{}"), "200 OK",
      unknown("", ""));
  row("bare line feeds", "POST /mcp HTTP/1.1\nContent-Length: 2\r\n\r\n{}", "200 OK", unknown("", ""));
  row("no version", "POST /mcp\r\nContent-Length: 2\r\n\r\n{}", "200 OK", unknown("", ""));
  row("more than announced", post("Content-Length: 10\r\n", "{\"id\":17} {}"), "200 OK", unknown(R"("id":17,)", ""));
  row("a second request", Raw_Client::post("/mcp", "{}").repeated(2), "200 OK", unknown("", ""));
  for (const char* other :
       {"POST /mcp?x", "POST /mcp/", "POST /MCP", "POST  /mcp", "post /mcp", "GET /mcp", "GET /sse?x", "POST /sse",
        "DELETE /messages", "GET /messages?sessionId=1", "POST http://localhost/mcp", "PUT", "", " ", "\xff\xfe\r"}) {
    row(qPrintable(QStringLiteral("other: %1").arg(QLatin1String(other))),
        QByteArray(other) + " HTTP/1.1\r\nContent-Length: 2\r\n\r\n{}", "404 Not Found", cNotFound);
  }
  row("nothing at all", "\r\n\r\n", "404 Not Found", cNotFound);
  for (const char* path : {"/messages", "/messages?sessionId=", "/messages?sessionId=x&sessionId=y", "/messagesX?a=b",
                           "/messages/sessionId=00000000000000000000000000000000"}) {
    row(path, Raw_Client::post(path, cInitialize), "404 Not Found", cNoSession);
  }
}

void MCP_Server_Test::requests() {
  QFETCH(const QByteArray, request);
  QFETCH(const QByteArray, answer);
  QCOMPARE(mRig->exchange(request), answer);
}

void MCP_Server_Test::foreignPages_data() {
  QTest::addColumn<QByteArray>("headers");
  QTest::addColumn<bool>("isForeign");
  const auto rows = [](bool isForeign, std::initializer_list<const char*> all) {
    for (const char* headers : all) {
      QTest::newRow(QByteArray(headers).left(60).replace("\r\n", " | ").constData()) << QByteArray(headers) + "\r\n"
                                                                                     << isForeign;
    }
  };
  rows(false, {"Host: localhost", "host:LOCALHOST:80", "Host: 127.0.0.1:65535", "Host: [::1]", "Host: [::1]:7",
               "Host:", "Accept: x", "Origin: http://localhost:5173", "Origin: https://127.0.0.1",
               "ORIGIN: http://[::1]:1", "X-Host: evil.test", "Referer: http://evil.test/",
               "Host: localhost:1\r\nOrigin: http://127.0.0.1:2\r\nHost: [::1]"});
  rows(true, {"Host: evil.test",
              "HOST: evil.test:80",
              "Host : evil.test",
              " Host:evil.test",
              "\tHost\t:\tevil.test",
              "Host: localhost\r\nHost: evil.test",
              "Host: evil.test\r\nHost: localhost",
              "Host: localhost.evil.test",
              "Host: localhost@evil.test",
              "Host: evil.test@localhost",
              "Host: localhost:1@evil.test",
              "Host: localhost evil.test",
              "Host: localhost,evil.test",
              "Host: localhost.",
              "Host: xlocalhost",
              "Host: 127.0.0.1.evil.test",
              "Host: 127.0.0.2",
              "Host: 127.1",
              "Host: 2130706433",
              "Host: 0.0.0.0",
              "Host: ::1",
              "Host: [::1].evil.test",
              "Host: [::2]",
              "Host: localhost:80:80",
              "Host: localhost:-1",
              "Host: localhost/",
              "Host: http://localhost",
              "Host: loc\xc3\xa4lhost",
              "Host: localhost\rHost: evil.test",
              "Host: null",
              "Origin: null",
              "Origin: http://evil.test",
              "Origin: HTTP://EVIL.TEST:80",
              "Origin: http://localhost.evil.test",
              "Origin: http://localhost@evil.test",
              "Origin: http://evil.test://localhost",
              "Origin: http://localhost http://evil.test",
              "Origin: http://localhost\r\nOrigin: http://evil.test",
              "Origin: file://",
              "Origin: http://localhost/",
              "Host: localhost\r\nOrigin: http://evil.test",
              "Origin: http://localhost\r\nHost: evil.test"});
}

void MCP_Server_Test::foreignPages() {
  QFETCH(const QByteArray, headers);
  QFETCH(const bool, isForeign);
  for (const QByteArray line : {"OPTIONS /mcp", "GET /nothing", "POST /mcp", "POST /messages", "rubbish"}) {
    const QByteArray request = line + " HTTP/1.1\r\n" + headers + "\r\n";
    mRig->mServer->setChecksOrigin(true);
    const QByteArray checked = mRig->exchange(request);
    mRig->mServer->setChecksOrigin(false);
    const QByteArray unchecked = mRig->exchange(request);
    QVERIFY(unchecked.startsWith("HTTP/1.1 2") || unchecked.startsWith("HTTP/1.1 404"));
    QCOMPARE(checked, isForeign ? reply("403 Forbidden", cForbidden) : unchecked);
  }
  if (isForeign) {
    mRig->mServer->setChecksOrigin(true);
    QCOMPARE(mRig->exchange("GET /sse HTTP/1.1\r\n" + headers + "\r\n"), reply("403 Forbidden", cForbidden));
    QCOMPARE(mRig->mServer->sessionCount(), 0);
  }
}

void MCP_Server_Test::splitAtEveryByte() {
  const QByteArray request = Raw_Client::post("/mcp", cInitialize);
  const QByteArray whole = mRig->exchange(request);
  QVERIFY(whole.startsWith("HTTP/1.1 200 OK\r\n") && whole.endsWith('}'));
  QCOMPARE(mRig->exchange(request + "later"), whole);
  const QList<QByteArray> answers = Raw_Client::beside([&, port = mRig->port()] {
    QList<QByteArray> all;
    for (qsizetype at = 1; at < request.size(); ++at) {
      const Raw_Client client(port);
      client.send(request.first(at));
      aMoment();
      client.send(request.sliced(at));
      all.append(client.readAll());
    }
    const Raw_Client slow(port);
    for (const char byte : request) {
      slow.send(QByteArray(1, byte));
      aMoment();
    }
    all.append(slow.readAll());
    return all;
  });
  QCOMPARE(answers, QList<QByteArray>(request.size(), whole));
}

void MCP_Server_Test::threeHundredAtOnce() {
  const QByteArray request = Raw_Client::post("/mcp", cInitialize);
  const QByteArray whole = mRig->exchange(request);
  const QList<QByteArray> answers = Raw_Client::beside([&, port = mRig->port()] {
    std::vector<Raw_Client> clients;
    for (int i = 0; i < 300; ++i) {
      clients.emplace_back(port);
      clients.back().send(request.first(i % request.size()));
    }
    QList<QByteArray> all;
    for (int i = 299; i >= 0; --i) {
      clients[size_t(i)].send(request.sliced(i % request.size()));
      all.append(clients[size_t(i)].readAll());
    }
    return all;
  });
  QCOMPARE(answers, QList<QByteArray>(300, whole));
}

void MCP_Server_Test::clientsThatEndTheirSide() {
  const QByteArray request = Raw_Client::post("/mcp", R"({"method":"tools/list"})");
  const QByteArray whole = mRig->exchange(request);
  const QByteArray largeRequest =
      R"({"method":"tools/call","params":{"name":"open_project","arguments":{"filename":")" +
      QByteArray(20'000'000, 'x') + R"("}}})";
  const QByteArray large = mRig->exchange(Raw_Client::post("/mcp", largeRequest));
  QVERIFY(large.size() > 20'000'000);
  const QList<QByteArray> answers = Raw_Client::beside([&, port = mRig->port()] {
    QList<QByteArray> all;
    for (int i = 0; i < 20; ++i) {
      const Raw_Client client(port);
      client.send(request);
      client.endSending();
      all.append(client.readAll());
    }
    const Raw_Client reader(port);
    reader.send(Raw_Client::post("/mcp", largeRequest));
    reader.endSending();
    all.append(QByteArray::number(reader.readAll().size()));
    // In the middle of head or body nothing is answered.
    for (const qsizetype at : {qsizetype(0), qsizetype(9), request.size() - 1}) {
      const Raw_Client client(port);
      client.send(request.first(at));
      client.endSending();
      all.append(client.readAll());
    }
    return all;
  });
  QCOMPARE(answers, QList<QByteArray>(20, whole) + QList<QByteArray>({QByteArray::number(large.size()), "", "", ""}));
}

void MCP_Server_Test::anAnswerBeforeTheBodyArrives() {
  const QByteArray body(10'000'000, 'x');
  const QByteArray head = " /mcp HTTP/1.1\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n";
  const QList<QByteArray> answers = Raw_Client::beside([&, port = mRig->port()] {
    QList<QByteArray> all;
    for (const QByteArray& start : {"OPTIONS" + head, "POST" + head + "Host: evil.test\r\n"}) {
      const Raw_Client client(port);
      all.append(client.send(start + "\r\n" + body) ? "all taken" : "cut off");
      all.append(client.readAll());
      for (const bool endsItsSide : {false, true, true, true, true, true, true}) {
        const Raw_Client silent(port); // what it has announced never comes
        silent.send(start + "\r\n");
        if (endsItsSide) {
          silent.endSending();
        }
        all.append(silent.readAll());
      }
    }
    return all;
  });
  const QByteArray options = reply("204 No Content", "");
  const QByteArray forbidden = reply("403 Forbidden", cForbidden);
  const QByteArray taken = "all taken";
  QCOMPARE(answers, QList<QByteArray>({taken}) + QList<QByteArray>(8, options) + QList<QByteArray>({taken}) +
                        QList<QByteArray>(8, forbidden));
}

void MCP_Server_Test::streams() {
  struct Told {
    QByteArray mHead;
    QByteArray mId;
    QByteArray mPosted;
    QByteArray mEvent;
  };
  Told first;
  QByteArray other;
  QList<QByteArray> quiet;
  const bool isDone = Raw_Client::beside([&, port = mRig->port()] {
    const Stream one(port);
    Stream two(port);
    first = {one.mHead, one.mId, one.post(port, R"({"id":1,"method":"é"})"), one.event()};
    quiet.append(two.post(port, R"({"id":2,)"));
    quiet.append(two.post(port, "[1,2]"));
    quiet.append(two.post(port, R"({"method":"notifications/initialized"})"));
    quiet.append(Server_Rig::exchange(port, Raw_Client::post(two.path() + "&x=y", R"({"id":3,"method":"b"})")));
    two.mClient.send("what a client sends on its stream means nothing\r\n\r\n");
    other = two.event();
    const QByteArray path = two.path();
    two.mClient.leave();
    while (true) { // until the server has seen it
      const QByteArray answer = Server_Rig::exchange(port, Raw_Client::post(path, "{}"));
      if (answer != reply("202 Accepted", "")) {
        quiet.append(answer);
        break;
      }
    }
    return true;
  });
  QVERIFY(isDone);
  QVERIFY(QRegularExpression("^[0-9a-f]{32}$").match(first.mId).hasMatch());
  QCOMPARE(first.mHead, "HTTP/1.1 200 OK\r\nContent-Type: text/event-stream\r\nCache-Control: no-cache\r\n"
                        "Connection: keep-alive\r\nAccess-Control-Allow-Origin: *\r\n"
                        "Access-Control-Allow-Methods: GET, OPTIONS\r\nAccess-Control-Allow-Headers: Content-Type\r\n"
                        "\r\nevent: endpoint\r\ndata: /messages?sessionId=" +
                            first.mId + "\r\n\r\n");
  const QByteArray accepted = reply("202 Accepted", "");
  QCOMPARE(first.mPosted, accepted);
  QCOMPARE(first.mEvent, "event: message\r\n"
                         "data: {\"error\":{\"code\":-32601,\"message\":\"Methode nicht gefunden: \\u00e9\"},"
                         "\"id\":1,\"jsonrpc\":\"2.0\"}\r\n\r\n");
  QCOMPARE(quiet, QList<QByteArray>({accepted, accepted, accepted, accepted, reply("404 Not Found", cNoSession)}));
  QVERIFY(other.startsWith("event: message\r\ndata: {") && other.contains("\"id\":3"));
  QTRY_COMPARE(mRig->mServer->sessionCount(), 0);
  QTRY_COMPARE(mRig->mServer->findChildren<MCP_SseSession*>().size(), 0);
}

void MCP_Server_Test::whileAToolWaits() {
  const QList<QByteArray> told = Raw_Client::beside([port = mRig->port()] {
    const Stream stream(port);
    const Raw_Client waiting(port);
    waiting.send(Raw_Client::post("/mcp", call("get_controller_status", 1)));
    Trial_Tools::untilItWaits();
    QList<QByteArray> all;
    all.append(Server_Rig::exchange(port, Raw_Client::post("/mcp", call("update_fb", 2))));
    all.append(Server_Rig::exchange(port, Raw_Client::post("/mcp", call("no such tool", 2))));
    all.append(stream.post(port, call("get_controller_status", 3)));
    all.append(stream.event());
    all.append(Server_Rig::exchange(port, Raw_Client::post("/mcp", cInitialize)));
    all.append(Server_Rig::exchange(port, Raw_Client::post("/mcp", R"({"method":"tools/list"})")));
    Trial_Tools::release();
    all.append(waiting.readAll());
    all.append(Server_Rig::exchange(port, Raw_Client::post("/mcp", call("open_project", 4))));
    return all;
  });
  const QByteArray start = R"({"id":2,"jsonrpc":"2.0","result":{"content":[{"text":")";
  QCOMPARE(told.at(0), reply("200 OK", start + cBusy + "}"));
  QCOMPARE(told.at(1), told.at(0));
  QCOMPARE(told.at(2), reply("202 Accepted", ""));
  QCOMPARE(told.at(3), "event: message\r\ndata: " + QByteArray(start).replace("2,", "3,") + cBusy + "}\r\n\r\n");
  QVERIFY(told.at(4).contains(R"("protocolVersion":"2024-11-05")"));
  QVERIFY(told.at(5).contains(R"("inputSchema":)"));
  QVERIFY(told.at(6).contains(R"({\"released\":true})") && told.at(6).contains(R"("isError":false)"));
  QVERIFY(told.at(7).contains(R"("isError":false)"));
}

void MCP_Server_Test::clientsThatVanishWhileAToolWaits_data() {
  QTest::addColumn<int>("manner");
  QTest::newRow("closes") << 0;
  QTest::newRow("resets") << 1;
  QTest::newRow("ends its side") << 2;
}

void MCP_Server_Test::clientsThatVanishWhileAToolWaits() {
  QFETCH(const int, manner);
  const QList<QByteArray> told = Raw_Client::beside([port = mRig->port(), manner] {
    Raw_Client client(port);
    client.send(Raw_Client::post("/mcp", call("get_controller_status")));
    Trial_Tools::untilItWaits();
    QList<QByteArray> all;
    if (manner == 2) {
      client.endSending();
      all.append(client.readAll());
    } else {
      manner == 0 ? client.leave() : client.leaveRudely();
      all.append(QByteArray());
    }
    all.append(Server_Rig::exchange(port, Raw_Client::post("/mcp", call("open_project", 2))));
    Trial_Tools::release();
    while (Trial_Tools::isWaiting()) {
    }
    all.append(Server_Rig::exchange(port, Raw_Client::post("/mcp", call("open_project", 2))));
    return all;
  });
  QCOMPARE(told.at(0), QByteArray());
  QVERIFY(told.at(1).contains("Es laeuft bereits ein Werkzeugaufruf"));
  QVERIFY(told.at(2).contains(R"("isError":false)"));
}

void MCP_Server_Test::aStreamClosedDuringItsCall() {
  const QByteArray posted = Raw_Client::beside([this, port = mRig->port()] {
    Stream stream(port);
    const Raw_Client post(port);
    post.send(Raw_Client::post(stream.path(), call("get_controller_status")));
    Trial_Tools::untilItWaits();
    stream.mClient.leaveRudely();
    qsizetype open = 1;
    while (open > 0) {
      QMetaObject::invokeMethod(
          qApp, [&] { open = mRig->mServer->sessionCount(); }, Qt::BlockingQueuedConnection);
    }
    Trial_Tools::release();
    return post.readAll();
  });
  QCOMPARE(posted, reply("202 Accepted", ""));
}

void MCP_Server_Test::aPostClosedDuringItsCall() {
  const QByteArray event = Raw_Client::beside([port = mRig->port()] {
    const Stream stream(port);
    Raw_Client post(port);
    post.send(Raw_Client::post(stream.path(), call("get_controller_status", 1)));
    Trial_Tools::untilItWaits();
    post.leave();
    // Answered while the other waits, so the server has seen the end of the first by then.
    static_cast<void>(Server_Rig::exchange(port, Raw_Client::post("/mcp", cInitialize)));
    Trial_Tools::release();
    while (Trial_Tools::isWaiting()) {
    }
    static_cast<void>(stream.post(port, R"({"id":2,"method":"x"})"));
    return stream.event();
  });
  QVERIFY2(event.contains("\"id\":2"), event); // of the first, nothing
}

/// What came meanwhile is carried out afterwards, also of clients that have gone by then.
void MCP_Server_Test::whileTheLinkIsRead() {
  const auto edit = [](const QByteArray& caption) {
    return R"({"id":2,"method":"tools/call","params":{"name":"add_fb_page","arguments":{"caption":")" + caption +
           R"("}}})";
  };
  mRig->mStudio.mIsReading = true;
  const QList<QByteArray> told = Raw_Client::beside([&, this, port = mRig->port()] {
    const Stream stream(port);
    const Raw_Client stays(port);
    stays.send(Raw_Client::post("/mcp", cInitialize));
    stays.send("and more bytes");
    std::vector<Raw_Client> gone;
    for (const QByteArray& request : {Raw_Client::post("/mcp", edit("Eins")), Raw_Client::post("/mcp", "["),
                                      Raw_Client::post(stream.path(), edit("Zwei"))}) {
      gone.emplace_back(port).send(request);
    }
    gone[0].leave();
    gone[1].leaveRudely();
    gone[2].endSending();
    const QByteArray quick = Server_Rig::exchange(port, "OPTIONS / HTTP/1.1\r\n\r\n");
    QMetaObject::invokeMethod(
        qApp, [this] { mRig->mStudio.endReading(); }, Qt::BlockingQueuedConnection);
    return QList<QByteArray>{quick, stream.event(), stays.readAll()};
  });
  QCOMPARE(told.at(0), reply("204 No Content", ""));
  QVERIFY(told.at(1).startsWith("event: message\r\n") && told.at(1).contains(R"("isError":false)"));
  QVERIFY(told.at(2).contains(R"("protocolVersion":)"));
  QCOMPARE(mRig->mSession.history().position(), size_t(2));
}

void MCP_Server_Test::theServerGoesFirst() {
  const QList<QByteArray> told = Raw_Client::beside([this, port = mRig->port()] {
    const Stream stream(port);
    const Raw_Client idle(port);
    const Raw_Client half(port);
    half.send("POST /mcp HTTP/1.1\r\nContent-Length: 5\r\n\r\n{");
    static_cast<void>(Server_Rig::exchange(port, Raw_Client::post("/mcp", cInitialize)));
    QMetaObject::invokeMethod(
        qApp, [this] { mRig->mServer.reset(); }, Qt::BlockingQueuedConnection);
    return QList<QByteArray>{stream.mClient.readAll(), idle.readAll(), half.readAll(),
                             QByteArray::number(Raw_Client(port).isConnected())};
  });
  QCOMPARE(told, QList<QByteArray>({"", "", "", "0"}));
}

void MCP_Server_Test::outOfDescriptors() {
  // The sanitizer looks at each type once, for which it needs a descriptor.
  static_cast<void>(mRig->exchange("OPTIONS / HTTP/1.1\r\n\r\n"));
  std::vector<Raw_Client> clients;
  for (int i = 0; i < 40; ++i) {
    clients.emplace_back(mRig->port());
    clients.back().send("OPTIONS / HTTP/1.1\r\n\r\n");
  }
  // They all wait in the listener's queue; there is room for a few of them only.
  const int next = ::dup(0);
  ::close(next);
  rlimit limit{};
  ::getrlimit(RLIMIT_NOFILE, &limit);
  const rlimit few{rlim_t(next + 5), limit.rlim_max};
  ::setrlimit(RLIMIT_NOFILE, &few);
  const QList<QByteArray> told = Raw_Client::beside([&clients] {
    QList<QByteArray> all;
    for (const Raw_Client& client : clients) {
      all.append(client.readAll());
    }
    return all;
  });
  ::setrlimit(RLIMIT_NOFILE, &limit);
  QCOMPARE(told, QList<QByteArray>(40, reply("204 No Content", "")));
}

void MCP_Server_Test::logLines() {
  static QStringList lines;
  lines.clear();
  const auto before =
      qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString& text) { lines.append(text); });
  QByteArray id;
  const auto talk = [&, port = mRig->port()] {
    Stream stream(port);
    id = stream.mId;
    static_cast<void>(Server_Rig::exchange(port, Raw_Client::post("/mcp", "[1,2]")));
    static_cast<void>(Server_Rig::exchange(port, Raw_Client::post("/mcp", "{\"a\" 1}")));
    static_cast<void>(Server_Rig::exchange(port, Raw_Client::post("/messages?sessionId=%1", "")));
    static_cast<void>(Server_Rig::exchange(port, "GET /%1 HTTP/1.1\r\n\r\n"));
    stream.mClient.leave();
    return true;
  };
  Raw_Client::beside(talk);
  QTRY_COMPARE(mRig->mServer->sessionCount(), 0);
  const QStringList silent = lines;
  mRig->mServer->setDebug(true);
  Raw_Client::beside(talk);
  QTRY_COMPARE(mRig->mServer->sessionCount(), 0);
  qInstallMessageHandler(before);
  QCOMPARE(silent, QStringList());
  const QString accepted = QStringLiteral("[MCP] Neue TCP-Verbindung");
  QCOMPARE(lines, QStringList({accepted, "[MCP] SSE-Verbindung geoeffnet, Session: " + id, accepted,
                               "[MCP] POST /mcp Parse-Fehler: kein Objekt", accepted,
                               "[MCP] POST /mcp Parse-Fehler: missing name separator", accepted,
                               "[MCP] POST /messages – Session nicht gefunden: %1", accepted,
                               "[MCP] Unbekannter Pfad: GET /%1", "[MCP] SSE-Session getrennt: " + id}));
}

void MCP_Server_Test::onlyOnLoopbackAndOnlyOnce() {
  QCOMPARE(mRig->mServer->serverAddress(), QHostAddress(QHostAddress::LocalHost));
  MCP_Server second;
  QVERIFY(!second.start(mRig->port(), mRig->mStudio, mRig->mState));
  QVERIFY(!second.isListening());
  mRig->mServer->stop();
  mRig->mServer->stop();
  QVERIFY(second.start(0, mRig->mStudio, mRig->mState));
}

QTEST_GUILESS_MAIN(MCP_Server_Test)
#include "MCP_Server_Test.moc"
