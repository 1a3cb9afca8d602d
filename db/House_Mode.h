#pragma once

#include "base/Group_Address.h"

#include <QString>

#include <optional>

class Address_Tree;

/// The house mode: present (0), absent (1) or vacation (2), one for the whole controller. Its value travels as that of
/// the group address with the variable's name.
namespace House_Mode {

inline constexpr QStringView cVariable = u"Hausmodus";
inline constexpr int cHighest = 2;

/// "present", "absent" or "vacation"; empty for another number.
[[nodiscard]] QString name(int value);
/// The number of such a name.
[[nodiscard]] std::optional<int> value(const QString& name);

/// The first group address with the variable's name, in the order of the numbers; empty when there is none.
[[nodiscard]] std::optional<Group_Address> address(const Address_Tree& tree);

} // namespace House_Mode
