#include "mcp/tools/Controller_Tools.h"

#include "mcp/tools/Controller_Group.h"
#include "mcp/tools/Controller_Number.h"
#include "mcp/tools/Controller_Presence.h"
#include "mcp/tools/Controller_Run.h"

std::vector<MCP_Tool> Controller_Tools::all() {
  std::vector<MCP_Tool> tools;
  for (const std::vector<MCP_Tool>& some :
       {Controller_Group::all(), Controller_Number::all(), Controller_Run::all(), Controller_Presence::all()}) {
    tools.insert(tools.end(), some.begin(), some.end());
  }
  return tools;
}
