#pragma once

#include <QtGlobal>

class Ets_Collector;
class QIODevice;

/// Reads the XML export of ETS5 and ETS6 (root "GroupAddress-Export", namespace "http://knx.org/xml/ga-export/01").
namespace Ets_Xml_Reader {

/// Elements may be nested so deep; files of ETS need 4.
inline constexpr int cDepthLimit = 64;
/// An element's own tag, or a comment, in bytes.
inline constexpr qint64 cTokenLimit = qint64(256) * 1024;

/// False when the file is no such export, is broken, or must not be read on; the collector has the error then. A
/// single faulty element is a fault and the rest is read. The text is read as a stream, never as a whole.
[[nodiscard]] bool read(QIODevice& device, Ets_Collector& collector);

} // namespace Ets_Xml_Reader
