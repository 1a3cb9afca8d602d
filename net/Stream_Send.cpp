#include "net/Stream_Send.h"

#include <utility>

namespace {

constexpr int cPercent = 100;

} // namespace

Stream_Send::Stream_Send(Main_Network_Client& client, What what, QByteArray bytes, QObject* parent)
    : Controller_Exchange(client, parent),
      mWhat(std::move(what)),
      mStream({mWhat.mBeginCommand, mWhat.mDataCommand}, std::move(bytes), mWhat.mName),
      mSender(client) {
  connect(&mSender, &Paced_Sender::moved, this, [this] {
    restartTimeout();
    emit progress(mWhat.mLabel, mStream.percent(this->client().bytesToWrite()), cPercent);
  });
}

void Stream_Send::begin() {
  emit progress(mWhat.mLabel, 0, cPercent);
  mSender.start([this] {
    return mStream.sendNext([this](quint32 command, QByteArrayView payload) { return send(command, payload); });
  });
}

bool Stream_Send::take(quint32 command, QByteArrayView payload) {
  if (command != mWhat.mReply || !mStream.isSent()) {
    return false;
  }
  mReplyText = text(payload);
  mSender.stop();
  succeed();
  return true;
}

void Stream_Send::abort() {
  mSender.stop();
}
