#pragma once

#include <QString>

struct FB_Type;

/// What the tool tip of an entry of the block catalogue tells.
namespace FB_Catalogue_Tip {

/// Rich text: name, type id, pins, parameters and what is to be known before inserting.
[[nodiscard]] QString of(const FB_Type& type);

} // namespace FB_Catalogue_Tip
