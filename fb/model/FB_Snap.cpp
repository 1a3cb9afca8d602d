#include "fb/model/FB_Snap.h"

#include <cmath>
#include <utility>

namespace {

struct Near {
  double mDistance = 0; ///< signed: what has to be added
  double mLine = 0;
};

/// The least distance below `reach` of a moved line, shifted by `offset`, to a line that stands; level with the first.
void approach(std::optional<Near>& best, const std::vector<double>& moved, double offset,
              const std::vector<double>& lines, double reach) {
  for (const double line : lines) {
    for (const double own : moved) {
      const double distance = line - own - offset;
      const double limit = best ? std::abs(best->mDistance) : reach;
      if (std::abs(distance) < limit) {
        best = Near{distance, line};
      }
    }
  }
}

double settle(double offset, double anchor, const std::optional<Near>& guide, int grid) {
  return guide ? offset + guide->mDistance : FB_Snap::toGrid(anchor + offset, grid) - anchor;
}

} // namespace

void FB_Snap::Lines::add(const QRectF& block) {
  mEdgesX.insert(mEdgesX.end(), {block.left(), block.right()});
  mEdgesY.insert(mEdgesY.end(), {block.top(), block.bottom()});
}

double FB_Snap::toGrid(double value, int grid) {
  return grid > 0 ? std::round(value / grid) * grid : value;
}

FB_Snap::Result FB_Snap::snap(const QPointF& offset, const Lines& moved, const QPointF& anchor, const Lines& guides,
                              double reach, int grid) {
  std::optional<Near> x;
  std::optional<Near> y;
  approach(x, moved.mEdgesX, offset.x(), guides.mEdgesX, reach);
  approach(y, moved.mRows, offset.y(), guides.mRows, reach);
  approach(y, moved.mEdgesY, offset.y(), guides.mEdgesY, reach);
  Result result;
  result.mOffset = {settle(offset.x(), anchor.x(), x, grid), settle(offset.y(), anchor.y(), y, grid)};
  result.mGuideX = x ? std::optional(x->mLine) : std::nullopt;
  result.mGuideY = y ? std::optional(y->mLine) : std::nullopt;
  return result;
}
