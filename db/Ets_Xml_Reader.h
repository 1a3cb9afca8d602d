#pragma once

#include "db/Ets_Groups.h"

class QIODevice;

/// Reads the XML export of ETS5 and ETS6 (root "GroupAddress-Export", namespace "http://knx.org/xml/ga-export/01").
namespace Ets_Xml_Reader {

/// Elements may be nested so deep; files of ETS need 4.
inline constexpr int cDepthLimit = 64;
/// A longer list of faults is cut.
inline constexpr int cFaultLimit = 200;

/// False with a German `error` when the file is no such export or is broken; `groups` then is empty. A single faulty
/// element is told in `groups.mFaults` and the rest is read.
[[nodiscard]] bool read(QIODevice& device, Ets_Groups& groups, QString& error);

} // namespace Ets_Xml_Reader
