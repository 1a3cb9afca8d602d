#pragma once

#include "db/DB_FB_Control.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Parameter.h"
#include "mcp/MCP_Result.h"

#include <QJsonArray>
#include <QJsonObject>

#include <vector>

/// A Modbus register as tools take and tell it.
namespace Modbus_Tools_Register {

/// Registers that one answer holds unless another number is asked for.
inline constexpr int cUsualLimit = 50;

/// What a register is made of; `address` is the first.
[[nodiscard]] std::vector<MCP_Parameter> members();

/// Takes the arguments that are there into the register. `datatype` goes before what it stands for; what it overrules,
/// and what does not go together, is appended to `warnings` (German).
[[nodiscard]] MCP_Result take(const MCP_Call& arguments, DB_Modbus_Register& item, QStringList& warnings);

/// With index, the name of the data type, and the block's pins that belong to it. At most `limit` from `offset` on.
[[nodiscard]] QJsonArray list(const Address_Tree& tree, const DB_FB_Control& block, int offset, int limit);
[[nodiscard]] QJsonObject entry(const Address_Tree& tree, const DB_FB_Control& block, int index);

/// "Leistung (1/2/3)": pins of registers that are bound in the first and whose binding the second no longer has.
[[nodiscard]] QStringList lostBindings(const DB_FB_Control& before, const DB_FB_Control& after);

} // namespace Modbus_Tools_Register
