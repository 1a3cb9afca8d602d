#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// Group addresses: the tree, pins bound to them, import, values.
namespace Address_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Address_Tools
