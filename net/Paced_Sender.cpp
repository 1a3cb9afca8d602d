#include "net/Paced_Sender.h"

#include "net/Main_Network_Client.h"

#include <utility>

namespace {

constexpr int cLookMs = 5;

} // namespace

Paced_Sender::Paced_Sender(Main_Network_Client& client, QObject* parent) : QObject(parent), mClient(client) {
  mTimer.setInterval(cLookMs);
  connect(&mTimer, &QTimer::timeout, this, &Paced_Sender::step);
}

void Paced_Sender::start(Send_Next next) {
  mNext = std::move(next);
  mIsExhausted = false;
  mWaiting = mClient.bytesToWrite();
  mTimer.start();
}

void Paced_Sender::stop() {
  mTimer.stop(); // the function may be running just now, so it stays
}

void Paced_Sender::step() {
  const bool hasMoved = mClient.bytesToWrite() < mWaiting;
  while (mTimer.isActive() && !mIsExhausted && mClient.bytesToWrite() < cMostWaiting) {
    mIsExhausted = !mNext();
  }
  if (!mTimer.isActive()) {
    return;
  }
  mWaiting = mClient.bytesToWrite();
  if (mIsExhausted && mWaiting == 0) {
    stop();
  }
  if (hasMoved) {
    emit moved();
  }
}
