#include "net/Message_Reader.h"

#include "net/Network_Cipher.h"

#include <QIODevice>

#include <array>
#include <utility>

namespace {

/// What a payload's memory is kept for the next one.
constexpr qsizetype cKept = qsizetype(64) * 1024;

} // namespace

Message_Reader::Step Message_Reader::next(QIODevice& device) {
  if (!isPending()) {
    if (device.bytesAvailable() < Network_Message::cSize) {
      return Step::Missing;
    }
    std::array<char, Network_Message::cSize> header{};
    Network_Message message;
    if (device.read(header.data(), Network_Message::cSize) == Network_Message::cSize &&
        Network_Cipher::decipher(header)) {
      message = Network_Message::fromBytes(header);
    }
    if (!message.isPossible()) {
      device.readAll();
      return Step::OutOfStep;
    }
    mPending = message;
  }
  if (device.bytesAvailable() < mPending.mPaddedLength) {
    return Step::Missing;
  }
  mMessage = std::exchange(mPending, {});
  const auto length = static_cast<qsizetype>(mMessage.mPaddedLength);
  if (mPayload.capacity() > cKept) {
    mPayload = {};
  }
  mPayload.resize(length);
  if (length > 0 && (device.read(mPayload.data(), length) != length ||
                     !Network_Cipher::decipher({mPayload.data(), static_cast<std::size_t>(length)}))) {
    device.readAll();
    return Step::OutOfStep;
  }
  return Step::Message;
}
