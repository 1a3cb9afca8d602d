#pragma once

#include "db/DB_FB_Control.h"

#include <QString>

/// The tool tip of a function block, as rich text.
namespace FB_Tool_Tip {

/// Indices of the pins under the mouse, -1 for none. When there is one on both sides, the input is described. With
/// `isDebug` execution number and identifier follow.
[[nodiscard]] QString of(const DB_FB_Control& block, int input, int output, bool isDebug);

} // namespace FB_Tool_Tip
