#pragma once

#include <QStringView>

class Ets_Collector;
class QIODevice;

/// Reads the ESF export ("OPC export") of ETS: a line per group address, its columns divided by tabs.
///
/// Groups have names here and no numbers, so they are there only where they have addresses.
namespace Ets_Esf_Reader {

/// Whether a text that begins so is one: some line begins with "Main.Middle.1/2/3" and a tab.
[[nodiscard]] bool isLikely(QStringView beginning);

/// False when the file is none or must not be read on; the collector has the error then. A faulty line is a fault and
/// the rest is read.
[[nodiscard]] bool read(QIODevice& device, Ets_Collector& collector);

} // namespace Ets_Esf_Reader
