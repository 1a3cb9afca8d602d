#pragma once

#include <QStringView>

class Ets_Collector;
class QIODevice;

/// Reads the CSV export of ETS in its layouts: names in one or three columns, addresses in one or three, with or
/// without a header, divided by comma, semicolon or tab.
namespace Ets_Csv_Reader {

/// Whether a text that begins so is one: it has a column of addresses.
[[nodiscard]] bool isLikely(QStringView beginning);

/// False when the file is none or must not be read on; the collector has the error then. A faulty line is a fault and
/// the rest is read.
[[nodiscard]] bool read(QIODevice& device, Ets_Collector& collector);

} // namespace Ets_Csv_Reader
