#pragma once

#include "base/Datapoint_Id.h"
#include "db/Ets_Groups.h"

#include <functional>
#include <optional>

class QIODevice;

/// Reads an export of ETS: the XML of ETS5 and ETS6, the ESF ("OPC export") and the CSV.
namespace Ets_Reader {

/// Larger files are refused before they are read.
inline constexpr qint64 cSizeLimit = qint64(1024) * 1024 * 1024;

struct Options {
  /// Which format it is; told by the content when not set.
  std::optional<Ets_Groups::Format> mFormat;
  /// What an ESF type becomes of which only the size is known; none leaves such an address without a type.
  Datapoint_Id mUncertain1Byte = {5, 1};
  Datapoint_Id mUncertain2Byte = {9, 1};
  Datapoint_Id mUncertain4Byte = {14, Datapoint_Id::cAnySub};
  /// Called now and then with the part that is read, in percent; false stops the reading. May be called in whatever
  /// thread reads.
  std::function<bool(int percent)> mProgress;
};

/// Faults beyond this number are counted, not told.
inline constexpr int cFaultLimit = 200;

/// False with a German `error` when the file is none of these, is broken, or the reading was stopped; `groups` is empty
/// then. A single faulty line or element is told in `groups.mFaults` and the rest is read.
[[nodiscard]] bool read(QIODevice& device, const Options& options, Ets_Groups& groups, QString& error);

} // namespace Ets_Reader
