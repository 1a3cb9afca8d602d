// Reads arbitrary bytes as an XML export, writes what it found and reads that again.
#include "db/Ets_Xml_Writer.h"
#include "fuzz/Ets_Check.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Ets_Reader::Options options;
  options.mFormat = Ets_Groups::Format::Xml;
  const Ets_Rig::Outcome read =
      Ets_Rig::read(QByteArray(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size)), options);
  Ets_Check::outcome(read);
  if (read.mIsRead) {
    Ets_Check::roundTrip(read.mGroups, Ets_Groups::Format::Xml, [](const Address_Tree& tree, QIODevice& device) {
      Ets_Check::require(Ets_Xml_Writer::write(tree, device).mLeftOut == 0, "all is written");
    });
  }
  return 0;
}
