#pragma once

#include "db/DB_Connections.h"
#include "mcp/MCP_Tool.h"

/// The tool that dials and ends the link, and how tools tell of the connection in use.
namespace Connection_Runtime {

[[nodiscard]] MCP_Tool connectRuntime();

/// The address; of a connection through the relay service the account, or the controller's DNS name there.
[[nodiscard]] QString target(const DB_Connections::ITEM& item);

} // namespace Connection_Runtime
