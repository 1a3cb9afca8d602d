#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The controllers of a group, what runs on the connected one, operating mode and house mode.
namespace Controller_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Controller_Tools
