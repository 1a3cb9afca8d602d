#pragma once

#include "db/DB_FB_Control.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/MCP_Parameter.h"

#include <QJsonObject>

#include <vector>

/// How a Modbus master block reaches its device, as tools take and tell it.
namespace Modbus_Tools_Connection {

using Block = MCP_Lookup::Found<DB_FB_Control>;

/// The parameter `fb_guid`, and the block that it names, which must be a Modbus master.
[[nodiscard]] MCP_Parameter guid();
[[nodiscard]] Block master(const MCP_Call& call);

[[nodiscard]] std::vector<MCP_Parameter> parameters();
/// Sets those that are there.
[[nodiscard]] MCP_Result set(MCP_Call& call);
/// GUIDs, title and all of the connection.
[[nodiscard]] QJsonObject config(const DB_FB_Control& block);
/// Of what keeps the block from its device.
void warnOf(MCP_Call& call, const DB_FB_Control& block);

} // namespace Modbus_Tools_Connection
