// Reads arbitrary bytes as a batch of telegrams; the first two bytes are the data length and the most data of a record.
#include "net/Telegram_Batch.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) {
    return 0;
  }
  const QByteArrayView payload(data + 2, static_cast<qsizetype>(size) - 2);
  const qsizetype length = data[0] == 0 ? payload.size() : data[0];
  const qsizetype most = data[1];
  DB_Address_Network_Telegram telegram;
  qsizetype offset = 0;
  while (const qsizetype taken = Telegram_Batch::decode(payload, length, offset, most, telegram)) {
    QByteArray again;
    Telegram_Batch::append(again, telegram);
    const bool isThere = offset + taken <= std::min(length, payload.size());
    if (!isThere || telegram.mData.size() > most || again != payload.sliced(offset, taken)) {
      std::abort();
    }
    offset += taken;
  }
  return 0;
}
