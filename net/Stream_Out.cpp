#include "net/Stream_Out.h"

#include <algorithm>
#include <utility>

Stream_Out::Stream_Out(Commands commands, QByteArray bytes, const QString& name)
    : mCommands(commands),
      mBytes(std::move(bytes)),
      mAnnounced(Byte_Stream::announce(mBytes, name)) {}

bool Stream_Out::sendNext(const Send& send) {
  if (mAt == At::Begin) {
    mAt = At::Data;
    return send(mCommands.mBegin, mAnnounced.toData());
  }
  if (mAt == At::Data && mSent < mBytes.size()) {
    const qsizetype size = std::min(Byte_Stream::cChunk, mBytes.size() - mSent);
    const QByteArrayView piece = QByteArrayView(mBytes).sliced(mSent, size);
    mSent += size;
    return send(mCommands.mData, piece);
  }
  if (mAt == At::Data && mCommands.mEnd != 0) {
    mAt = At::End;
    return send(mCommands.mEnd, {});
  }
  return false;
}

bool Stream_Out::isSent() const {
  return mCommands.mEnd == 0 ? mAt == At::Data && mSent == mBytes.size() : mAt == At::End;
}

int Stream_Out::percent(qint64 waiting) const {
  constexpr qint64 cWhole = 100;
  if (mBytes.isEmpty()) {
    return cWhole;
  }
  return static_cast<int>(std::max<qint64>(0, mSent - waiting) * cWhole / mBytes.size());
}
