// Reads arbitrary bytes as messages that arrive in segments, as the client reads them. The first byte says how long the
// segments are; with its highest bit set the rest stands for the deciphered stream, so that headers can be found.
#include "net/Message_Reader.h"
#include "net/Network_Cipher.h"

#include <QBuffer>

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) {
    return 0;
  }
  constexpr std::uint8_t cIsPlain = 0x80;
  QByteArray stream(reinterpret_cast<const char*>(data) + 1, static_cast<qsizetype>(size) - 1);
  if (data[0] & cIsPlain) {
    stream.truncate(stream.size() / 16 * 16);
    if (!Network_Cipher::encipher({stream.data(), static_cast<std::size_t>(stream.size())})) {
      std::abort();
    }
  }
  const qsizetype segment = (data[0] & ~cIsPlain) + 1;
  QByteArray arrived;
  QBuffer device(&arrived);
  if (!device.open(QIODevice::ReadOnly)) {
    std::abort();
  }
  Message_Reader reader;
  for (qsizetype at = 0; at < stream.size(); at += segment) {
    arrived.append(stream.mid(at, segment));
    for (auto step = reader.next(device); step != Message_Reader::Step::Missing; step = reader.next(device)) {
      const Network_Message& message = reader.message();
      const bool isWhole = step == Message_Reader::Step::Message && message.isPossible() &&
                           reader.payload().size() == static_cast<qsizetype>(message.mPaddedLength) &&
                           Network_Message::fromBytes(message.toBytes()) == message;
      if (reader.isPending() || !(isWhole || device.bytesAvailable() == 0)) {
        std::abort();
      }
    }
    // What is missing takes no memory.
    if (reader.payload().capacity() > std::max<qsizetype>(1024, 2 * stream.size())) {
      std::abort();
    }
  }
  return 0;
}
