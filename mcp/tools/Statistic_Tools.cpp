#include "mcp/tools/Statistic_Tools.h"

std::vector<MCP_Tool> Statistic_Tools::all() {
  return {};
}
