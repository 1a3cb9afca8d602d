#include "mcp/tools/Modbus_Tools.h"

std::vector<MCP_Tool> Modbus_Tools::all() {
  return {};
}
