#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The project itself, the help, and what the window shows.
namespace Project_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Project_Tools
