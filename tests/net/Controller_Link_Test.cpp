#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/Controller_Records.h"
#include "net/Controller_Request.h"
#include "net/Stream_Load.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"

#include <QSignalSpy>

namespace {

using State = Controller_Link::State;
using End = Controller_Exchange::End;

constexpr int cSoonMs = 60;

/// A link whose peer accepts every log-on.
class Rig {
public:
  Rig() {
    mPeer.mOnMessage = [this](const Scripted_Peer::Message& message) {
      if (message.mCommand == Controller_Command::Log_On) {
        DB_Controller_Informations informations;
        mPeer.send(mReply, mReply == Controller_Command::Log_On_Refused ? QByteArray("Falsches Passwort.\0", 19)
                                                                        : informations.toData());
      }
    };
    QObject::connect(mLink, &Controller_Link::refused, mLink, [this](const QString& text) { mRefused.append(text); });
    QObject::connect(mLink, &Controller_Link::lost, mLink, [this] { ++mLost; });
    QObject::connect(mLink, &Controller_Link::stateChanged, mLink, [this](State state) {
      mStates.append(state);
      mTexts.append(mLink->connectionText());
    });
  }
  ~Rig() { delete mLink; }
  Q_DISABLE_COPY_MOVE(Rig)

  [[nodiscard]] bool reaches(State state) const {
    return QTest::qWaitFor([&] { return mLink->state() == state; });
  }
  [[nodiscard]] bool goOnline() {
    mLink->connectTo(mPeer.connection());
    return reaches(State::Online);
  }

  Session_Rig mSession;
  Scripted_Peer mPeer;
  QPointer<Controller_Link> mLink = new Controller_Link(mSession.mSession);
  quint32 mReply = Controller_Command::Log_On_Accepted;
  QStringList mRefused;
  int mLost = 0;
  QList<State> mStates;
  QStringList mTexts; ///< of the connection, at each state
};

} // namespace

class Controller_Link_Test : public QObject {
  Q_OBJECT

private slots:
  void logsOn() {
    Rig rig;
    QString error;
    QVERIFY(!rig.mLink->connectToSelected(&error));
    QVERIFY(!error.isEmpty());
    DB_Connections& connections = rig.mSession.mSession.database().mConnections;
    connections.mItems = {rig.mPeer.connection()};
    connections.mSelected = 0;
    QVERIFY(rig.mLink->connectToSelected());
    QVERIFY(rig.reaches(State::Online));
    DB_Log_On logOn;
    logOn.setData(rig.mPeer.last(Controller_Command::Log_On));
    logOn.fromData();
    QCOMPARE(logOn.mUser + u'/' + logOn.mPassword, QStringLiteral("root/geheim"));
    QCOMPARE(rig.mTexts, QStringList(3, QStringLiteral("Test (%1)").arg(rig.mPeer.address())));
    QCOMPARE(rig.mStates, (QList<State>{State::Dialling, State::LoggingOn, State::Online}));
    // Dialled while connected: the old link goes first, and that is no loss.
    Scripted_Peer other;
    other.mOnMessage = rig.mPeer.mOnMessage;
    rig.mLink->connectTo(rig.mPeer.connection());
    QVERIFY(rig.reaches(State::Online));
    QCOMPARE(rig.mPeer.mAccepted, 2);
    rig.mLink->disconnectLink();
    QCOMPARE(rig.mLink->connectionText(), QString());
    QTest::qWait(20);
    QCOMPARE(rig.mLink->state(), State::Offline);
    QCOMPARE(rig.mLost, 0);
    QVERIFY(rig.mRefused.isEmpty());
  }

  void endsItself_data() {
    QTest::addColumn<QString>("fault");
    QTest::addColumn<QString>("text");
    QTest::newRow("refused") << "refuse"
                             << "Die Steuerung lehnt die Anmeldung ab: Falsches Passwort.";
    QTest::newRow("silent") << "silent"
                            << "Keine Antwort der Steuerung";
    QTest::newRow("closed") << "close"
                            << "Die Steuerung hat die Verbindung bei der Anmeldung beendet.";
  }
  void endsItself() {
    QFETCH(QString, fault);
    QFETCH(QString, text);
    Rig rig;
    rig.mReply = fault == QStringLiteral("refuse") ? Controller_Command::Log_On_Refused : 5U;
    rig.mLink->setLogOnTimeout(cSoonMs);
    if (fault == QStringLiteral("close")) {
      rig.mPeer.mOnMessage = [&](const auto&) { rig.mPeer.close(); };
    }
    rig.mLink->connectTo(rig.mPeer.connection());
    QTRY_COMPARE(rig.mRefused, QStringList(text));
    QCOMPARE(rig.mLink->state(), State::Offline);
    QVERIFY(!rig.mLink->client().isWanted());
    // A second try is not taken for the first one.
    rig.mPeer.mOnMessage = {};
    rig.mLink->setLogOnTimeout(10'000);
    rig.mLink->connectTo(rig.mPeer.connection());
    QVERIFY(rig.reaches(State::LoggingOn));
    rig.mPeer.send(Controller_Command::Log_On_Accepted, DB_Controller_Informations().toData());
    QVERIFY(rig.reaches(State::Online));
    QCOMPARE(rig.mRefused.size(), 1);
  }

  void failedDialIsToldAndRepeated() {
    Rig rig;
    QSignalSpy failed(rig.mLink, &Controller_Link::dialFailed);
    DB_Connections::ITEM item = rig.mPeer.connection();
    item.mAddress = Scripted_Peer::deadAddress();
    rig.mLink->connectTo(item);
    QTRY_COMPARE(failed.size(), 1);
    QVERIFY(!failed.at(0).at(0).toString().isEmpty());
    QCOMPARE(rig.mLink->state(), State::Dialling);
    QVERIFY(rig.mLink->client().reconnectIfLost()); // as the watchdog does
    QTRY_COMPARE(failed.size(), 2);
    QCOMPARE(failed.at(1).at(1).toInt(), 2);
    QCOMPARE(rig.mLink->failedAttempts(), 2);
    QCOMPARE(rig.mLink->state(), State::Dialling);
    // Ended beside the link: it does not say that it dials when nobody does.
    rig.mLink->client().disconnectFromController();
    QVERIFY(rig.reaches(State::Offline));
    QVERIFY(rig.mRefused.isEmpty() && rig.mLost == 0);
  }

  void lost() {
    Rig rig;
    QVERIFY(rig.goOnline());
    rig.mPeer.close();
    QTRY_COMPARE(rig.mLost, 1);
    QCOMPARE(rig.mLink->state(), State::Offline);
    QVERIFY(rig.goOnline());
  }

  void deletedInSignal_data() {
    QTest::addColumn<int>("state");
    QTest::newRow("dialling") << int(State::Dialling);
    QTest::newRow("logging on") << int(State::LoggingOn);
    QTest::newRow("online") << int(State::Online);
    QTest::newRow("lost") << int(State::Offline);
  }
  void deletedInSignal() {
    QFETCH(int, state);
    Rig rig;
    connect(rig.mLink, &Controller_Link::stateChanged, this, [&](State now) {
      if (int(now) == state) {
        delete rig.mLink;
      }
    });
    rig.mLink->connectTo(rig.mPeer.connection());
    if (state == int(State::Offline)) {
      QVERIFY(rig.reaches(State::Online));
      rig.mPeer.close();
    }
    QTRY_VERIFY(!rig.mLink);
    QTest::qWait(20);
  }

  void exchange_data() {
    QTest::addColumn<QString>("doing");
    QTest::addColumn<int>("end");
    QTest::addColumn<QString>("text");
    const QString noLink = QStringLiteral("Keine Verbindung zur Steuerung");
    QTest::newRow("answer") << "answer" << int(End::Done) << QString();
    QTest::newRow("silent") << "silent" << int(End::NoAnswer) << "Keine Antwort der Steuerung";
    QTest::newRow("other messages do not keep it alive")
        << "chatter" << int(End::NoAnswer) << "Keine Antwort der Steuerung";
    QTest::newRow("refused") << "refuse" << int(End::Refused) << "Nicht jetzt.";
    QTest::newRow("another one is refused") << "refuse other" << int(End::Done) << QString();
    QTest::newRow("lost") << "close" << int(End::NoLink) << noLink;
    QTest::newRow("ended by the user") << "disconnect" << int(End::NoLink) << noLink;
    QTest::newRow("no link") << "offline" << int(End::NoLink) << noLink;
    QTest::newRow("cancelled") << "cancel" << int(End::Cancelled) << QString();
  }
  void exchange() {
    QFETCH(QString, doing);
    Rig rig;
    QVERIFY(rig.goOnline());
    const auto refuse = [&](int command) {
      DB_Refusal refusal;
      refusal.mCommand = command;
      refusal.mReason = QStringLiteral("Nicht jetzt.");
      rig.mPeer.send(Controller_Command::Refused, refusal.toData());
    };
    QTimer chatter;
    connect(&chatter, &QTimer::timeout, this, [&] { rig.mPeer.send(5); });
    rig.mPeer.mOnMessage = [&](const Scripted_Peer::Message& message) {
      if (doing == QStringLiteral("chatter")) {
        chatter.start(cSoonMs / 4);
      } else if (doing.startsWith(QStringLiteral("refuse"))) {
        refuse(doing.endsWith(QStringLiteral("other")) ? 4711 : int(message.mCommand));
      }
      if (doing == QStringLiteral("answer") || doing.endsWith(QStringLiteral("other"))) {
        rig.mPeer.send(Controller_Command::Number_Get_Reply, "7");
      } else if (doing == QStringLiteral("close")) {
        rig.mPeer.close();
      }
    };
    if (doing == QStringLiteral("offline")) {
      rig.mLink->disconnectLink();
    }
    Controller_Request request(rig.mLink->client(), Controller_Command::Number_Get, {},
                               Controller_Command::Number_Get_Reply, {});
    QList<int> ends;
    connect(&request, &Controller_Exchange::finished, this, [&](End end) { ends.append(int(end)); });
    const bool isSilent = doing == QStringLiteral("silent") || doing == QStringLiteral("chatter");
    request.setTimeout(isSilent ? cSoonMs : 10'000);
    request.start();
    request.start(); // once is enough
    if (doing == QStringLiteral("cancel")) {
      request.cancel();
    } else if (doing == QStringLiteral("disconnect")) {
      rig.mLink->disconnectLink();
    }
    QVERIFY(ends.isEmpty()); // never inside
    QTRY_VERIFY(!ends.isEmpty());
    QTEST(ends.constFirst(), "end");
    QTEST(request.errorText(), "text");
    QTest::qWait(2 * cSoonMs);
    QCOMPARE(ends.size(), 1);
    QCOMPARE(rig.mLink->isOnline(), !QStringList({"close", "disconnect", "offline"}).contains(doing));
  }

  void streamLoad() {
    Rig rig;
    QVERIFY(rig.goOnline());
    const QByteArray bytes(200'000, 'z');
    bool isHarmed = false;
    rig.mPeer.mOnMessage = [&](const Scripted_Peer::Message&) {
      rig.mPeer.send(Controller_Command::Load_Begin, Byte_Stream::announce(bytes).toData());
      const QByteArray sent = isHarmed ? QByteArray(200'000, 'y') : bytes;
      for (const QByteArrayView chunk : Byte_Stream::chunks(sent)) {
        rig.mPeer.send(Controller_Command::Load_Data, chunk);
      }
    };
    for (const bool harmed : {false, true}) {
      isHarmed = harmed;
      auto* const load = new Stream_Load(rig.mLink->client(),
                                         {Controller_Command::Load,
                                          QStringLiteral("project"),
                                          Controller_Command::Load_Begin,
                                          Controller_Command::Load_Data,
                                          {},
                                          {}},
                                         this);
      QPointer<Stream_Load> self(load);
      int end = -1;
      connect(load, &Controller_Exchange::finished, this, [&, load](End how) {
        end = int(how);
        QCOMPARE(load->bytes() == bytes, !isHarmed);
        QCOMPARE(load->errorText().isEmpty(), !isHarmed);
        delete load;
      });
      load->start();
      QTRY_VERIFY(!self);
      QCOMPARE(end, int(isHarmed ? End::Failed : End::Done));
    }
    QCOMPARE(rig.mPeer.last(Controller_Command::Load), QByteArray("project\0", 8));
  }
};

QTEST_GUILESS_MAIN(Controller_Link_Test)
#include "Controller_Link_Test.moc"
