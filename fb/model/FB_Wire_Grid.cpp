#include "fb/model/FB_Wire_Grid.h"

#include <algorithm>
#include <utility>

namespace {

constexpr double cBend = 64; // pixels of detour that a bend is worth

void insertLine(std::vector<double>& lines, double line) {
  const auto at = std::lower_bound(lines.begin(), lines.end(), line);
  if (at == lines.end() || *at != line) {
    lines.insert(at, line);
  }
}

int placeOf(const std::vector<double>& lines, double line) {
  return static_cast<int>(std::lower_bound(lines.cbegin(), lines.cend(), line) - lines.cbegin());
}

/// The first line behind `line`.
int placeBehind(const std::vector<double>& lines, double line) {
  return static_cast<int>(std::upper_bound(lines.cbegin(), lines.cend(), line) - lines.cbegin());
}

} // namespace

FB_Wire_Grid::FB_Wire_Grid(const QPointF& start, const QPointF& goal, double reach, double margin)
    : mStart(start),
      mGoal(goal),
      mBounds(QRectF(start, goal).normalized().adjusted(-reach, -reach, reach, reach)),
      mMargin(margin) {
  for (const QPointF& end : {start, goal}) {
    addColumn(end.x());
    addRow(end.y());
  }
}

void FB_Wire_Grid::addColumn(double x) {
  if (x >= mBounds.left() && x <= mBounds.right()) {
    insertLine(mColumns, x);
  }
}

void FB_Wire_Grid::addRow(double y) {
  if (y >= mBounds.top() && y <= mBounds.bottom()) {
    insertLine(mRows, y);
  }
}

void FB_Wire_Grid::addObstacle(const QRectF& obstacle, double distance) {
  mObstacles.push_back(obstacle.adjusted(-mMargin, -mMargin, mMargin, mMargin));
  addColumn(obstacle.left() - distance);
  addColumn(obstacle.right() + distance);
  addRow(obstacle.top() - distance);
  addRow(obstacle.bottom() + distance);
}

void FB_Wire_Grid::markObstacles() {
  mIsRowBlocked.assign(mColumns.size() * mRows.size(), 0);
  mIsColumnBlocked.assign(mIsRowBlocked.size(), 0);
  for (const QRectF& obstacle : mObstacles) {
    // What only touches an edge is outside.
    const int left = placeBehind(mColumns, obstacle.left());
    const int right = placeOf(mColumns, obstacle.right());
    const int top = placeBehind(mRows, obstacle.top());
    const int bottom = placeOf(mRows, obstacle.bottom());
    for (int y = top; y < bottom; ++y) {
      for (int x = std::max(left - 1, 0); x < right; ++x) {
        mIsRowBlocked[place(x, y)] = 1;
      }
    }
    for (int x = left; x < right; ++x) {
      for (int y = std::max(top - 1, 0); y < bottom; ++y) {
        mIsColumnBlocked[place(x, y)] = 1;
      }
    }
  }
}

QPointF FB_Wire_Grid::pointOf(const Node& node) const {
  return {mColumns[static_cast<size_t>(node.mX)], mRows[static_cast<size_t>(node.mY)]};
}

size_t FB_Wire_Grid::place(int x, int y) const {
  return static_cast<size_t>(x) * mRows.size() + static_cast<size_t>(y);
}

size_t FB_Wire_Grid::indexOf(const Node& node) const {
  return place(node.mX, node.mY) * 2 + static_cast<size_t>(node.mCame);
}

FB_Wire_Grid::Node FB_Wire_Grid::nodeOf(int index) const {
  const int rows = static_cast<int>(mRows.size());
  return {index / 2 / rows, index / 2 % rows, index % 2};
}

bool FB_Wire_Grid::isFree(const Node& from, const Node& to) const {
  const size_t first = place(std::min(from.mX, to.mX), std::min(from.mY, to.mY));
  if (from.mY != to.mY) {
    return mIsColumnBlocked[first] == 0;
  }
  // Not back into the pin's own piece of wire.
  const bool isBack = to.mX < from.mX && (pointOf(from) == mStart || pointOf(to) == mGoal);
  return !isBack && mIsRowBlocked[first] == 0;
}

/// What the rest of the way costs at least.
double FB_Wire_Grid::estimate(const Node& node) const {
  const QPointF rest = mGoal - pointOf(node);
  // The way comes to its end along a row.
  const int bends = node.mCame == cColumn ? 1 : rest.y() != 0 ? 2 : 0;
  return rest.manhattanLength() + bends * cBend;
}

void FB_Wire_Grid::step(int from, const Node& to) {
  const Node here = nodeOf(from);
  State& reached = mStates[indexOf(to)];
  const double cost = mStates[static_cast<size_t>(from)].mCost + (pointOf(to) - pointOf(here)).manhattanLength() +
                      (here.mCame != to.mCame ? cBend : 0);
  const bool isWorse = reached.mIsDone || (reached.mCost >= 0 && reached.mCost <= cost);
  if (isWorse || !isFree(here, to)) {
    return;
  }
  reached.mCost = cost;
  reached.mFrom = from;
  mOpen.push_back({cost + estimate(to), static_cast<int>(indexOf(to))});
  std::push_heap(mOpen.begin(), mOpen.end());
}

std::vector<QPointF> FB_Wire_Grid::wayTo(int node) const {
  std::vector<QPointF> way;
  for (; node >= 0; node = mStates[static_cast<size_t>(node)].mFrom) {
    way.push_back(pointOf(nodeOf(node)));
  }
  std::reverse(way.begin(), way.end());
  return way;
}

std::optional<std::vector<QPointF>> FB_Wire_Grid::search() {
  const int columns = static_cast<int>(mColumns.size());
  const int rows = static_cast<int>(mRows.size());
  markObstacles();
  mOpen.clear();
  mStates.assign(mColumns.size() * mRows.size() * 2, {});
  const size_t start = indexOf({placeOf(mColumns, mStart.x()), placeOf(mRows, mStart.y()), cRow});
  mStates[start].mCost = 0;
  mOpen.push_back({0, static_cast<int>(start)});
  while (!mOpen.empty()) {
    std::pop_heap(mOpen.begin(), mOpen.end());
    const int index = mOpen.back().mNode;
    mOpen.pop_back();
    if (std::exchange(mStates[static_cast<size_t>(index)].mIsDone, true)) {
      continue;
    }
    const Node node = nodeOf(index);
    if (pointOf(node) == mGoal) {
      return wayTo(index);
    }
    for (const Node& next : {Node{node.mX + 1, node.mY, cRow}, Node{node.mX, node.mY + 1, cColumn},
                             Node{node.mX, node.mY - 1, cColumn}, Node{node.mX - 1, node.mY, cRow}}) {
      if (next.mX >= 0 && next.mX < columns && next.mY >= 0 && next.mY < rows) {
        step(index, next);
      }
    }
  }
  return std::nullopt;
}
