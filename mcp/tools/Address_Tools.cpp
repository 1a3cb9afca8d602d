#include "mcp/tools/Address_Tools.h"

#include <algorithm>
#include <iterator>

std::vector<MCP_Tool> Address_Tools::all() {
  std::vector<MCP_Tool> tools{list(), import()};
  for (const auto& part : {edits, pins, values}) {
    std::ranges::move(part(), std::back_inserter(tools));
  }
  return tools;
}

std::vector<MCP_Parameter> Address_Tools::withAddress(std::vector<MCP_Parameter> others) {
  std::vector<MCP_Parameter> parameters{MCP_Parameter::integer("main", "Hauptgruppe (0..31)").required(),
                                        MCP_Parameter::integer("middle", "Mittelgruppe (0..7)").required(),
                                        MCP_Parameter::integer("sub", "Untergruppe (0..255)").required()};
  std::ranges::move(others, std::back_inserter(parameters));
  return parameters;
}
