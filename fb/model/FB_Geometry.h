#pragma once

#include "db/DB_FB_Control.h"
#include "fb/model/FB_Type.h"

#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

/// Where a block and its pins stand. Lengths are pixels; `grid` is the pitch of the page's grid at the present zoom,
/// `cGrid` times the zoom.
///
/// A block of n rows of pins is 2 + n grid units high: the title band, half a unit above the first row, the rows, half
/// a unit below the last. So the pins of a block that stands on the grid stand on the grid, too.
namespace FB_Geometry {

inline constexpr double cGrid = 16;
/// Height of the title band, in grid units.
inline constexpr double cTitleBand = 1.25;
/// So many characters of a title are shown at most.
inline constexpr int cTitleLength = 120;
/// So many characters of a pin's short name make the block wider at most.
inline constexpr qsizetype cPinNameLength = 40;
/// The text of a comment block is wrapped behind so many characters, and ends after so many lines.
inline constexpr int cCommentWidth = 60;
inline constexpr int cCommentLines = 40;

/// The text of the title band: the comment where it shall be the caption, else the block's own title, else the display
/// name of its type. Whole, however long it is.
[[nodiscard]] QString title(const DB_FB_Control& block);
/// The lines of it that are shown: one, or of a comment block the wrapped text.
[[nodiscard]] QStringList titleLines(const DB_FB_Control& block);

[[nodiscard]] QSizeF size(const DB_FB_Control& block, double grid = cGrid);
/// On the unzoomed page.
[[nodiscard]] QRectF rect(const DB_FB_Control& block);

/// Where a wire ends, from the block's upper left corner: at the left edge for inputs, at the right edge for outputs,
/// in the middle of the pin's row.
[[nodiscard]] QPointF pin(const DB_FB_Control& block, FB_Side side, int index, double grid = cGrid);
/// The same for a block whose width is known.
[[nodiscard]] QPointF pin(int type, FB_Side side, int index, double width, double grid);

/// Rows of pins, from `mFirst` to before `mEnd`.
struct Rows {
  int mFirst = 0;
  int mEnd = 0;
};
/// Of so many, those that may be seen between two heights below the block's upper edge, with one to spare on both
/// sides.
[[nodiscard]] Rows rowsBetween(double top, double bottom, size_t count, double grid);

} // namespace FB_Geometry
