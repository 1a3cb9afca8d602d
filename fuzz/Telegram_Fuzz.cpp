// Reads arbitrary bytes as the record of a telegram; what was read comes back from what it writes.
#include "net/DB_Address_Network_Telegram.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using Telegram = DB_Address_Network_Telegram;
  const Telegram telegram = Telegram::fromBytes({data, static_cast<qsizetype>(size)});
  const QByteArray bytes = telegram.toBytes();
  const qsizetype most =
      std::min<qsizetype>(Telegram::cMostData, std::max<qsizetype>(0, qsizetype(size) - Telegram::cHead));
  if (telegram.mData.size() > most || bytes.size() != Telegram::cHead + telegram.mData.size() ||
      Telegram::fromBytes(bytes) != telegram) {
    std::abort();
  }
  (void)telegram.address().toString();
  return 0;
}
