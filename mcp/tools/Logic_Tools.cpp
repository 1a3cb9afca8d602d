#include "mcp/tools/Logic_Tools.h"

#include "mcp/tools/Logic_Tools_Parts.h"

#include <iterator>
#include <utility>

std::vector<MCP_Tool> Logic_Tools::all() {
  std::vector<MCP_Tool> tools = pages();
  for (std::vector<MCP_Tool> part : {types(), blocks(), changes(), connections()}) {
    std::move(part.begin(), part.end(), std::back_inserter(tools));
  }
  return tools;
}
