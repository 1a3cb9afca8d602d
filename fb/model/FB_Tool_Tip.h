#pragma once

#include "db/DB_FB_Control.h"

#include <QString>

#include <optional>

/// The tool tip of a function block, as rich text.
namespace FB_Tool_Tip {

/// Indices of the pins under the mouse, -1 for none. When there is one on both sides, the input is described. An
/// execution number that is given follows, with the identifier.
[[nodiscard]] QString of(const DB_FB_Control& block, int input, int output, std::optional<int> executionNumber = {});

} // namespace FB_Tool_Tip
