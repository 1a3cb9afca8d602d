#include "mcp/tools/Connection_Tools.h"

std::vector<MCP_Tool> Connection_Tools::all() {
  return {};
}
