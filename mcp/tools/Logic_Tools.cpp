#include "mcp/tools/Logic_Tools.h"

std::vector<MCP_Tool> Logic_Tools::all() {
  return {};
}
