#pragma once

#include "mcp/MCP_Tool.h"

#include <vector>

/// The controllers that run the project together ("Verteiltes Projekt", "Steuerungsverbund").
namespace Controller_Group {

[[nodiscard]] std::vector<MCP_Tool> all();

} // namespace Controller_Group
