#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The house mode: present, absent, vacation.
namespace Controller_Presence {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Controller_Presence
