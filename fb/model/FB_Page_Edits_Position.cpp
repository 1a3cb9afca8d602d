#include "fb/model/FB_Edit.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Page_Edits.h"
#include "fb/model/FB_Positions.h"

#include <QCoreApplication>

#include <algorithm>
#include <cmath>
#include <functional>

namespace {

using Blocks = std::vector<const DB_FB_Control*>;

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Page_Edits", text);
}

/// Puts the blocks where `place` tells; all of them or, with a position where none may be, none.
Edit_Result moveTo(FB_Edit& edit, const Blocks& blocks, const std::function<QPointF(size_t index)>& place) {
  std::vector<QPointF> positions;
  positions.reserve(blocks.size());
  for (size_t i = 0; i < blocks.size(); ++i) {
    positions.push_back(place(i));
    if (Edit_Result check = FB_Positions::check(positions.back()); !check) {
      return check;
    }
  }
  for (size_t i = 0; i < blocks.size(); ++i) {
    const QPointF to = positions[i];
    const DB_FB_Control& block = *blocks[i];
    const bool isThere = block.mX == to.x() && block.mY == to.y();
    if (!isThere) {
      edit.change(block.mGuid, [to](DB_FB_Control& record) {
        record.mX = to.x();
        record.mY = to.y();
      });
    }
  }
  return Edit_Result::done();
}

double onGrid(double position, int grid) {
  return grid > 0 ? std::round(position / grid) * grid + 0.0 : position; // -0 becomes 0
}

QRectF united(const std::vector<QRectF>& rects) {
  QRectF all;
  for (const QRectF& rect : rects) {
    all |= rect;
  }
  return all;
}

std::vector<QRectF> rectsOf(const Blocks& blocks) {
  std::vector<QRectF> rects;
  rects.reserve(blocks.size());
  for (const DB_FB_Control* const block : blocks) {
    rects.push_back(FB_Geometry::rect(*block));
  }
  return rects;
}

/// The way of each from its place along one axis, so that the gaps become equal.
std::vector<double> spread(const std::vector<QRectF>& rects, bool isHorizontal) {
  struct Span {
    size_t mIndex;
    double mFrom;
    double mLength;
    [[nodiscard]] double centre() const { return mFrom + mLength / 2; }
  };
  std::vector<Span> spans;
  double lengths = 0;
  for (size_t i = 0; i < rects.size(); ++i) {
    const QRectF& rect = rects[i];
    spans.push_back({i, isHorizontal ? rect.left() : rect.top(), isHorizontal ? rect.width() : rect.height()});
    lengths += spans.back().mLength;
  }
  std::stable_sort(spans.begin(), spans.end(), [](const Span& a, const Span& b) { return a.centre() < b.centre(); });
  std::vector<double> ways(rects.size(), 0);
  const double room = spans.back().mFrom + spans.back().mLength - spans.front().mFrom;
  const double gap = (room - lengths) / static_cast<double>(spans.size() - 1);
  double next = spans.front().mFrom;
  for (const Span& span : spans) {
    ways[span.mIndex] = next - span.mFrom;
    next += span.mLength + gap;
  }
  ways[spans.back().mIndex] = 0; // not even by a rounding
  return ways;
}

} // namespace

Edit_Result FB_Page_Edits::move(Project_Session& session, const QHash<QUuid, QPointF>& positions) {
  FB_Edit edit(session, positions.size() == 1 ? tr("Baustein verschieben") : tr("Bausteine verschieben"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result;
  Blocks blocks;
  if (!FB_Edit::find(edit.database(), positions.keys(), blocks, result)) {
    return result;
  }
  return moveTo(edit, blocks, [&](size_t i) { return positions.value(blocks[i]->mGuid); });
}

Edit_Result FB_Page_Edits::alignToGrid(Project_Session& session, const QList<QUuid>& guids, int grid) {
  FB_Edit edit(session, tr("Am Raster ausrichten"), Edit_Scope::Grouping::Own);
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result;
  Blocks blocks;
  if (!FB_Edit::find(edit.database(), guids, blocks, result)) {
    return result;
  }
  return moveTo(edit, blocks,
                [&](size_t i) { return QPointF(onGrid(blocks[i]->mX, grid), onGrid(blocks[i]->mY, grid)); });
}

Edit_Result FB_Page_Edits::align(Project_Session& session, const QList<QUuid>& guids, Edge edge) {
  FB_Edit edit(session, tr("Bausteine ausrichten"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result;
  Blocks blocks;
  if (!FB_Edit::find(edit.database(), guids, blocks, result)) {
    return result;
  }
  const std::vector<QRectF> rects = rectsOf(blocks);
  const QRectF all = united(rects);
  return moveTo(edit, blocks, [&](size_t i) {
    const QRectF& rect = rects[i];
    switch (edge) {
    case Edge::Left:
      return QPointF(all.left(), rect.top());
    case Edge::Top:
      return QPointF(rect.left(), all.top());
    case Edge::Right:
      return QPointF(all.right() - rect.width(), rect.top());
    case Edge::Bottom:
      break;
    }
    return QPointF(rect.left(), all.bottom() - rect.height());
  });
}

Edit_Result FB_Page_Edits::distribute(Project_Session& session, const QList<QUuid>& guids,
                                      Qt::Orientation orientation) {
  constexpr size_t cFewest = 3;
  FB_Edit edit(session, tr("Bausteine verteilen"));
  if (!edit) {
    return edit.refusal();
  }
  Edit_Result result;
  Blocks blocks;
  if (!FB_Edit::find(edit.database(), guids, blocks, result) || blocks.size() < cFewest) {
    return result;
  }
  const bool isHorizontal = orientation == Qt::Horizontal;
  const std::vector<double> ways = spread(rectsOf(blocks), isHorizontal);
  return moveTo(edit, blocks, [&](size_t i) {
    const QPointF from(blocks[i]->mX, blocks[i]->mY);
    return isHorizontal ? from + QPointF(ways[i], 0) : from + QPointF(0, ways[i]);
  });
}
