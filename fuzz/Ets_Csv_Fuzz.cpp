// Reads arbitrary bytes as an export of whatever format they look like, then as CSV; quotes every cell of their rows
// and reads these again.
#include "db/Delimited_Text.h"
#include "db/Ets_Text.h"
#include "db/Ets_Xml_Writer.h"
#include "fuzz/Ets_Check.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  Ets_Check::outcome(Ets_Rig::read(bytes));
  Ets_Reader::Options options;
  options.mFormat = Ets_Groups::Format::Csv;
  const Ets_Rig::Outcome read = Ets_Rig::read(bytes, options);
  Ets_Check::outcome(read);
  if (read.mIsRead) {
    Ets_Check::roundTrip(read.mGroups, Ets_Groups::Format::Xml, [](const Address_Tree& tree, QIODevice& device) {
      Ets_Check::require(Ets_Xml_Writer::write(tree, device).mLeftOut == 0, "all is written");
    });
  }
  QString error;
  const QString text = Ets_Text::decode(bytes, error).value_or(QString());
  QString quoted;
  std::vector<QStringList> rows;
  Delimited_Text reader(text, u';');
  int line = 0;
  for (Delimited_Text::Row row; reader.next(row);) {
    Ets_Check::require(row.mLine > line && !row.mFields.isEmpty(), "rows follow each other");
    Ets_Check::require(row.mOpenQuoteLine == 0 || row.mOpenQuoteLine >= row.mLine, "a quote opens in its row");
    line = row.mLine;
    rows.push_back(row.mFields);
    for (QString& field : row.mFields) {
      field = u'"' + field.replace(u'"', QStringLiteral("\"\"")) + u'"';
    }
    quoted += row.mFields.join(u';') + u'\n';
  }
  Ets_Check::require(reader.position() == text.size(), "all is read");
  Delimited_Text again(quoted, u';');
  Delimited_Text::Row row;
  for (const QStringList& fields : rows) {
    Ets_Check::require(again.next(row) && row.mFields == fields && row.mOpenQuoteLine == 0, "quoted cells are whole");
  }
  return 0;
}
