#pragma once

#include "db/Edit_Result.h"

#include <QPointF>

/// Where blocks may be put.
namespace FB_Positions {

/// Refuses what is no number and what is too far away, naming the limits.
[[nodiscard]] Edit_Result check(const QPointF& position);
/// The nearest position where a block may be; what is no number becomes 0.
[[nodiscard]] QPointF clamped(const QPointF& position);

} // namespace FB_Positions
