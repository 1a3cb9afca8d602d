#pragma once

#include "base/Group_Address.h"

#include <QJsonObject>

class DB_Address_Sub_Group;
struct DB_Address_Binding;

/// Group addresses as tools answer them.
namespace MCP_Address_Json {

/// `main`, `middle`, `sub` and `address` ("1/2/3").
[[nodiscard]] QJsonObject of(const Group_Address& address);
/// With `comment` (its name), `description` where there is one, the type, and those of the flags `read_at_start`,
/// `read_cyclic`, `write` and `active` that are not as usual.
[[nodiscard]] QJsonObject of(const Group_Address& address, const DB_Address_Sub_Group& group);
/// What a pin is bound to: `kind` is "none", "address" or "internal".
[[nodiscard]] QJsonObject of(const DB_Address_Binding& binding);

} // namespace MCP_Address_Json
