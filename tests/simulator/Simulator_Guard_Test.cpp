// What a stand-in stands up to: a damaged folder, a second of its kind, studios that misbehave.
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "net/Network_Frame.h"
#include "simulator/Simulator_Session.h"
#include "tests/simulator/Simulator_Rig.h"

#include <QTcpSocket>

#include <memory>
#include <vector>

using namespace Controller_Command;

class Simulator_Guard_Test : public QObject {
  Q_OBJECT

private slots:
  void damaged_data() {
    QTest::addColumn<QString>("name");
    for (const char* const name : {"settings.txt", "project.bin", "values.txt", "scripts.bin"}) {
      QTest::addRow("%s", name) << QString::fromLatin1(name);
    }
  }

  /// It says what is wrong and leaves the file alone.
  void damaged() {
    QFETCH(QString, name);
    const QTemporaryDir folder;
    const QString path = folder.filePath(name);
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("1/2/3;zz") > 0);
    file.close();
    {
      Simulator_Server server(options(folder.path()));
      QString error;
      QVERIFY(!server.listen(&error));
      QVERIFY2(error.contains(name) && error.contains(u"beschädigt"), qPrintable(error));
      QVERIFY(!server.controller().storeValues());
    }
    QCOMPARE(Session_Rig::bytesOf(path), QByteArray("1/2/3;zz"));
  }

  void folderIsTaken() {
    const QTemporaryDir folder;
    QString error;
    {
      Simulator_Server first(options(folder.path()));
      QVERIFY(first.listen());
      Simulator_Server second(options(folder.path()));
      QVERIFY(!second.listen(&error));
      QVERIFY2(error.contains(u"benutzt schon"), qPrintable(error));
      QVERIFY(!second.controller().storeValues());
      Simulator_Options onPort = options({});
      onPort.mPort = first.port();
      QVERIFY(!Simulator_Server(onPort).listen(&error));
      QVERIFY2(error.contains(QString::number(first.port())), qPrintable(error));
    }
    QVERIFY(Simulator_Server(options(folder.path())).listen());
  }

  /// A file that lay there whole is there whole whatever comes; what was begun beside it does not count.
  void unfinishedWrite() {
    const QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("project.bin.AbCdEf")));
    QVERIFY(file.open(QIODevice::WriteOnly) && file.write("half") > 0);
    file.close();
    QVERIFY(Simulator_Server(options(folder.path())).listen());
  }

  void bruteForce() {
    Simulator_Rig rig;
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, rig.mServer.port());
    DB_Log_On who;
    who.mUser = rig.connection().mUser;
    for (int i = 0; i < Simulator_Session::cMostRefusedLogOns; ++i) {
      who.mPassword = QString::number(i);
      socket.write(Network_Frame::pack(Log_On, who.toData()));
    }
    who.mPassword = rig.connection().mPassword;
    socket.write(Network_Frame::pack(Log_On, who.toData()));
    QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState);
    Simulator_Frame_Reader reader;
    reader.append(socket.readAll());
    int refusals = 0;
    while (const auto message = reader.next()) {
      QCOMPARE(message->mCommand, quint32(Log_On_Refused));
      ++refusals;
    }
    QCOMPARE(refusals, Simulator_Session::cMostRefusedLogOns);
    QTRY_VERIFY(rig.mServer.sessions().isEmpty());
  }

  void manyConnections() {
    Simulator_Rig rig;
    std::vector<std::unique_ptr<QTcpSocket>> sockets;
    for (int i = 0; i < 300; ++i) {
      sockets.push_back(std::make_unique<QTcpSocket>());
      sockets.back()->connectToHost(QHostAddress::LocalHost, rig.mServer.port());
      sockets.back()->write(QByteArray(100, static_cast<char>(i)));
    }
    QTRY_COMPARE(rig.mServer.sessions().size(), Simulator_Server::cMostSessions);
    sockets.clear();
    QTRY_VERIFY(rig.mServer.sessions().isEmpty());
    QVERIFY(rig.goOnline());
  }

  /// Who asks and does not read is not listened to for long; the others go on, and it gets all when it reads.
  void slowReader() {
    Simulator_Rig rig;
    for (int sub = 0; sub < 256; ++sub) {
      rig.controller().writeValue({1, 1, sub}, QByteArray(14, 'x'));
    }
    QTcpSocket slow;
    slow.setReadBufferSize(1024);
    logOn(slow, rig);
    constexpr int cAsked = 8000; // about 5 KB each
    QByteArray all;
    for (int i = 0; i < cAsked; ++i) {
      all += Network_Frame::pack(Values_Get, {});
    }
    slow.write(all);
    QVERIFY(rig.goOnline());
    QTest::qWait(300);
    QVERIFY(rig.mLink.isOnline());
    Simulator_Session* const session = rig.mServer.sessions().constFirst();
    QVERIFY2(session->waiting() < 2 * Simulator_Session::cMostWaiting, qPrintable(QString::number(session->waiting())));
    QVERIFY(session->waiting() > Simulator_Session::cMostWaiting);
    slow.setReadBufferSize(0);
    int replies = 0;
    Simulator_Frame_Reader reader;
    QTRY_VERIFY_WITH_TIMEOUT(([&] {
                               reader.append(slow.readAll());
                               while (const auto message = reader.next()) {
                                 replies += message->mCommand == Values_Sent ? 1 : 0;
                               }
                               return replies == cAsked;
                             }()),
                             20'000);
  }

  /// Telegrams for who does not read are kept up to a bound, then the connection ends.
  void deafReader() {
    Simulator_Rig rig;
    QTcpSocket slow;
    slow.setReadBufferSize(1024);
    logOn(slow, rig);
    QTRY_VERIFY(rig.mServer.sessions().size() == 1 && rig.mServer.sessions().constFirst()->isLoggedOn());
    qsizetype told = 0;
    for (; told < 2 * Simulator_Session::cMostTold && !rig.mServer.sessions().isEmpty(); told += 300) {
      rig.controller().writeValue({1, 1, 1}, QByteArray(255, 'x'));
    }
    QVERIFY(rig.mServer.sessions().isEmpty() && told >= Simulator_Session::cMostTold);
    QVERIFY(rig.goOnline());
  }

  /// An unread answer must not keep a connection, or a restart, for ever.
  void restartWithSlowReader() {
    Simulator_Rig rig;
    QTcpSocket slow;
    slow.setReadBufferSize(1024);
    logOn(slow, rig);
    QTRY_VERIFY(rig.mServer.sessions().size() == 1 && rig.mServer.sessions().constFirst()->isLoggedOn());
    rig.mServer.sessions().constFirst()->send(Values_Sent, QByteArray(20'000'000, 'x'));
    rig.mServer.restart();
    QTRY_VERIFY(rig.mServer.sessions().isEmpty());
  }

private:
  static Simulator_Options options(const QString& folder) {
    Simulator_Options options;
    options.mPort = 0;
    options.mDiscovers = false;
    options.mFolder = folder;
    return options;
  }

  static void logOn(QTcpSocket& socket, const Simulator_Rig& rig) {
    socket.connectToHost(QHostAddress::LocalHost, rig.mServer.port());
    DB_Log_On who;
    who.mUser = rig.connection().mUser;
    who.mPassword = rig.connection().mPassword;
    socket.write(Network_Frame::pack(Log_On, who.toData()));
  }
};

QTEST_GUILESS_MAIN(Simulator_Guard_Test)
#include "Simulator_Guard_Test.moc"
