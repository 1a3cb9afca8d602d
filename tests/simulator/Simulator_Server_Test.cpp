#include "db/Project_Image.h"
#include "net/Byte_Stream.h"
#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "net/Controller_Request.h"
#include "net/DB_Discovery_Answer.h"
#include "net/Network_Frame.h"
#include "net/Persistent_Values.h"
#include "net/Project_Transfer.h"
#include "simulator/Simulator_Backups.h"
#include "simulator/Simulator_Discovery.h"
#include "simulator/Simulator_Frame_Reader.h"
#include "tests/simulator/Simulator_Rig.h"

#include <QNetworkDatagram>
#include <QTcpSocket>
#include <QUdpSocket>
#include <QtTest>

using namespace Controller_Command;
using Group_Telegram = DB_Address_Network_Telegram;

class Simulator_Server_Test : public QObject {
  Q_OBJECT

private slots:
  void logOn() {
    Simulator_Rig rig;
    QVERIFY(rig.goOnline());
    QCOMPARE(rig.mSession.database().mControllerInformations.mName, QStringLiteral("RZ8800 Simulator"));
  }

  void logOnIsRefused() {
    Simulator_Rig rig;
    QString reason;
    connect(&rig.mLink, &Controller_Link::refused, this, [&reason](const QString& text) { reason = text; });
    DB_Connections::ITEM wrong = rig.connection();
    wrong.mPassword += u'x';
    rig.mLink.connectTo(wrong);
    QTRY_VERIFY(reason.contains(u"Benutzer oder Passwort ist falsch."));
    QTRY_COMPARE(rig.mServer.sessions().size(), 0);
  }

  /// A write comes back to everyone who is logged on, the sender included, and is kept; a read is answered.
  void values() {
    Simulator_Rig rig;
    QVERIFY(rig.goOnline());
    Controller_Link other(rig.mSession);
    other.connectTo(rig.connection());
    QTRY_VERIFY(other.isOnline());
    QList<Group_Telegram> heard;
    for (Main_Network_Client* const client : {&rig.client(), &other.client()}) {
      connect(client, qOverload<Group_Telegram>(&Main_Network_Client::onProcessNetworkRead), this,
              [&heard](const Group_Telegram& telegram) { heard.append(telegram); });
    }
    rig.client().sendTelegram(Group_Telegram::to({1, 2, 3}, Group_Telegram::Write, QByteArray(1, '\1')));
    QTRY_COMPARE(heard.size(), 2);
    QCOMPARE(heard.first().address(), Group_Address(1, 2, 3));
    QVERIFY(heard.first().mSourceArea != 0);
    other.client().sendTelegram(Group_Telegram::to({1, 2, 3}, Group_Telegram::Read, {}));
    QTRY_COMPARE(heard.size(), 3);
    QCOMPARE(heard.last().mService, quint32(Group_Telegram::Response));
    QCOMPARE(heard.last().mData, QByteArray(1, '\1'));
  }

  /// A project arrives, comes back equal, and is kept over a restart; so are values that were stored, and only those.
  void projectAndRestart() {
    const QTemporaryDir folder;
    Simulator_Options options;
    options.mFolder = folder.filePath(QStringLiteral("data"));
    Simulator_Rig rig(options);
    DB_Address_Sub_Group* const light = rig.addAddress({1, 2, 3}, QStringLiteral("Licht"));
    light->mDpt = {1, 1};
    QVERIFY(rig.mSession.database().ressourceWriteRaw(QStringLiteral("plan.png"), "PNG"));
    QVERIFY(rig.goOnline());
    for (int generation = 1; generation <= 2; ++generation) {
      Project_Transfer write(rig.client(), rig.mSession, {});
      write.start();
      QTRY_VERIFY(write.isFinished());
      QCOMPARE(write.errorText(), QString());
      QCOMPARE(write.generation(), generation);
    }
    QCOMPARE(rig.controller().values().value({1, 2, 3}), QByteArray(1, '\0'));
    QCOMPARE(rig.controller().project().image(), Project_Image::whole(rig.mSession.database())->toBytes());

    rig.controller().writeValue({1, 2, 3}, QByteArray(1, '\1'));
    QCOMPARE(ask(rig, Persistent_Store, {}, Persistent_Stored), QByteArray());
    rig.controller().writeValue({1, 2, 3}, QByteArray(1, '\0'));
    QCOMPARE(ask(rig, Restart, {}, Restarting), QByteArray());
    QTRY_VERIFY(!rig.mLink.isOnline());
    QTRY_VERIFY(rig.goOnline());
    QCOMPARE(rig.controller().values().value({1, 2, 3}), QByteArray(1, '\1'));
    QCOMPARE(rig.controller().project().header().mGeneration, 2);
    // Another process would find the same.
    options.mFolder = folder.path();
    QVERIFY(QFile::copy(folder.filePath(QStringLiteral("data/project.bin")),
                        folder.filePath(QStringLiteral("project.bin"))));
    Simulator_Controller again(options);
    QCOMPARE(again.project().image(), rig.controller().project().image());
  }

  void abandonedWrite_data() {
    QTest::addColumn<QList<int>>("commands");
    QTest::addColumn<QString>("refusal");
    const QString nothing = QStringLiteral("Es wird kein Projekt übertragen.");
    QTest::newRow("start without begin") << QList<int>{15} << nothing;
    QTest::newRow("record without begin") << QList<int>{103} << nothing;
    QTest::newRow("no records") << QList<int>{14, 15} << QStringLiteral("Das übertragene Projekt ist unvollständig.");
    QTest::newRow("aborted") << QList<int>{14, 7009, 15} << nothing;
    QTest::newRow("program without stream")
        << QList<int>{7002} << QStringLiteral("Das Programm ist nicht vollständig angekommen.");
    QTest::newRow("start of no program") << QList<int>{7004} << QStringLiteral("Es ist kein Programm übertragen.");
    QTest::newRow("unknown command") << QList<int>{4711}
                                     << QStringLiteral("Die Steuerung kennt den Befehl 4711 nicht.");
    QTest::newRow("no such backup") << QList<int>{1348} << QStringLiteral("Diese Sicherung gibt es nicht.");
  }

  /// What cannot be done is refused, and the controller runs on.
  void abandonedWrite() {
    QFETCH(QList<int>, commands);
    QFETCH(QString, refusal);
    Simulator_Rig rig;
    QVERIFY(rig.goOnline());
    for (const int command : commands.first(commands.size() - 1)) {
      rig.client().sendCommand(static_cast<quint32>(command));
    }
    Controller_Request request(rig.client(), static_cast<quint32>(commands.last()), {}, 1, {});
    request.start();
    QTRY_VERIFY(request.isFinished());
    QCOMPARE(request.errorText(), refusal);
    QVERIFY(!rig.controller().isStopped());
  }

  void lostLinkInWrite() {
    Simulator_Rig rig;
    QVERIFY(rig.goOnline());
    rig.client().sendCommand(Project_Begin);
    QTRY_VERIFY(rig.controller().isStopped());
    rig.mLink.disconnectLink();
    QTRY_VERIFY(!rig.controller().isStopped());
  }

  void beforeLogOn() {
    Simulator_Rig rig;
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, rig.mServer.port());
    socket.write(Network_Frame::pack(Information, {}) + Network_Frame::pack(Connection_Check, "127.0.0.1"));
    Simulator_Frame_Reader reader;
    QList<quint32> commands;
    QTRY_VERIFY(([&] {
      reader.append(socket.readAll());
      while (const auto message = reader.next()) {
        commands.append(message->mCommand);
      }
      return commands.size() == 2;
    }()));
    QCOMPARE(commands, QList<quint32>({Refused, Connection_Check_Reply}));
    socket.write(Network_Frame::pack(Network_Message::make(Log_On, 1'000'000), {}));
    QTRY_COMPARE(socket.state(), QAbstractSocket::UnconnectedState);
  }

  void backups() {
    Simulator_Rig rig;
    QVERIFY(rig.goOnline());
    rig.controller().writeValue({1, 2, 3}, "a");
    DB_Backup_List made;
    made.setData(ask(rig, Backup_Make, "vorher", Backup_Made));
    QCOMPARE(made.mBackups.size(), std::size_t(1));
    const QByteArray id = made.mBackups.front().mId.toUtf8();
    rig.controller().writeValue({1, 2, 3}, "b");
    QCOMPARE(ask(rig, Backup_Restore, id + "#project", Backup_Restored), QByteArray());
    QCOMPARE(rig.controller().values().count(), 0); // the project of then knew no addresses
    QCOMPARE(ask(rig, Backup_Delete, id, Backup_Deleted), QByteArray());
    DB_Backup_List left;
    left.setData(ask(rig, Backup_List, {}, Backup_List_Reply));
    QVERIFY(left.mBackups.empty());
  }

  void scripts_data() {
    QTest::addColumn<QByteArray>("script");
    QTest::addColumn<QString>("error");
    QTest::addColumn<QString>("line");
    const auto row = [](const char* name, const char* script, const char* error, const char* line) {
      QTest::newRow(name) << QByteArray(script) << QString::fromUtf8(error) << QString::fromUtf8(line);
    };
    row("prints", "function onCreate() sys_debug_print('a: ', 1 + 1) end", "", "a: 2");
    row("callback", "function onTimerEvent100ms() sys_debug_print('tick') end", "", "tick");
    row("values", "sys_set_value('1/2/3', 1, true) sys_debug_print(sys_get_value('1/2/3'))", "", "1");
    row("alias", "sys_alias('E1','Taster') sys_set_value('E1', 7) sys_debug_print(sys_get_value('Taster'))", "", "7");
    row("global", "function onGlobalChanged(id, v) sys_debug_print(id, v) end sys_set_global_value('a','b')", "", "ab");
    row("missing function", "sys_send_mail('a','b','c','')", "", "Diese Funktion hat der Simulator nicht.");
    row("syntax", "if", "Zeile 1", "");
    row("endless", "while true do end", "rechnet zu lange", "");
    row("endless and catching", "while true do pcall(function() while true do end end) end", "rechnet zu lange", "");
    row("memory", "s = 'x' while true do s = s .. s end", "not enough memory", "");
    row("memory in few bytes", "t = {} while pcall(table.insert, t, {}) do end", "not enough memory", "");
    row("long repetition", "string.rep('', 1 << 62)", "not enough memory", "");
    row("long pattern", "('a'):rep(30):find(('a-'):rep(20) .. 'b')", "Das Muster ist", "");
    row("long table", "table.insert(setmetatable({}, {__len = function() return 1 << 60 end}), 1, 1)", "Länge selbst",
        "");
    row("long move", "table.move({}, 1, 1 << 60, 2)", "zu lang", "");
    row("finaliser", "setmetatable({}, {__gc = function() while true do end end})", "__gc gibt es", "");
    row("endless handler", "xpcall(error, function() while true do end end)", "rechnet zu lange", "");
    row("deep", "function f() return 1 + f() end f()", "not enough memory", "");
    row("error in a text", "sys_alias(setmetatable({}, {__tostring = function() error('nein') end}), 'a')", "nein", "");
    row("patterns", "for k in ('a=1;b=2'):gmatch('%w+') do sys_debug_print(k) end", "", "a1b2");
    row("caught", "sys_debug_print(xpcall(error, function(e) return e .. '!' end, 'x'))", "", "falsex!");
    row("endless answers", "function onEvent() sys_set_value('1/2/3', 1, true) end sys_set_value('1/2/3', 1, true)", "",
        "");
    row("no files", "io.open('/etc/passwd')", "global 'io'", "");
    row("no bytecode", "load('\\27Lua')", "global 'load'", "");
    row("error in callback", "function onTimerEvent100ms() error('x') end", "", "Das Script ist angehalten");
  }

  void scripts() {
    QFETCH(QByteArray, script);
    QFETCH(QString, error);
    QFETCH(QString, line);
    Simulator_Rig rig;
    QVERIFY(rig.goOnline());
    QString written;
    const QByteArray guid = QUuid::createUuid().toRfc4122();
    connect(&rig.client(), qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), &rig.mLink,
            [&written](const Network_Message* message, const uchar* data) {
              if (message->mCommand == Script_Console) {
                written += QString::fromUtf8(QByteArrayView(data, message->mDataLength).sliced(24));
              }
            });
    Controller_Request request(rig.client(), Script_Run, guid + script, Script_Run_Reply, {});
    request.start();
    QTRY_VERIFY(request.isFinished());
    QVERIFY2(request.reply().startsWith(guid), qPrintable(request.errorText()));
    const QString told = QString::fromUtf8(request.reply().sliced(guid.size()));
    QVERIFY2(error.isEmpty() ? told.isEmpty() : told.contains(error), qPrintable(told));
    QTRY_VERIFY2(written.contains(line), qPrintable(written));
  }

  void relay() {
    Simulator_Options options;
    options.mIsRelay = true;
    options.mRelayName = QStringLiteral("haus");
    Simulator_Rig rig(options);
    QVERIFY(rig.mServer.controller().isLogOnRight(rig.connection().mUser, rig.connection().mPassword));
    QTcpSocket socket;
    socket.connectToHost(QHostAddress::LocalHost, rig.mServer.port());
    DB_Log_On who;
    who.mUser = rig.connection().mUser;
    who.mPassword = rig.connection().mPassword;
    for (const auto& [command, payload] :
         {std::pair(Relay_Dns_Check, QByteArray("haus")), std::pair(Relay_Check, QByteArray("haus")),
          std::pair(Relay_Check, QByteArray("hof")), std::pair(Log_On, who.toData()),
          std::pair(Relay_Log_On, who.toData())}) {
      socket.write(Network_Frame::pack(command, payload));
    }
    QList<QByteArray> told;
    Simulator_Frame_Reader reader;
    QTRY_VERIFY(([&] {
      reader.append(socket.readAll());
      while (const auto message = reader.next()) {
        told.append(QByteArray::number(message->mCommand) + ' ' + message->mPayload.left(2).simplified());
      }
      return told.size() == 5;
    }()));
    told.last().truncate(2);
    QCOMPARE(told, QList<QByteArray>({"1002 ok", QByteArray("1009 ") + '\0', "1009 Be", "12 Hi", "11"}));
  }

  void cycle() {
    Simulator_Rig rig;
    for (const int sub : {1, 2, 3}) {
      rig.addAddress({1, 1, sub}, QString::number(sub))->mDpt = {1, 1};
    }
    QVERIFY(rig.goOnline());
    Project_Transfer write(rig.client(), rig.mSession, {});
    write.start();
    QTRY_VERIFY(write.isFinished());
    QList<int> heard;
    connect(&rig.client(), qOverload<Group_Telegram>(&Main_Network_Client::onProcessNetworkRead), this,
            [&heard](const Group_Telegram& telegram) {
              heard.append(telegram.address().sub() * 10 + telegram.mData.at(0));
            });
    QCOMPARE(ask(rig, Cycle, "1", Cycle_Reply), QByteArray());
    QTRY_VERIFY(heard.size() >= 6);
    QCOMPARE(heard.first(6), QList<int>({11, 21, 31, 10, 20, 30}));
    QCOMPARE(ask(rig, Cycle, "0", Cycle_Reply), QByteArray());
    const qsizetype before = heard.size();
    QTest::qWait(30);
    QCOMPARE(heard.size(), before);
    QVERIFY(ask(rig, Cycle, "-1", Cycle_Reply).contains("Periode"));
  }

  /// What is told of numbers reaches the partner, and only one on this machine.
  void numbers() {
    Simulator_Rig rig;
    Simulator_Rig partner;
    QVERIFY(rig.goOnline());
    QCOMPARE(ask(rig, Number_Set, "7", Number_Set_Reply), QByteArray("7\0", 2));
    QVERIFY(ask(rig, Number_Set, "256", Number_Set_Reply).contains("1 bis 255"));
    const QByteArray address = "127.0.0.1:" + QByteArray::number(partner.mServer.port());
    QCOMPARE(ask(rig, Partner_Number_Set, address + "#9", Partner_Number_Set_Reply), address + QByteArray("#9\0", 3));
    QCOMPARE(partner.controller().settings().mNumber, 9);
    QCOMPARE(ask(rig, Partner_Number_Clear, address, Partner_Number_Clear_Reply), QByteArray());
    QCOMPARE(partner.controller().settings().mNumber, 0);
    QVERIFY(ask(rig, Partner_Number_Set, "192.0.2.1#9", Partner_Number_Set_Reply).contains("nicht erreichbar"));
    QCOMPARE(rig.controller().settings().mNumber, 7);
  }

  /// Values that nothing could keep are none; the others are there again when they are taken back.
  void persistentValues() {
    Simulator_Rig rig;
    QVERIFY(rig.goOnline());
    for (const Group_Telegram& telegram : {Group_Telegram::to({1, 2, 3}, Group_Telegram::Write, "a"),
                                           Group_Telegram::to({1, 2, 4}, Group_Telegram::Write, {}),
                                           Group_Telegram::to({32, 0, 0}, Group_Telegram::Write, "b")}) {
      rig.client().sendTelegram(telegram);
    }
    QCOMPARE(ask(rig, Persistent_Store, {}, Persistent_Stored), QByteArray());
    QCOMPARE(rig.controller().values().persistent().toBytes(), QByteArray("1/2/3;61\n"));
    DB_Backup_List made;
    made.setData(ask(rig, Backup_Make, {}, Backup_Made));
    const QByteArray values = "1/2/3;62\n1/2/5;63\n";
    const QByteArray begin = Byte_Stream::announce(values).toData();
    rig.client().sendMessage(Persistent_Send_Begin, static_cast<quint32>(begin.size()), begin.constData());
    QCOMPARE(ask(rig, Persistent_Send_Data, values, Persistent_Taken), QByteArray("2\0", 2));
    QCOMPARE(rig.controller().values().persistent().toBytes(), values);
    QVERIFY(ask(rig, Backup_Restore, "../x#all", Backup_Restored).contains("gibt es nicht"));
    QCOMPARE(ask(rig, Backup_Restore, made.mBackups.front().mId.toUtf8() + "#persistent", Backup_Restored),
             QByteArray());
    QCOMPARE(rig.controller().values().count(), 0); // without a program there are no addresses
  }

  void remoteSearch() {
    Simulator_Options options;
    const Simulator_Controller usual(options);
    options.mAnswersRemoteSearch = true;
    const Simulator_Controller open(options);
    const QHostAddress other(QStringLiteral("192.0.2.1"));
    QVERIFY(!Simulator_Discovery(usual).isAnswered(other) && Simulator_Discovery(open).isAnswered(other));
    QVERIFY(Simulator_Discovery(usual).isAnswered(QHostAddress(QHostAddress::LocalHost)));
  }

  void search() {
    Simulator_Options options;
    options.mDiscoveryPort = 0;
    Simulator_Controller controller(options);
    Simulator_Discovery discovery(controller);
    QVERIFY(discovery.listen(4711));
    QUdpSocket studio;
    QVERIFY(studio.bind(QHostAddress(QHostAddress::AnyIPv4), discovery.port(),
                        QAbstractSocket::ShareAddress | QAbstractSocket::ReuseAddressHint));
    studio.writeDatagram(DB_Discovery_Answer::cSearch.toByteArray(), QHostAddress(QStringLiteral("127.255.255.255")),
                         discovery.port());
    std::optional<DB_Discovery_Answer> answer;
    QTRY_VERIFY(([&] {
      while (studio.hasPendingDatagrams()) {
        answer = DB_Discovery_Answer::parse(studio.receiveDatagram().data());
      }
      return answer.has_value();
    }()));
    QCOMPARE(answer->mPort, 4711);
  }

private:
  /// The payload of the reply to a request.
  static QByteArray ask(Simulator_Rig& rig, quint32 command, const QByteArray& payload, quint32 reply) {
    Controller_Request request(rig.client(), command, payload, reply, {});
    request.start();
    const bool isFinished = Simulator_Rig::waitFor([&] { return request.isFinished(); }, 3000);
    return isFinished && request.errorText().isEmpty() ? request.reply() : request.errorText().toUtf8() + '?';
  }
};

QTEST_GUILESS_MAIN(Simulator_Server_Test)
#include "Simulator_Server_Test.moc"
