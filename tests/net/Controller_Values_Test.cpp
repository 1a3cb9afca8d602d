#include "db/Address_Edits.h"
#include "db/Address_Value_Text.h"
#include "net/Controller_Command.h"
#include "net/Controller_Link.h"
#include "net/Controller_Values.h"
#include "tests/db/Session_Rig.h"
#include "tests/net/Scripted_Peer.h"

#include <QSignalSpy>

using Telegram = DB_Address_Network_Telegram;

/// Live values of 1/2/3, a temperature, and 1/2/4, without a type, over a link to a peer of this process.
class Controller_Values_Test : public QObject {
  Q_OBJECT

private slots:
  void initTestCase() { QLocale::setDefault(QLocale(QLocale::German)); }

  void init() {
    mRig = std::make_unique<Session_Rig>();
    QVERIFY(mRig->create());
    mTemperature = mRig->addAddress({1, 2, 3}, QStringLiteral("Temperatur"))->mKey;
    mUntyped = mRig->addAddress({1, 2, 4}, QStringLiteral("Reserve"))->mKey;
    mMarker = mRig->addAddress({1, 2, 5}, {})->mKey;
    setType(mTemperature, QStringLiteral("9.001"));
    mPeer = std::make_unique<Scripted_Peer>();
    mPeer->mOnMessage = [this](const Scripted_Peer::Message& message) {
      if (message.mCommand == Controller_Command::Log_On) {
        mPeer->send(Controller_Command::Log_On_Accepted);
      }
    };
    mLink = std::make_unique<Controller_Link>(mRig->mSession);
    mValues = std::make_unique<Controller_Values>(mRig->mSession, *mLink);
    mLink->connectTo(mPeer->connection());
    QTRY_VERIFY(mValues->isOnline());
  }

  void cleanup() {
    mValues.reset();
    QVERIFY(!mRig->mSession.valueService());
    mLink.reset();
    mPeer.reset();
    mRig.reset();
  }

  void aTelegramBecomesAValue_data() {
    QTest::addColumn<Telegram>("telegram");
    QTest::addColumn<QString>("text"); // null: no value
    QTest::addColumn<QString>("source");
    const auto row = [](const char* name, const Group_Address& address, Telegram::Service service,
                        const QByteArray& data, const QString& text, const QString& source, quint32 device = 20) {
      Telegram telegram = Telegram::to(address, service, data);
      telegram.mKind = device > 0 ? Telegram::cKindBus : Telegram::cKindRuntime;
      telegram.mSourceArea = telegram.mSourceLine = device > 0 ? 1 : 0;
      telegram.mSourceDevice = device;
      telegram.mTime = 1'700'000'000;
      QTest::newRow(name) << telegram << text << source;
    };
    const QByteArray warm = QByteArray::fromHex("0c33"); // 21,5 °C
    const QString bus = QStringLiteral("1.1.20");
    row("write", {1, 2, 3}, Telegram::Write, warm, QStringLiteral("21,5 °C"), bus);
    row("response", {1, 2, 3}, Telegram::Response, warm, QStringLiteral("21,5 °C"), bus);
    row("from the controller", {1, 2, 3}, Telegram::Write, warm, QStringLiteral("21,5 °C"), QStringLiteral("Steuerung"),
        0);
    row("a read says nothing", {1, 2, 3}, Telegram::Read, {}, {}, {});
    row("unknown address", {1, 2, 99}, Telegram::Write, warm, {}, {});
    row("payload of the wrong size", {1, 2, 3}, Telegram::Write, QByteArray::fromHex("01"), QStringLiteral("01"), bus);
    row("no type", {1, 2, 4}, Telegram::Write, warm, QStringLiteral("0C 33"), bus);
  }

  void aTelegramBecomesAValue() {
    QFETCH(const Telegram, telegram);
    QFETCH(const QString, text);
    mPeer->send(Controller_Command::Telegram, telegram.toBytes());
    tell(QByteArray(1, '\1'), {1, 2, 5}); // after it all is known
    QTRY_VERIFY(value(mMarker));
    const QUuid key = telegram.address() == Group_Address(1, 2, 4) ? mUntyped : mTemperature;
    QCOMPARE(value(key) != nullptr, !text.isNull());
    QCOMPARE(mRig->mSession.values().count(), text.isNull() ? 1 : 2);
    if (value(key)) {
      QCOMPARE(textOf(key), text);
      QTEST(value(key)->mSource, "source");
      QCOMPARE(value(key)->mTime, 1'700'000'000'000);
    }
  }

  void aLostLinkMakesStaleAndATelegramFresh() {
    tell(QByteArray::fromHex("0c33"));
    QTRY_VERIFY(value(mTemperature));
    mPeer->close();
    QTRY_VERIFY(value(mTemperature)->mIsStale);
    QVERIFY(Address_Value_Text::time(*value(mTemperature)).endsWith(QStringLiteral("veraltet")));
    QVERIFY(!mValues->isOnline());
    QVERIFY(!mValues->send(mTemperature, QByteArray(2, '\0')));
    mLink->connectTo(mPeer->connection());
    QTRY_VERIFY(mValues->isOnline());
    QVERIFY(value(mTemperature)->mIsStale);
    tell(QByteArray::fromHex("0c33"));
    QTRY_VERIFY(!value(mTemperature)->mIsStale);
  }

  void valuesFollowTheAddresses() {
    tell(QByteArray::fromHex("0c33"));
    QTRY_VERIFY(value(mTemperature));
    setType(mTemperature, QStringLiteral("9.004"));
    QCOMPARE(textOf(mTemperature), QStringLiteral("21,5 lx"));
    setType(mTemperature, QStringLiteral("7.001"));
    QCOMPARE(textOf(mTemperature), QStringLiteral("3.123 Impulse"));
    setType(mTemperature, QStringLiteral("1.001"));
    QCOMPARE(textOf(mTemperature), QStringLiteral("0C 33"));
    QVERIFY(Address_Edits::renumber(mRig->mSession, mTemperature, QStringLiteral("1/2/77")));
    QTRY_VERIFY(!value(mTemperature)); // it was the value of 1/2/3
    tell(QByteArray(1, '\1'), {1, 2, 77});
    QTRY_COMPARE(textOf(mTemperature), QStringLiteral("Ein"));
    QVERIFY(Address_Edits::remove(mRig->mSession, {mTemperature}));
    QTRY_COMPARE(mRig->mSession.values().count(), 0);
  }

  void whatIsSentIsTheStudiosUntilAnotherSendsIt() {
    const QByteArray payload = QByteArray::fromHex("0c33");
    QVERIFY(mValues->send(mTemperature, payload));
    QCOMPARE(value(mTemperature)->mSource, QStringLiteral("Studio"));
    QTRY_COMPARE(mPeer->count(Controller_Command::Telegram), 1);
    const Telegram sent = Telegram::fromBytes(mPeer->last(Controller_Command::Telegram));
    QCOMPARE(sent, Telegram::to({1, 2, 3}, Telegram::Write, payload));
    mPeer->send(Controller_Command::Telegram, sent.toBytes()); // the echo
    tell(QByteArray(1, '\1'), {1, 2, 4});
    QTRY_VERIFY(value(mUntyped));
    QCOMPARE(value(mTemperature)->mSource, QStringLiteral("Studio"));
    tell(QByteArray::fromHex("0c34"));
    QTRY_COMPARE(value(mTemperature)->mSource, QStringLiteral("Steuerung"));
    QVERIFY(!mValues->send(QUuid::createUuid(), payload));
  }

  void readingKeepsItsPaceAndIsCancelled() {
    QSignalSpy progress(mValues.get(), &Value_Service::readProgress);
    mValues->read(QList<QUuid>(5, mTemperature) + QList<QUuid>{QUuid::createUuid()});
    QVERIFY(mValues->isReading());
    QTRY_VERIFY(!mValues->isReading());
    QTRY_COMPARE(mPeer->count(Controller_Command::Telegram), 5);
    QCOMPARE(Telegram::fromBytes(mPeer->last(Controller_Command::Telegram)),
             Telegram::to({1, 2, 3}, Telegram::Read, {}));
    QCOMPARE(progress.constLast(), QVariantList({qsizetype(0), qsizetype(0)}));
    QElapsedTimer timer;
    timer.start();
    mValues->read(QList<QUuid>(1'000, mTemperature));
    QTRY_VERIFY(mPeer->count(Controller_Command::Telegram) >= 10);
    QVERIFY(timer.elapsed() >= 4 * Controller_Values::cReadMs);
    mValues->cancelReading();
    QVERIFY(!mValues->isReading());
    mValues->read({mTemperature});
    mPeer->close();
    QTRY_VERIFY(!mValues->isOnline() && !mValues->isReading());
  }

  void manyValuesAreToldTenTimesASecond() {
    QSignalSpy changed(&mRig->mSession.values(), &Address_Values::changed);
    QElapsedTimer timer;
    timer.start();
    int sent = 0;
    while (timer.elapsed() < 1'000) {
      for (int i = 0; i < 50; ++i, ++sent) {
        emit mLink->client().onProcessNetworkRead(
            Telegram::to({1, 2, 4}, Telegram::Write, QByteArray(1, static_cast<char>(sent))));
      }
      QTest::qWait(5);
    }
    QVERIFY2(changed.count() >= 2 && changed.count() <= 11, qPrintable(QString::number(changed.count())));
  }

private:
  [[nodiscard]] const Address_Value* value(const QUuid& key) const { return mRig->mSession.values().find(key); }

  [[nodiscard]] QString textOf(const QUuid& key) const {
    const Address_Value* const known = value(key);
    return known ? Address_Value_Text::text(mRig->mSession.database().mAddresses.subGroup(key)->mDpt, *known)
                 : QString();
  }

  void setType(const QUuid& key, const QString& type) {
    QVERIFY(Address_Edits::set(mRig->mSession, {key}, Address_Edits::Field::Type, type));
  }

  void tell(const QByteArray& data, const Group_Address& address = {1, 2, 3}) {
    mPeer->send(Controller_Command::Telegram, Telegram::to(address, Telegram::Write, data).toBytes());
  }

  std::unique_ptr<Session_Rig> mRig;
  std::unique_ptr<Scripted_Peer> mPeer;
  std::unique_ptr<Controller_Link> mLink;
  std::unique_ptr<Controller_Values> mValues;
  QUuid mTemperature;
  QUuid mUntyped;
  QUuid mMarker;
};

QTEST_MAIN(Controller_Values_Test)
#include "Controller_Values_Test.moc"
