#include "base/Session_State.h"

#include <QSignalSpy>
#include <QtTest>

class Session_State_Test : public QObject {
  Q_OBJECT

private slots:
  void operatingMode() {
    Session_State state;
    QSignalSpy changed(&state, &Session_State::operatingModeChanged);
    state.setOperatingMode(false);
    QCOMPARE(changed.count(), 0);
    state.setOperatingMode(true);
    state.setOperatingMode(true);
    QVERIFY(state.operatingMode());
    QCOMPARE(changed.count(), 1);
    QCOMPARE(changed.takeFirst().at(0).toBool(), true);
    QVERIFY(&Session_State::process() == &Session_State::process());
  }

  void assistantActive_data() {
    QTest::addColumn<qint64>("afterEnd"); // milliseconds
    QTest::addColumn<bool>("isActive");
    QTest::newRow("at once") << qint64(0) << true;
    QTest::newRow("just before the end") << qint64(14'999) << true;
    QTest::newRow("15 seconds") << qint64(15'000) << false;
    QTest::newRow("a day") << qint64(86'400'000) << false;
  }

  void assistantActive() {
    QFETCH(qint64, afterEnd);
    constexpr qint64 cNow = 1'700'000'000'000;
    Session_State state;
    QVERIFY(!state.assistantActive(cNow) && !state.assistantActive(0));
    state.beginToolCall(cNow);
    QVERIFY(state.toolCallRunning());
    QVERIFY(state.assistantActive(cNow + 3'600'000));
    state.endToolCall(cNow + 3'600'000);
    QVERIFY(!state.toolCallRunning());
    QTEST(state.assistantActive(cNow + 3'600'000 + afterEnd), "isActive");
  }

  void suppressedMessage() {
    Session_State state;
    state.beginToolCall(1);
    state.setSuppressedMessage(QStringLiteral("a"));
    state.setSuppressedMessage(QStringLiteral("b"));
    state.endToolCall(2);
    QCOMPARE(state.suppressedMessage(), QStringLiteral("b"));
    state.beginToolCall(3);
    QVERIFY(state.suppressedMessage().isEmpty());
  }
};

QTEST_APPLESS_MAIN(Session_State_Test)
#include "Session_State_Test.moc"
