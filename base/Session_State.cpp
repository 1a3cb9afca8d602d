#include "base/Session_State.h"

namespace {
constexpr qint64 cAssistantGraceMs = 15'000;
} // namespace

Session_State& Session_State::process() {
  static Session_State state;
  return state;
}

void Session_State::setOperatingMode(bool on) {
  if (mOperatingMode == on) {
    return;
  }
  mOperatingMode = on;
  emit operatingModeChanged(on);
}

QString Session_State::operatingModeRefusal() {
  return tr("Nur möglich wenn Bedienmodus ausgeschaltet ist.");
}

void Session_State::beginToolCall(qint64 nowMs) {
  mToolCallRunning = true;
  mToolCallStartMs = nowMs;
  mSuppressedMessage.clear();
  emit toolCallRunningChanged(true);
}

void Session_State::endToolCall(qint64 nowMs) {
  mToolCallRunning = false;
  mToolCallEndMs = nowMs;
  emit toolCallRunningChanged(false);
}

bool Session_State::assistantActive(qint64 nowMs) const {
  const qint64 since = nowMs - mToolCallEndMs;
  // Also false when the clock has been set back since.
  return mToolCallRunning || (mToolCallEndMs > 0 && since >= 0 && since < cAssistantGraceMs);
}
