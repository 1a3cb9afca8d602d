#pragma once

#include "db/Address_Import_Row.h"

#include <QString>

/// An import keeps the lengths that every other edit keeps.
namespace Address_Import_Limits {

/// Cuts name and description to what a record may hold; what the record has already stays, however long. Tells in
/// German what was cut, empty for nothing.
[[nodiscard]] QString shorten(Address_Import_Row::Values& incoming, const Address_Import_Row::Values& present);

} // namespace Address_Import_Limits
