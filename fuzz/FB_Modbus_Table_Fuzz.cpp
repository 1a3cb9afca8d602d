// Reads arbitrary text as a table of Modbus registers; what was understood is written and read alike.
#include "fb/model/FB_Modbus_Fields.h"
#include "fb/model/FB_Modbus_Table.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>

namespace {

void require(bool isTrue, const char* what) {
  if (!isTrue) {
    std::fprintf(stderr, "not so: %s\n", what);
    std::abort();
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QString text = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  const FB_Modbus_Table::Result result = FB_Modbus_Table::read(text);
  for (const DB_Modbus_Register& item : result.mRegisters) {
    const QList<FB_Modbus_Fields::Fault> faults = FB_Modbus_Fields::faults(item);
    require(std::ranges::none_of(faults, [](const auto& fault) { return fault.mIsRange; }), "nothing is out of range");
  }
  const QString written = FB_Modbus_Table::write(result.mRegisters);
  const FB_Modbus_Table::Result again = FB_Modbus_Table::read(written);
  require(again.mRegisters.size() == result.mRegisters.size(), "as many are read again");
  require(FB_Modbus_Table::write(again.mRegisters) == written, "they are read alike");
  return 0;
}
