#include "mcp/tools/Controller_Tools.h"

std::vector<MCP_Tool> Controller_Tools::all() {
  return {};
}
