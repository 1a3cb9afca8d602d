#include "net/Controller_Command.h"
#include "net/Main_Network_Client.h"
#include "net/Script_Debug.h"
#include "net/Script_Message.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"

#include <QSignalSpy>

namespace {

using namespace Qt::StringLiterals;

const QByteArray cGuid = QByteArray::fromHex("00112233445566778899aabbccddeeff");

} // namespace

/// Scripts on the controller: handed over, told of, several at once.
class Script_Debug_Test : public QObject {
  Q_OBJECT

private slots:
  void init() {
    mRig = std::make_unique<Session_Rig>();
    mPeer = std::make_unique<Scripted_Peer>();
    mClient = std::make_unique<Main_Network_Client>(mRig->mSession);
    mScripts = std::make_unique<Script_Debug>(*mClient);
    const DB_Connections::ITEM connection = mPeer->connection();
    mClient->connectToController(&connection);
    QTRY_VERIFY(mClient->isConnected() && mPeer->isConnected());
  }

  void cleanup() {
    mScripts.reset();
    mClient.reset();
    mPeer.reset();
    mRig.reset();
  }

  void told_data() {
    QTest::addColumn<quint32>("command");
    QTest::addColumn<QByteArray>("payload");
    QTest::addColumn<QString>("told"); // empty: the payload is too short for what it should hold
    const QByteArray second = QByteArray::fromHex("e803000000000000");
    const quint32 line = Controller_Command::Script_Console;
    const quint32 variable = Controller_Command::Script_Variable;
    QTest::newRow("line") << line << cGuid + second + "Licht ä" << u"1000 Licht ä"_s;
    QTest::newRow("empty line") << line << cGuid + second << u"1000 "_s;
    QTest::newRow("line without time") << line << cGuid + second.first(7) << QString();
    QTest::newRow("line of nobody") << line << QByteArray() << QString();
    QTest::newRow("variable") << variable
                              << cGuid + QByteArray("temp\0"
                                                    "21,5",
                                                    9)
                              << u"temp=21,5"_s;
    QTest::newRow("variable without value") << variable << cGuid + QByteArray("temp\0", 5) << u"temp="_s;
    QTest::newRow("the zero byte of the GUID ends no name") << variable << cGuid + "temp" << QString();
    QTest::newRow("variable of half a block") << variable << cGuid.first(15) << QString();
  }
  void told() {
    QFETCH(quint32, command);
    QFETCH(QByteArray, payload);
    QFETCH(QString, told);
    QStringList texts;
    connect(mScripts.get(), &Script_Debug::lineWritten, this,
            [&](const QUuid&, const QDateTime& at, const QString& text) {
              texts.append(QString::number(at.toMSecsSinceEpoch()) + u' ' + text);
            });
    connect(mScripts.get(), &Script_Debug::variableTold, this,
            [&](const QUuid& block, const QString& name, const QString& value) {
              QCOMPARE(block.toRfc4122(), cGuid);
              texts.append(name + u'=' + value);
            });
    mPeer->send(command, payload);
    mPeer->send(Controller_Command::Script_Console, cGuid + QByteArray(8, '\0') + "Ende");
    QTRY_VERIFY(texts.contains(u"0 Ende"_s));
    QCOMPARE(texts.first(), told.isEmpty() ? u"0 Ende"_s : told);
  }

  /// Each reply goes to its own block, in whatever order they come, and the reason with it.
  void severalRunAtOnce() {
    QHash<QUuid, QString> results;
    connect(mScripts.get(), &Script_Debug::ran, this,
            [&](const QUuid& block, const QString& error) { results.insert(block, error); });
    const QUuid first = QUuid::createUuid();
    const QUuid second = QUuid::createUuid();
    mScripts->run(first, u"x = 1"_s);
    mScripts->run(second, u"y ="_s);
    QTRY_COMPARE(mPeer->count(Controller_Command::Script_Run), 2);
    QCOMPARE(mPeer->last(Controller_Command::Script_Run), second.toRfc4122() + "y =");
    mPeer->send(Controller_Command::Script_Run_Reply, Script_Message::ofBlock(second, u"Zeile 1"_s));
    QTRY_COMPARE(results.size(), 1);
    QCOMPARE(results.value(second), u"Zeile 1"_s);
    mPeer->send(Controller_Command::Script_Run_Reply, Script_Message::ofBlock(first));
    QTRY_COMPARE(results.size(), 2);
    QCOMPARE(results.value(first), QString());
  }

  void withoutLinkItSaysSo() {
    QSignalSpy ran(mScripts.get(), &Script_Debug::ran);
    mScripts->run(QUuid::createUuid(), u"x = 1"_s);
    mClient->disconnectFromController(); // on its way
    mScripts->run(QUuid::createUuid(), u"x = 1"_s);
    QTRY_COMPARE(ran.size(), 2);
    for (const QList<QVariant>& arguments : ran) {
      QCOMPARE(arguments.at(1).toString(), u"Keine Verbindung zur Steuerung"_s);
    }
  }

private:
  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Scripted_Peer> mPeer;
  std::unique_ptr<Main_Network_Client> mClient;
  std::unique_ptr<Script_Debug> mScripts;
};

QTEST_GUILESS_MAIN(Script_Debug_Test)
#include "Script_Debug_Test.moc"
