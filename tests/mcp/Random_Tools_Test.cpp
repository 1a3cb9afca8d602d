#include "tests/db/Project_Dump.h"
#include "tests/mcp/Random_Calls.h"
#include "tests/mcp/Tool_Rig.h"

/// Random editing calls of an assistant: each is at most one undo step, undoing all of them leads back to the project
/// as it was, redoing to what it became. `EDITS_SEED` repeats a run, `EDITS_COUNT` sets its length.
class Random_Tools_Test : public QObject {
  Q_OBJECT

private slots:
  void everythingComesBack();

private:
  /// Fewer than the history keeps, so that all of them can be undone.
  static constexpr quint32 cRound = 500;
  static constexpr quint32 cDefaultCount = 2000;

  static quint32 number(const char* variable, quint32 otherwise) {
    bool isNumber = false;
    const quint32 value = qEnvironmentVariable(variable).toUInt(&isNumber);
    return isNumber ? value : otherwise;
  }
  QByteArray state() { return Project_Dump::project(mRig.mSession.database()); }
  bool makeOne(const Random_Calls::Call& call);

  Tool_Rig mRig;
  QByteArray mState;
  QHash<QByteArray, int> mTaken;
  QHash<QByteArray, QString> mRefused;
};

/// False when the call was refused. Fails the test when a refusal changed something, or a change is not one step.
bool Random_Tools_Test::makeOne(const Random_Calls::Call& call) {
  const QString tool = QLatin1String(call.mTool);
  const size_t steps = mRig.mSession.history().position();
  const QJsonObject object = mRig.call(tool, call.mArguments);
  const bool isRefused = object.contains("error");
  const QByteArray after = state();
  const size_t added = mRig.mSession.history().position() - steps;
  if (added != (after == mState ? 0U : 1U) || (isRefused && added != 0)) {
    const QByteArray arguments = QJsonDocument(call.mArguments).toJson(QJsonDocument::Compact);
    QTest::qFail(QByteArray::number(quint64(added)) + " steps of " + call.mTool + ' ' + arguments, __FILE__, __LINE__);
  }
  mState = after;
  if (isRefused) {
    mRefused.insert(call.mTool, object.value("error").toString());
  } else {
    ++mTaken[call.mTool];
  }
  return !isRefused;
}

void Random_Tools_Test::everythingComesBack() {
  const quint32 seed = number("EDITS_SEED", QRandomGenerator::global()->generate());
  const quint32 count = number("EDITS_COUNT", cDefaultCount);
  qInfo("%u calls with seed %u", count, seed);
  Random_Calls calls(std::as_const(mRig.mSession).database(), seed);
  History& history = mRig.mSession.history();
  mState = state();
  quint32 taken = 0;
  quint32 attempts = 0;
  while (taken < count) {
    const QByteArray before = mState;
    history.clear();
    for (quint32 end = std::min(count, taken + cRound); taken < end;) {
      taken += makeOne(calls.next()) ? 1 : 0;
      QVERIFY2(++attempts < 10 * count, "nearly all calls are refused");
      if (QTest::currentTestFailed()) {
        return;
      }
    }
    const QByteArray after = mState;
    while (history.undo()) {
    }
    QCOMPARE(state(), before);
    while (history.redo()) {
    }
    QCOMPARE(state(), after);
  }
  for (const MCP_Tool& tool : mRig.mDispatcher.catalogue().tools()) {
    const bool isMissing = !tool.mStep.isEmpty() && !mTaken.contains(tool.mName.toUtf8());
    QVERIFY2(!isMissing || count < cDefaultCount, qPrintable(tool.mName));
  }
  for (auto refused = mRefused.cbegin(); refused != mRefused.cend(); ++refused) {
    qInfo("%s taken %d times, refused as in: %s", refused.key().constData(), mTaken.value(refused.key()),
          qPrintable(refused.value()));
    QVERIFY2(mTaken.contains(refused.key()), refused.key());
  }
}

QTEST_GUILESS_MAIN(Random_Tools_Test)
#include "Random_Tools_Test.moc"
