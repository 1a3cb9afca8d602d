#pragma once

#include <QPointF>
#include <QRectF>

#include <optional>
#include <vector>

/// Where blocks that are being dragged come to rest: on the page's grid, and in line with blocks that stand there.
/// Lengths are pixels of the unzoomed page.
namespace FB_Snap {

/// The lines of some blocks that others may line up with.
struct Lines {
  std::vector<double> mEdgesX; ///< left and right edges
  std::vector<double> mEdgesY; ///< upper and lower edges
  std::vector<double> mRows;   ///< heights at which pins stand

  void add(const QRectF& block);
};

struct Result {
  QPointF mOffset;               ///< instead of the one that was asked for
  std::optional<double> mGuideX; ///< the upright line that the blocks came to
  std::optional<double> mGuideY; ///< the level one
};

/// What nears the lines of `guides` by less than `reach` comes onto them; else `anchor`, a point of what is dragged,
/// comes onto a multiple of the grid. A grid of 0 or less is none. All of `moved` and `anchor` as before dragging.
[[nodiscard]] Result snap(const QPointF& offset, const Lines& moved, const QPointF& anchor, const Lines& guides,
                          double reach, int grid);

/// The multiple of the grid that is nearest, halves away from zero; the value itself without a grid.
[[nodiscard]] double toGrid(double value, int grid);

} // namespace FB_Snap
