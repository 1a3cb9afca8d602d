#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// What the connected controller knows of its group: its own number, and how the others stand.
namespace Controller_Number {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Controller_Number
