#pragma once

#include "db/DB_Address_Binding.h"

#include <QString>

/// What a binding is called at a pin.
namespace FB_Pin_Text {

/// "1.2.3" for a group address, "Variable:Licht" for a variable; empty when unbound.
[[nodiscard]] QString binding(const DB_Address_Binding& binding);
/// The same with the address's name: "1.2.3 Licht"; of a variable "V:Licht".
[[nodiscard]] QString label(const DB_Address_Binding& binding);

} // namespace FB_Pin_Text
