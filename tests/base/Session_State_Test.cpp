#include "base/Session_State.h"

#include <QtTest>

class Session_State_Test : public QObject {
  Q_OBJECT

private slots:
  void assistantActive() {
    constexpr qint64 cNow = 1'700'000'000'000;
    constexpr qint64 cEnd = cNow + 3'600'000;
    Session_State state;
    QVERIFY(!state.assistantActive(cNow) && !state.assistantActive(0));
    state.beginToolCall(cNow);
    QVERIFY(state.toolCallRunning() && state.assistantActive(cEnd));
    state.endToolCall(cEnd);
    QVERIFY(!state.toolCallRunning());
    QVERIFY(state.assistantActive(cEnd + 14'999) && !state.assistantActive(cEnd + 15'000));
    QVERIFY(!state.assistantActive(cEnd - 86'400'000)); // the clock has been set back
    QCOMPARE(state.toolCallStartMs(), cNow);
    QCOMPARE(state.toolCallEndMs(), cEnd);
    state.beginToolCall(cEnd + 60'000);
    QCOMPARE(state.toolCallStartMs(), cEnd + 60'000);
    QCOMPARE(state.toolCallEndMs(), cEnd); // of the last one that has ended
  }
};

QTEST_APPLESS_MAIN(Session_State_Test)
#include "Session_State_Test.moc"
