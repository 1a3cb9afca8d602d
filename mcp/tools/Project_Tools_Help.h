#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The help pages and the functions of scripts, as plain text. A topic is a page's name without ".html" behind its
/// kind: "program/fb_and" is the page of a block type, "common/variable" one beside them. Visualisation elements have
/// none.
namespace Project_Tools_Help {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Project_Tools_Help
