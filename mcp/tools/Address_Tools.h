#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// Group addresses: the tree, pins bound to them, import, values.
namespace Address_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

/// The parts of it, each in a file of its own.
[[nodiscard]] MCP_Tool list();
[[nodiscard]] std::vector<MCP_Tool> edits();
[[nodiscard]] std::vector<MCP_Tool> pins();
[[nodiscard]] MCP_Tool import();
[[nodiscard]] std::vector<MCP_Tool> values();

/// `main`, `middle` and `sub`, all required, before the others.
[[nodiscard]] std::vector<MCP_Parameter> withAddress(std::vector<MCP_Parameter> others = {});

} // namespace Address_Tools
