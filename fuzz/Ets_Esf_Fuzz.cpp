// Reads arbitrary bytes as an ESF export, writes what it found and reads that again.
#include "db/Ets_Esf_Writer.h"
#include "db/Ets_Text.h"
#include "fuzz/Ets_Check.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  Ets_Reader::Options options;
  options.mFormat = Ets_Groups::Format::Esf;
  const Ets_Rig::Outcome read = Ets_Rig::read(bytes, options);
  Ets_Check::outcome(read);
  if (read.mIsRead) {
    Ets_Check::roundTrip(read.mGroups, Ets_Groups::Format::Esf, [&read](const Address_Tree& tree, QIODevice& device) {
      Ets_Check::require(Ets_Esf_Writer::write(tree, read.mGroups.mProjectName, device).mLeftOut == 0,
                         "all is written");
    });
  }
  QString error;
  const std::optional<QString> text = Ets_Text::decode(bytes, error);
  // A mark at the beginning is no part of a text.
  if (text && !text->startsWith(QChar::ByteOrderMark)) {
    Ets_Check::require(Ets_Text::decode(Ets_Text::encode(*text), error) == text, "text is encoded as it was");
  }
  return 0;
}
