#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The project's connections and the link to the controller.
namespace Connection_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Connection_Tools
