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
  mToolCallSeen = true;
  mToolCallEndMs = nowMs;
  mSuppressedMessage.clear();
  emit toolCallRunningChanged(true);
}

void Session_State::endToolCall(qint64 nowMs) {
  mToolCallRunning = false;
  mToolCallEndMs = nowMs;
  emit toolCallRunningChanged(false);
}

bool Session_State::assistantActive(qint64 nowMs) const {
  return mToolCallRunning || (mToolCallSeen && nowMs - mToolCallEndMs < cAssistantGraceMs);
}
