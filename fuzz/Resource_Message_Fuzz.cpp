// Reads arbitrary bytes as the payload of a resource.
#include "net/Resource_Message.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArrayView input(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const std::optional<Resource_Message> message = Resource_Message::unpack(input);
  if (message && (message->mName.isEmpty() || message->mName.contains('\0') ||
                  message->mName.size() > Resource_Message::cNameField ||
                  message->mBytes != input.sliced(Resource_Message::cNameField))) {
    std::abort();
  }
  return 0;
}
