// Reads arbitrary bytes as a controller's answer to a search. What is read is within its limits and survives the way
// there and back.
#include "net/DB_Discovery_Answer.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr int cLargestPort = 65535;
  const auto answer = DB_Discovery_Answer::parse({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)});
  if (!answer) {
    return 0;
  }
  const auto again = DB_Discovery_Answer::parse(answer->toData());
  const bool isWithin = answer->mName.size() <= DB_Discovery_Answer::cTextLimit && answer->mPort >= 1 &&
                        answer->mPort <= cLargestPort && !answer->mName.contains(u'\n');
  if (!isWithin || !again || again->mName != answer->mName || again->mSerialNumber != answer->mSerialNumber ||
      again->mRuntimeVersion != answer->mRuntimeVersion || again->mPort != answer->mPort) {
    std::abort();
  }
  return 0;
}
