#include "mcp/Http_Request.h"

#include <QtTest>

/// Requests as bytes in pieces. What a request means to the server is asked over sockets.
class Http_Request_Test : public QObject {
  Q_OBJECT

private slots:
  /// Each of these takes hours when a piece costs as much as all that came before it.
  void manySmallPieces_data() {
    QTest::addColumn<QByteArray>("start");
    QTest::addColumn<QByteArray>("filling");
    QTest::addColumn<int>("megabytes");
    QTest::addColumn<QByteArray>("end");
    const QByteArray head = "POST /mcp HTTP/1.1\r\n";
    QTest::newRow("body") << head + "Content-Length: 50000000\r\n\r\n" << QByteArray("{}") << 50 << QByteArray();
    QTest::newRow("head of one line") << head + "X: " << QByteArray("ab") << 20 << QByteArray("\r\n\r\n");
    QTest::newRow("head of many lines") << head << QByteArray("\n") << 20 << QByteArray("\r\n\r\n");
    QTest::newRow("nearly blank lines") << head << QByteArray("\r\r\n") << 20 << QByteArray("\r\n\r\n");
    QTest::newRow("many hosts") << head << QByteArray("Host:localhost\r\n") << 20 << QByteArray("\r\n");
    QTest::newRow("one long host") << head + "Host: " << QByteArray("localhost:1") << 20 << QByteArray("\r\n\r\n");
  }
  void manySmallPieces() {
    QFETCH(const QByteArray, start);
    QFETCH(const QByteArray, filling);
    QFETCH(const int, megabytes);
    QFETCH(const QByteArray, end);
    const QByteArray piece = filling.repeated(64 / filling.size());
    const qsizetype count = megabytes * qsizetype(1'000'000) / piece.size();
    Http_Request request;
    request.add(start);
    for (qsizetype i = 0; i < count; ++i) {
      QVERIFY(!request.isComplete());
      request.add(piece);
    }
    request.add(end);
    QVERIFY(request.hasHead());
    request.add(QByteArray(64, ' '));
    QVERIFY(request.isComplete());
    QCOMPARE(request.path(), QStringLiteral("/mcp"));
    QCOMPARE(request.body().size(), request.contentLength());
  }

  void missingBytes() {
    Http_Request request;
    request.add("POST /mcp\r\nContent-Length: 4\r\n\r\n1");
    QCOMPARE(request.missing(), 3);
    request.add("23456");
    QCOMPARE(request.missing(), 0);
    QCOMPARE(request.body(), QByteArray("1234"));
  }

  void sessions_data() {
    QTest::addColumn<QByteArray>("path");
    QTest::addColumn<QString>("id");
    QTest::newRow("none") << QByteArray("/messages") << QString();
    QTest::newRow("empty") << QByteArray("/messages?sessionId=") << QString();
    QTest::newRow("alone") << QByteArray("/messages?sessionId=ab") << QStringLiteral("ab");
    QTest::newRow("behind another") << QByteArray("/messages?a=b&sessionId=ab&c=d&sessionId=e") << QStringLiteral("ab");
    QTest::newRow("as it stands") << QByteArray("/messages/sessionId=%61%26=") << QStringLiteral("%61%26=");
  }
  void sessions() {
    QFETCH(const QByteArray, path);
    QFETCH(const QString, id);
    Http_Request request;
    request.add("POST " + path + " HTTP/1.1\r\n\r\n");
    QCOMPARE(request.sessionId(), id);
  }
};

QTEST_GUILESS_MAIN(Http_Request_Test)
#include "Http_Request_Test.moc"
