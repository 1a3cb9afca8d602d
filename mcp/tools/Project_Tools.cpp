#include "mcp/tools/Project_Tools.h"

std::vector<MCP_Tool> Project_Tools::all() {
  return {};
}
