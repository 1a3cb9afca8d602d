#include "simulator/Simulator_Frame_Reader.h"

#include "net/Network_Cipher.h"
#include "net/Network_Frame.h"

#include <algorithm>
#include <utility>

std::optional<Simulator_Frame_Reader::Message> Simulator_Frame_Reader::next() {
  if (!mPending) {
    if (mBytes.size() - mTaken < Network_Message::cSize) {
      forgetTaken();
      return std::nullopt;
    }
    mPending = Network_Frame::header(QByteArrayView(mBytes).sliced(mTaken, Network_Message::cSize));
    if (!mPending) {
      mDropped += mBytes.size() - mTaken;
      mBytes.clear();
      mTaken = 0;
      return std::nullopt;
    }
    mTaken += Network_Message::cSize;
  }
  const auto padded = static_cast<qsizetype>(mPending->mPaddedLength);
  if (isTooLong() || mBytes.size() - mTaken < padded) {
    forgetTaken();
    return std::nullopt;
  }
  QByteArray payload = mBytes.sliced(mTaken, padded);
  mTaken += padded;
  const Network_Message header = *std::exchange(mPending, std::nullopt);
  if (!Network_Cipher::decipher({payload.data(), static_cast<std::size_t>(payload.size())})) {
    return std::nullopt;
  }
  payload.truncate(std::min<qsizetype>(padded, header.mDataLength));
  return Message{header.mCommand, payload};
}

void Simulator_Frame_Reader::forgetTaken() {
  // Once per bundle of bytes, not once per message: a flood must not move its rest again and again.
  mBytes.remove(0, std::exchange(mTaken, 0));
}
