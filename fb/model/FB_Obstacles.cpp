#include "fb/model/FB_Obstacles.h"

#include <QtNumeric>

#include <algorithm>
#include <cmath>
#include <utility>

namespace {

constexpr double cCellMinimum = 192; // a block or two
constexpr int cCellsMaximum = 128;   // in a row, however far out a block stands

bool isInTheWay(const QRectF& obstacle) {
  return qIsFinite(obstacle.x()) && qIsFinite(obstacle.y()) && qIsFinite(obstacle.right()) &&
         qIsFinite(obstacle.bottom()) && obstacle.width() > 0 && obstacle.height() > 0;
}

QRectF widened(const QRectF& rect, double margin) {
  return rect.adjusted(-margin, -margin, margin, margin);
}

/// Touching an edge is no hit.
bool isHit(const QRectF& rect, const QRectF& line) {
  return line.top() < rect.bottom() && line.bottom() > rect.top() && line.left() < rect.right() &&
         line.right() > rect.left();
}

bool isIn(const std::vector<int>& list, int index) {
  return std::find(list.cbegin(), list.cend(), index) != list.cend();
}

} // namespace

FB_Obstacles::FB_Obstacles(std::vector<QRectF> obstacles) : mObstacles(std::move(obstacles)) {
  QRectF bounds;
  for (const QRectF& obstacle : mObstacles) {
    if (isInTheWay(obstacle)) {
      bounds |= widened(obstacle, cMarginMaximum);
      mLargest = mLargest.expandedTo(obstacle.size());
    }
  }
  if (bounds.isEmpty()) {
    return;
  }
  mOrigin = bounds.topLeft();
  mCell = std::max(cCellMinimum, std::max(bounds.width(), bounds.height()) / (cCellsMaximum - 1));
  mColumns = static_cast<int>(bounds.width() / mCell) + 1;
  mRows = static_cast<int>(bounds.height() / mCell) + 1;

  const auto forCells = [this](const auto& onCell) {
    for (size_t i = 0; i < mObstacles.size(); ++i) {
      if (!isInTheWay(mObstacles[i])) {
        continue;
      }
      const QRectF wide = widened(mObstacles[i], cMarginMaximum);
      const Cell first = cellOf(wide.topLeft());
      const Cell last = cellOf(wide.bottomRight());
      for (int row = first.mRow; row <= last.mRow; ++row) {
        for (int column = first.mColumn; column <= last.mColumn; ++column) {
          onCell(place(column, row), static_cast<int>(i));
        }
      }
    }
  };
  std::vector<int> next(static_cast<size_t>(mColumns * mRows), 0);
  forCells([&next](size_t cell, int) { ++next[cell]; });
  mFirst.assign(next.size() + 1, 0);
  for (size_t cell = 0; cell < next.size(); ++cell) {
    mFirst[cell + 1] = mFirst[cell] + next[cell];
    next[cell] = mFirst[cell];
  }
  mItems.resize(static_cast<size_t>(mFirst.back()));
  forCells([this, &next](size_t cell, int item) { mItems[static_cast<size_t>(next[cell]++)] = item; });
}

FB_Obstacles::Cell FB_Obstacles::cellOf(const QPointF& point) const {
  const QPointF inside = (point - mOrigin) / mCell;
  return {static_cast<int>(std::clamp(std::floor(inside.x()), 0.0, double(mColumns - 1))),
          static_cast<int>(std::clamp(std::floor(inside.y()), 0.0, double(mRows - 1)))};
}

int FB_Obstacles::firstHit(const QPointF& from, const QPointF& to, double margin,
                           const std::vector<int>& ignored) const {
  if (mItems.empty()) {
    return -1;
  }
  const QRectF line = QRectF(from, to).normalized();
  const Cell first = cellOf(from);
  const Cell last = cellOf(to);
  const auto distance = [&from](const QRectF& rect) {
    const QPointF nearest(std::clamp(from.x(), rect.left(), rect.right()),
                          std::clamp(from.y(), rect.top(), rect.bottom()));
    return (nearest - from).manhattanLength();
  };
  const int columnStep = first.mColumn <= last.mColumn ? 1 : -1;
  const int rowStep = first.mRow <= last.mRow ? 1 : -1;
  for (int row = first.mRow; row != last.mRow + rowStep; row += rowStep) {
    for (int column = first.mColumn; column != last.mColumn + columnStep; column += columnStep) {
      int found = -1;
      const size_t cell = place(column, row);
      for (int i = mFirst[cell]; i < mFirst[cell + 1]; ++i) {
        const int item = mItems[static_cast<size_t>(i)];
        if (isHit(widened(at(item), margin), line) && !isIn(ignored, item) &&
            (found < 0 || distance(at(item)) < distance(at(found)))) {
          found = item;
        }
      }
      if (found >= 0) {
        return found;
      }
    }
  }
  return -1;
}

void FB_Obstacles::appendAround(const QPointF& point, std::vector<int>& found) const {
  if (mItems.empty()) {
    return;
  }
  const Cell in = cellOf(point);
  const size_t cell = place(in.mColumn, in.mRow);
  for (int i = mFirst[cell]; i < mFirst[cell + 1]; ++i) {
    const int item = mItems[static_cast<size_t>(i)];
    if (isHit(at(item), QRectF(point, QSizeF(0, 0)))) {
      found.push_back(item);
    }
  }
}
