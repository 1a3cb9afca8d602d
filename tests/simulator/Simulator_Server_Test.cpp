#include "net/Controller_Command.h"
#include "net/Controller_Records.h"
#include "net/Controller_Request.h"
#include "tests/simulator/Simulator_Rig.h"

#include <QtTest>

using Telegram = DB_Address_Network_Telegram;

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
    QList<Telegram> heard;
    for (Main_Network_Client* const client : {&rig.client(), &other.client()}) {
      connect(client, qOverload<Telegram>(&Main_Network_Client::onProcessNetworkRead), this,
              [&heard](const Telegram& telegram) { heard.append(telegram); });
    }
    rig.client().sendTelegram(Telegram::to({1, 2, 3}, Telegram::Write, QByteArray(1, '\1')));
    QTRY_COMPARE(heard.size(), 2);
    QCOMPARE(heard.first().address(), Group_Address(1, 2, 3));
    QVERIFY(heard.first().mSourceArea != 0);
    other.client().sendTelegram(Telegram::to({1, 2, 3}, Telegram::Read, {}));
    QTRY_COMPARE(heard.size(), 3);
    QCOMPARE(heard.last().mService, quint32(Telegram::Response));
    QCOMPARE(heard.last().mData, QByteArray(1, '\1'));
  }
};

QTEST_GUILESS_MAIN(Simulator_Server_Test)
#include "Simulator_Server_Test.moc"
