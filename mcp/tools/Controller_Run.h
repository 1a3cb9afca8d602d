#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// What brings the project to the controller and runs it there.
namespace Controller_Run {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Controller_Run
