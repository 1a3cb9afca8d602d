#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The recordings of the project.
namespace Statistic_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Statistic_Tools
