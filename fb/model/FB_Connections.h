#pragma once

#include "db/DB_FB_Page.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QString>

#include <vector>

class ProjectDatabase;

/// The connections of a page, derived from the bindings of its blocks' pins: an output and an input that share one are
/// connected.
namespace FB_Connections {

/// A connection by the places of its blocks in the page's list, for drawing.
struct Entry {
  int mSource = 0; ///< index of the block in the page's children
  int mOutput = 0;
  int mTarget = 0;
  int mInput = 0;
  int mNet = 0; ///< number of what the pins are bound to: all connections through one variable or address have the same
  friend bool operator==(const Entry&, const Entry&) = default;
};

/// True when both are bound, to the same group address or variable.
[[nodiscard]] bool isShared(const DB_Address_Binding& a, const DB_Address_Binding& b);

/// More connections than a page can show: where one variable is on very many outputs and inputs, the rest is left out.
inline constexpr size_t cLimit = 100'000;

/// In the order of source blocks and their outputs, then of target blocks and their inputs, at most `cLimit`; in time
/// linear to the number of pins and connections. A block is not connected to itself.
[[nodiscard]] std::vector<Entry> of(const DB_FB_Page& page);

/// "Und (Ausgang)  ->  Oder (Eingang 1)": source block, source pin, target block, target pin. Empty for a connection
/// whose blocks or pins are gone.
[[nodiscard]] QString describe(const ProjectDatabase& database, const FB_Connection& connection);

} // namespace FB_Connections
