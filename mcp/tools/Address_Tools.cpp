#include "mcp/tools/Address_Tools.h"

std::vector<MCP_Tool> Address_Tools::all() {
  return {};
}
