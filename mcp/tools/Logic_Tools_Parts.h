#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The tools of logic pages and function blocks, by what they are about.
namespace Logic_Tools {

[[nodiscard]] std::vector<MCP_Tool> pages();
[[nodiscard]] std::vector<MCP_Tool> types();
/// Making, deleting and reading blocks.
[[nodiscard]] std::vector<MCP_Tool> blocks();
/// Changing a block: position, caption, parameters, script.
[[nodiscard]] std::vector<MCP_Tool> changes();
[[nodiscard]] std::vector<MCP_Tool> connections();

} // namespace Logic_Tools
