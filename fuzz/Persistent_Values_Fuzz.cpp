// Reads arbitrary bytes as persistent values; what is read must be the same after writing and reading it again.
#include "net/Persistent_Values.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  QString error;
  const std::optional<Persistent_Values> values =
      Persistent_Values::fromBytes({reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)}, &error);
  if (!values) {
    if (error.isEmpty()) {
      std::abort();
    }
    return 0;
  }
  const std::optional<Persistent_Values> again = Persistent_Values::fromBytes(values->toBytes());
  if (!again || again->mValues != values->mValues) {
    std::abort();
  }
  return 0;
}
