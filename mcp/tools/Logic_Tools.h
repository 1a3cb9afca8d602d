#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// Logic pages, function blocks and their connections.
namespace Logic_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Logic_Tools
