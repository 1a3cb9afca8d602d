#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

#include <vector>

/// What a wire must not run through, the blocks of a page, found by their place. Pixels of the unzoomed page. A
/// question about a short line looks only at what is near it.
class FB_Obstacles {
public:
  FB_Obstacles() = default;
  /// What is empty or has no finite place is in nobody's way.
  explicit FB_Obstacles(std::vector<QRectF> obstacles);

  /// The greatest width and the greatest height of all.
  [[nodiscard]] QSizeF largest() const { return mLargest; }
  [[nodiscard]] const QRectF& at(int index) const { return mObstacles[static_cast<size_t>(index)]; }

  static constexpr double cMarginMaximum = 8;
  /// The first one, seen from `from`, whose inside the horizontal or vertical line comes nearer than `margin` (at most
  /// `cMarginMaximum`); -1 for none. Those in `ignored` do not count.
  [[nodiscard]] int firstHit(const QPointF& from, const QPointF& to, double margin,
                             const std::vector<int>& ignored = {}) const;
  /// Appends those in whose inside the point lies.
  void appendAround(const QPointF& point, std::vector<int>& found) const;

private:
  struct Cell {
    int mColumn = 0;
    int mRow = 0;
  };
  [[nodiscard]] Cell cellOf(const QPointF& point) const;
  /// Index of the cell in `mFirst`.
  [[nodiscard]] size_t place(int column, int row) const {
    return static_cast<size_t>(row) * static_cast<size_t>(mColumns) + static_cast<size_t>(column);
  }

  std::vector<QRectF> mObstacles;
  QSizeF mLargest{0, 0};
  QPointF mOrigin;
  double mCell = 1; ///< edge of a cell
  int mColumns = 0;
  int mRows = 0;
  std::vector<int> mFirst; ///< where the cell's part of `mItems` begins; one more at the end
  std::vector<int> mItems;
};
