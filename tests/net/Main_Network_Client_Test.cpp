#include "net/Controller_Command.h"
#include "net/Main_Network_Client.h"
#include "net/Telegram_Batch.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Flood.h"
#include "tests/net/Scripted_Peer.h"

#include <QSignalSpy>

namespace {

using Telegram = DB_Address_Network_Telegram;

QByteArray telegramFrame(int number, const QByteArray& data = QByteArray(1, '\1')) {
  const Group_Address address(number % 32, number / 32 % 8, number / 256 % 256);
  Telegram telegram = Telegram::to(address, Telegram::Write, data);
  telegram.mTime = static_cast<quint32>(number);
  telegram.mMain += 1;
  return Network_Frame::pack(Controller_Command::Telegram, telegram.toBytes());
}

/// A client with a peer, and all that the client tells in one list: "+", "-", "5:text" and "t1/2/3".
class Link_Rig {
public:
  Link_Rig() {
    QObject::connect(mClient, &Main_Network_Client::onProcessNetworkConnect, mClient,
                     [this](bool isUp) { note(isUp ? QStringLiteral("+") : QStringLiteral("-")); });
    QObject::connect(mClient, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), mClient,
                     [this](Network_Message* message, uchar* data) {
                       note(QStringLiteral("%1:%2").arg(
                           QString::number(message->mCommand),
                           data ? QString::fromLatin1(reinterpret_cast<char*>(data), message->mDataLength)
                                : QStringLiteral("null")));
                     });
    QObject::connect(mClient, qOverload<Telegram>(&Main_Network_Client::onProcessNetworkRead), mClient,
                     [this](const Telegram& telegram) {
                       note(QStringLiteral("t%1/%2/%3").arg(telegram.mMain).arg(telegram.mMiddle).arg(telegram.mSub));
                     });
  }
  ~Link_Rig() { delete mClient; }
  Q_DISABLE_COPY_MOVE(Link_Rig)

  [[nodiscard]] bool dial() {
    const DB_Connections::ITEM item = mPeer.connection();
    mClient->connectToController(&item);
    const bool isUp = QTest::qWaitFor([this] { return mClient->isConnected() && mPeer.isConnected(); });
    mTold.clear();
    return isUp;
  }
  [[nodiscard]] bool hears(const QString& told) {
    return QTest::qWaitFor([&] { return mTold.contains(told); });
  }
  void note(const QString& told) {
    mTold.append(told);
    if (mOnTold) {
      mOnTold(told);
    }
  }

  Session_Rig mSession;
  Scripted_Peer mPeer;
  QPointer<Main_Network_Client> mClient = new Main_Network_Client(mSession.mSession);
  QStringList mTold;
  std::function<void(const QString&)> mOnTold;
};

} // namespace

class Main_Network_Client_Test : public QObject {
  Q_OBJECT

private slots:
  void dialsAndReports() {
    Link_Rig rig;
    QVERIFY(!rig.mClient->sendCommand(5));
    DB_Connections::ITEM item = rig.mPeer.connection();
    item.mAddress = QStringLiteral(" tcp://%1/ ").arg(item.mAddress);
    QVERIFY(rig.mClient->connectToController(&item));
    QVERIFY(rig.mTold.startsWith(QStringLiteral("-")) && !rig.mTold.contains(QStringLiteral("+")));
    QVERIFY(rig.mClient->isWanted() && !rig.mClient->isConnected());
    QVERIFY(rig.hears(QStringLiteral("+")));
    QCOMPARE(rig.mClient->connection().mAddress, item.mAddress);

    QVERIFY(rig.mClient->sendCommand(5));
    QVERIFY(rig.mClient->sendText(58, QStringLiteral("abc")));
    QTRY_COMPARE(rig.mPeer.mMessages.size(), 2);
    QCOMPARE(rig.mPeer.mMessages.at(0).mCommand, 5U);
    QCOMPARE(rig.mPeer.mMessages.at(0).mData, QByteArray());
    QCOMPARE(rig.mPeer.mMessages.at(1).mData, QByteArray("abc\0", 4));

    QVERIFY(!rig.mClient->connectToController(nullptr));
    QVERIFY(!rig.mClient->isWanted() && !rig.mClient->isConnected());
    QCOMPARE(rig.mTold.constLast(), QStringLiteral("-"));
    QVERIFY(!rig.mClient->reconnectIfLost());
  }

  void relay() {
    Link_Rig rig;
    rig.mClient->setRelay(QStringLiteral("127.0.0.1"), rig.mPeer.port());
    DB_Connections::ITEM item;
    item.mKind = 1;
    item.mAddress = QStringLiteral("nicht.gewaehlt.example");
    QVERIFY(rig.mClient->connectToController(&item));
    QVERIFY(rig.hears(QStringLiteral("+")));
    QCOMPARE(rig.mClient->connection().mRelayHost, QStringLiteral("127.0.0.1"));
    item.mKind = 0;
    item.mRelayHost = QStringLiteral("nicht.gewaehlt.example");
    QVERIFY(rig.mClient->connectToRelay(&item));
    QVERIFY(QTest::qWaitFor([&] { return rig.mClient->isConnected() && rig.mPeer.mAccepted == 2; }));
    QCOMPARE(rig.mClient->connection().mAddress, item.mAddress);
    QVERIFY(rig.mClient->connectToRelayServer());
    QVERIFY(QTest::qWaitFor([&] { return rig.mClient->isConnected() && rig.mPeer.mAccepted == 3; }));
    QCOMPARE(rig.mClient->connection().mAddress, QString());
    QVERIFY(rig.mClient->isRelayService());
  }

  void watchdog() {
    Link_Rig rig;
    DB_Connections::ITEM item = rig.mPeer.connection();
    const QString there = item.mAddress;
    item.mAddress = Scripted_Peer::deadAddress();
    QVERIFY(rig.mClient->connectToController(&item));
    QVERIFY(QTest::qWaitFor([&] { return !rig.mClient->lastErrorText().isEmpty(); }));
    QVERIFY2(rig.mClient->lastErrorText().contains(item.mAddress.section(u':', 1)),
             qPrintable(rig.mClient->lastErrorText()));
    auto* const timer = rig.mClient->findChild<QTimer*>();
    QVERIFY(timer && timer->isActive());
    QCOMPARE(timer->interval(), 10'000);
    // The stored record, its own one, is dialled again; it must not be lost on the way.
    rig.mTold.clear();
    QVERIFY(QMetaObject::invokeMethod(rig.mClient, "onTimeout"));
    QCOMPARE(rig.mClient->connection().mAddress, item.mAddress);
    QCOMPARE(rig.mClient->connection().mPassword, item.mPassword);
    QVERIFY(rig.mClient->isWanted());
    QVERIFY(!rig.mTold.isEmpty() && !rig.mTold.contains(QStringLiteral("+")));
    item.mAddress = there;
    QVERIFY(rig.mClient->connectToController(&item));
    QVERIFY(rig.hears(QStringLiteral("+")));
    // When connected the tick does nothing; when the peer closes the link nobody dials.
    QVERIFY(QMetaObject::invokeMethod(rig.mClient, "onTimeout"));
    QVERIFY(rig.mClient->isConnected());
    rig.mTold.clear();
    rig.mPeer.close();
    QVERIFY(rig.hears(QStringLiteral("-")));
    QVERIFY(!rig.mClient->isWanted() && !timer->isActive());
  }

  void receives_data() {
    QTest::addColumn<QList<QByteArray>>("segments");
    QTest::addColumn<QStringList>("told");
    const auto pack = [](quint32 command, const QByteArray& data) { return Network_Frame::pack(command, data); };
    const QByteArray end = pack(9, "ende");
    const QString told = QStringLiteral("9:ende");
    QTest::newRow("header alone") << QList{pack(5, {}) + end} << QStringList{"5:null", told};
    QTest::newRow("header alone is no telegram") << QList{pack(13, {}) + end} << QStringList{"13:null", told};
    QTest::newRow("several in one segment")
        << QList{pack(5, "a") + pack(6, "b") + end} << QStringList{"5:a", "6:b", told};
    const QByteArray one = pack(5, "abcdefghijklmnopqrstuvwxyz");
    QTest::newRow("pause inside the header")
        << QList{one.first(7), one.mid(7) + end} << QStringList{"5:abcdefghijklmnopqrstuvwxyz", told};
    QTest::newRow("pause inside the payload")
        << QList{one.first(40), one.mid(40) + end} << QStringList{"5:abcdefghijklmnopqrstuvwxyz", told};
    Network_Message wrong = Network_Message::make(5, 4);
    wrong.mMagic = 1;
    QTest::newRow("wrong magic drops what is behind it")
        << QList{Network_Frame::pack(wrong, "abcd") + pack(6, "b"), end} << QStringList{told};
    wrong = Network_Message::make(5, 4);
    wrong.mPaddedLength = 0xfffffff0;
    QTest::newRow("length that cannot be") << QList{Network_Frame::pack(wrong, "abcd"), end} << QStringList{told};
    QTest::newRow("telegram") << QList{telegramFrame(0) + end} << QStringList{"t1/0/0", told};
    Telegram telegram = Telegram::to(Group_Address(1, 2, 3), Telegram::Write, {});
    QTest::newRow("45 bytes are a telegram")
        << QList{pack(13, telegram.toBytes()) + end} << QStringList{"t1/2/3", told};
    QTest::newRow("44 bytes are none") << QList{pack(13, telegram.toBytes().first(44)) + end} << QStringList{told};
    QTest::newRow("longer than a telegram")
        << QList{pack(13, telegram.toBytes() + QByteArray(400, 'x')) + end} << QStringList{"t1/2/3", told};
    telegram.mMain = telegram.mMiddle = telegram.mSub = 0;
    QTest::newRow("no address") << QList{pack(13, telegram.toBytes()) + end} << QStringList{told};
    QByteArray batch;
    for (const int sub : {1, 0, 2}) {
      Telegram_Batch::append(batch, Telegram::to(Group_Address(0, 0, sub), Telegram::Write, "x"));
    }
    QTest::newRow("batch") << QList{pack(36, batch) + end} << QStringList{"t0/0/1", "t0/0/2", told};
    QTest::newRow("batch of nothing") << QList{pack(36, QByteArray(20, '\0')) + end} << QStringList{told};
  }
  void receives() {
    QFETCH(QList<QByteArray>, segments);
    QFETCH(QStringList, told);
    Link_Rig rig;
    QVERIFY(rig.dial());
    for (const QByteArray& segment : segments) {
      rig.mPeer.sendRaw(segment);
      QTest::qWait(80); // longer than the wait for missing bytes
    }
    QVERIFY2(rig.hears(told.constLast()), qPrintable(rig.mTold.join(u' ')));
    QCOMPARE(rig.mTold, told);
  }

  void batchTelegram() {
    Link_Rig rig;
    QVERIFY(rig.dial());
    Telegram last;
    connect(rig.mClient, qOverload<Telegram>(&Main_Network_Client::onProcessNetworkRead), this,
            [&](const Telegram& telegram) { last = telegram; });
    QByteArray batch;
    Telegram_Batch::append(batch, Telegram::to(Group_Address(1, 2, 3), Telegram::Response, "x"));
    rig.mPeer.send(36, batch);
    QVERIFY(rig.hears(QStringLiteral("t1/2/3")));
    QCOMPARE(last.mKind, 2U);
    QCOMPARE(last.mIsValid, quint8(1));
    QCOMPARE(last.mSourceArea | last.mSourceLine | last.mSourceDevice, 0U);
    QCOMPARE(last.mService, quint32(Telegram::Response));
    QCOMPARE(last.mData, QByteArray("x"));
  }

  void longMessage() {
    Link_Rig rig;
    QVERIFY(rig.dial());
    const qint64 length = 8 * Main_Network_Client::cReadBuffer + 5;
    qint64 came = 0;
    connect(rig.mClient, qOverload<Network_Message*, uchar*>(&Main_Network_Client::onProcessNetworkRead), this,
            [&](Network_Message* message, uchar* data) { came += data ? message->mDataLength : 0; });
    rig.mPeer.send(5, QByteArray(length, 'a'));
    rig.mPeer.send(9);
    QVERIFY(rig.hears(QStringLiteral("9:null")));
    QCOMPARE(came, length);
    QVERIFY(rig.mClient->socket()->readBufferSize() <= Main_Network_Client::cReadBuffer + 1);
  }

  void yieldsOnEvery152nd() {
    Link_Rig rig;
    QVERIFY(rig.dial());
    // What is posted at the first telegram is served at a yield.
    QList<int> yields;
    int delivered = 0;
    connect(rig.mClient, qOverload<Telegram>(&Main_Network_Client::onProcessNetworkRead), this, [&] {
      ++delivered;
      QMetaObject::invokeMethod(
          rig.mClient,
          [&] {
            if (yields.isEmpty() || yields.constLast() != delivered) {
              yields.append(delivered);
            }
          },
          Qt::QueuedConnection);
    });
    // Counted across passes: the first 100 come in one of their own. One without address does not count.
    QByteArray bytes;
    for (int number = 0; number < 100; ++number) {
      bytes.append(telegramFrame(number));
    }
    rig.mPeer.sendRaw(bytes + Network_Frame::pack(13, QByteArray(45, '\0')));
    QTRY_COMPARE(delivered, 100);
    QTest::qWait(20);
    bytes.clear();
    for (int number = 100; number < 400; ++number) {
      bytes.append(telegramFrame(number));
    }
    rig.mPeer.sendRaw(bytes + Network_Frame::pack(9, {}));
    QVERIFY(rig.hears(QStringLiteral("9:null")));
    QTest::qWait(20);
    QCOMPARE(yields, (QList<int>{100, 152, 304, 400}));
  }

  /// A box that opens in what was queued during a delivery does not keep the link from delivering on.
  void queuesForAfterwards() {
    Link_Rig rig;
    QVERIFY(rig.dial());
    QStringList called;
    rig.mOnTold = [&](const QString& told) {
      if (told != QStringLiteral("t1/0/0")) {
        return;
      }
      QObject gone;
      rig.mClient->queue(&gone, [&] { called.append(QStringLiteral("gone")); });
      rig.mClient->queue(rig.mClient, [&] {
        called.append(QStringLiteral("%1 telegrams").arg(rig.mTold.size()));
        rig.mPeer.send(9);
        called.append(rig.hears(QStringLiteral("9:null")) ? QStringLiteral("heard") : QStringLiteral("held up"));
      });
      rig.mClient->queue(rig.mClient, [&] { called.append(QStringLiteral("next")); });
    };
    QByteArray bytes;
    for (int number = 0; number < 200; ++number) { // with a yield in between
      bytes.append(telegramFrame(number));
    }
    rig.mPeer.sendRaw(bytes);
    QTRY_COMPARE(called.size(), 3);
    QCOMPARE(called, (QStringList{"200 telegrams", "next", "heard"}));
  }

  void survives_data() {
    QTest::addColumn<QString>("doing");
    QTest::addColumn<QString>("when"); // in a delivery, at the yield behind it, or while a payload is waited for
    for (const char* const when : {"delivery", "yield", "wait"}) {
      for (const char* const doing : {"disconnect", "redial", "delete", "peer closes", "receiver deleted"}) {
        QTest::addRow("%s in a %s", doing, when) << QString(doing) << QString(when);
      }
    }
  }
  void survives() {
    QFETCH(QString, doing);
    QFETCH(QString, when);
    const bool isWaiting = when == QStringLiteral("wait");
    const bool isQueued = when == QStringLiteral("yield");
    Link_Rig rig;
    Scripted_Peer other;
    QVERIFY(rig.dial());
    auto* receiver = new QObject(this);
    connect(rig.mClient, qOverload<Telegram>(&Main_Network_Client::onProcessNetworkRead), receiver, [] {});
    const DB_Connections::ITEM next = other.connection();
    const auto act = [&] {
      QVERIFY(rig.mClient->isReading());
      if (doing == QStringLiteral("disconnect")) {
        rig.mClient->disconnectFromController();
      } else if (doing == QStringLiteral("redial")) {
        rig.mClient->connectToController(&next);
      } else if (doing == QStringLiteral("delete")) {
        delete rig.mClient;
      } else if (doing == QStringLiteral("peer closes")) {
        rig.mPeer.close();
      } else {
        delete std::exchange(receiver, nullptr);
      }
    };
    rig.mOnTold = [&, count = 0](const QString& told) mutable {
      if (told.startsWith(u't') && ++count == 150) {
        isQueued ? QTimer::singleShot(1, this, act) : act();
        QThread::msleep(isQueued ? 5 : 0); // so that it is due at the yield
      }
    };
    QByteArray bytes;
    const int telegrams = isWaiting ? 1 : 1000;
    for (int number = 0; number < telegrams; ++number) {
      bytes.append(telegramFrame(number));
    }
    if (isWaiting) {
      QTimer::singleShot(20, this, act);
    }
    // A pending header is left over, and what belongs to it must not be taken for the next link's.
    rig.mPeer.sendRaw(bytes + Network_Frame::pack(5, QByteArray(64, 'x')).first(50));
    if (doing == QStringLiteral("delete")) {
      QTRY_VERIFY(!rig.mClient);
      QTest::qWait(20);
      QVERIFY(rig.mTold.size() <= 153);
      return;
    }
    if (doing == QStringLiteral("redial")) {
      QTRY_VERIFY(rig.mClient->isConnected() && other.isConnected());
      other.send(9, "neu");
      QVERIFY(rig.hears(QStringLiteral("9:neu")));
      QVERIFY(rig.mTold.filter(QStringLiteral("t")).size() <= 152);
      QCOMPARE(rig.mTold.constLast(), QStringLiteral("9:neu"));
      return;
    }
    if (doing == QStringLiteral("disconnect")) {
      QVERIFY(rig.hears(QStringLiteral("-")));
      QTest::qWait(20);
      QVERIFY(rig.mTold.filter(QStringLiteral("t")).size() <= 152);
      QVERIFY(rig.dial());
      rig.mPeer.send(9, "neu");
      QVERIFY(rig.hears(QStringLiteral("9:neu")));
      return;
    }
    if (doing == QStringLiteral("peer closes")) {
      QVERIFY(rig.hears(QStringLiteral("-")));
    } else {
      QTRY_COMPARE(rig.mTold.size(), telegrams);
    }
    QTRY_COMPARE(receiver == nullptr, doing == QStringLiteral("receiver deleted"));
    QCOMPARE(rig.mTold.filter(QStringLiteral("t")).size(), telegrams); // whole messages before the end arrive
  }

  void inConnectSignal_data() {
    QTest::addColumn<QString>("at");
    QTest::addColumn<QString>("doing");
    for (const char* const at : {"+", "-"}) {
      for (const char* const doing : {"redial", "delete", "disconnect"}) {
        QTest::addRow("%s at %s", doing, at) << QString(at) << QString(doing);
      }
    }
  }
  void inConnectSignal() {
    QFETCH(QString, at);
    QFETCH(QString, doing);
    // The link ends by the peer, then by the user.
    for (const bool isPeer : {true, false}) {
      Link_Rig rig;
      Scripted_Peer other;
      const DB_Connections::ITEM next = other.connection();
      if (at == QStringLiteral("-")) {
        QVERIFY(rig.dial());
      }
      rig.mOnTold = [&, isDone = false](const QString& told) mutable {
        if (told != at || std::exchange(isDone, told == at || isDone)) {
          return;
        }
        if (doing == QStringLiteral("redial")) {
          rig.mClient->connectToController(&next);
        } else if (doing == QStringLiteral("delete")) {
          delete rig.mClient;
        } else {
          rig.mClient->disconnectFromController();
        }
      };
      const DB_Connections::ITEM item = rig.mPeer.connection();
      if (at == QStringLiteral("+")) {
        rig.mClient->connectToController(&item);
        QVERIFY(rig.hears(at));
      } else if (isPeer) {
        rig.mPeer.close();
        QVERIFY(rig.hears(at));
      } else {
        rig.mClient->disconnectFromController();
      }
      QTest::qWait(20);
      QCOMPARE(rig.mClient.isNull(), doing == QStringLiteral("delete"));
      if (doing == QStringLiteral("redial")) {
        QTRY_VERIFY(rig.mClient->isConnected() && other.isConnected());
        QVERIFY(rig.mClient->sendText(9, QStringLiteral("da")));
        QTRY_COMPARE(other.count(9), 1);
      } else if (doing == QStringLiteral("disconnect")) {
        QVERIFY(!rig.mClient->isWanted());
      }
    }
  }

  void flood() {
    constexpr int cTelegrams = 40'000;
    Session_Rig session;
    Main_Network_Client client(session.mSession);
    Flood peer(cTelegrams);
    quint32 next = 0;
    bool isInOrder = true;
    qint64 waiting = 0;
    connect(&client, qOverload<Telegram>(&Main_Network_Client::onProcessNetworkRead), this,
            [&](const Telegram& telegram) {
              isInOrder = isInOrder && telegram.mTime == next++;
              waiting = std::max(waiting, client.bytesToRead());
            });
    DB_Connections::ITEM item;
    item.mAddress = QStringLiteral("127.0.0.1:%1").arg(peer.port());
    Lateness lateness;
    client.connectToController(&item);
    QTRY_COMPARE_WITH_TIMEOUT(next, quint32(cTelegrams), 100'000);
    QVERIFY(isInOrder);
    QVERIFY2(lateness.mostMs() <= 200, qPrintable(QString::number(lateness.mostMs())));
    QVERIFY2(waiting <= Main_Network_Client::cReadBuffer + 1, qPrintable(QString::number(waiting)));
  }

  void sendsValues() {
    Link_Rig rig;
    QVERIFY(rig.mSession.create());
    const Group_Address address(1, 2, 3);
    DB_Address_Sub_Group* const group = rig.mSession.addAddress(address, QStringLiteral("Temperatur"));
    group->mDpt = {9, 1};
    QVERIFY(rig.dial());
    QVERIFY(!rig.mClient->sendValue(Group_Address(1, 2, 4), 21));
    QVERIFY(rig.mClient->sendValue(address, 21));
    QTRY_COMPARE(rig.mPeer.mMessages.size(), 1);
    const Telegram telegram = Telegram::fromBytes(rig.mPeer.last(Controller_Command::Telegram));
    QCOMPARE(telegram.address(), address);
    QCOMPARE(telegram.mData.toHex(), QByteArray("0c1a"));
    const Address_Value* const value = rig.mSession.mSession.values().find(group->mKey);
    QVERIFY(value && value->mPayload == telegram.mData && !value->mIsStale);
  }
};

QTEST_GUILESS_MAIN(Main_Network_Client_Test)
#include "Main_Network_Client_Test.moc"
