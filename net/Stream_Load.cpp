#include "net/Stream_Load.h"

#include <utility>

namespace {

constexpr int cPercent = 100;

} // namespace

Stream_Load::Stream_Load(Main_Network_Client& client, What what, QObject* parent)
    : Controller_Exchange(client, parent),
      mWhat(std::move(what)) {}

void Stream_Load::begin() {
  emit progress(mWhat.mWaitLabel, 0, 0);
  sendText(mWhat.mCommand, mWhat.mText);
}

bool Stream_Load::take(quint32 command, QByteArrayView payload) {
  QString error;
  if (command == mWhat.mBeginReply) {
    if (!mStream.begin(payload, &error)) {
      fail(error);
      return true;
    }
  } else if (command == mWhat.mDataReply) {
    if (!mStream.take(payload, &error)) {
      fail(error);
      return true;
    }
  } else {
    return false;
  }
  const qint64 size = mStream.announced().mSize;
  const int percent = size == 0 ? cPercent : static_cast<int>(mStream.bytes().size() * cPercent / size);
  emit progress(mWhat.mLoadLabel, percent, cPercent);
  if (mStream.isComplete()) {
    succeed();
  }
  return true;
}
