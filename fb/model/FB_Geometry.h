#pragma once

#include "db/DB_FB_Control.h"
#include "fb/model/FB_Type.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

/// Where a block and its pins stand. Lengths are pixels; `grid` is the pitch of the page's grid at the present zoom,
/// `cGrid` times the zoom.
namespace FB_Geometry {

inline constexpr double cGrid = 16;

/// The text of the title band: the comment where it shall be the caption, else the block's own title, else the display
/// name of its type.
[[nodiscard]] QString title(const DB_FB_Control& block);

[[nodiscard]] QSizeF size(const DB_FB_Control& block, double grid = cGrid);
/// On the unzoomed page.
[[nodiscard]] QRectF rect(const DB_FB_Control& block);

/// Where a wire ends, from the block's upper left corner: at the left edge for inputs, at the right edge for outputs,
/// in the middle of the pin's row.
[[nodiscard]] QPointF pin(const DB_FB_Control& block, FB_Side side, int index, double grid = cGrid);

} // namespace FB_Geometry
