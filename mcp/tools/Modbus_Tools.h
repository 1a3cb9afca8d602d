#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The registers and the connection of Modbus master blocks.
namespace Modbus_Tools {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Modbus_Tools
