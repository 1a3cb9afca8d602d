#include "fb/model/FB_Wire_Router.h"

#include "fb/model/FB_Wire_Grid.h"

#include <QtNumeric>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>

namespace {

constexpr double cStub = 16;
constexpr double cLaneStep = 4;
constexpr int cLanes = 5;
constexpr int cMiddleLane = cLanes / 2;
constexpr double cStubMaximum = cStub + cLanes * cLaneStep;
constexpr double cRoundReach = 128;  // beyond what it goes around
constexpr double cBelow = 64;        // of a plain way back between pins of the same height
constexpr size_t cKnownMaximum = 24; // blocks that one way is found around
constexpr size_t cKnownOfFar = 12;   // where the search gets long
constexpr double cFar = 6000;

/// How far lines stay away from blocks: those that are offered and those that are allowed.
struct Distance {
  double mOffered;
  double mAllowed;
  bool mHasLanes;
};
constexpr std::array<Distance, 3> cDistances{{{8, 6, true}, {4, 3, false}, {0, 0, false}}};

double stubOf(int lane) {
  return cStub + cLaneStep * (lane % cLanes);
}

/// -8 .. 8
double shiftOf(int lane) {
  return cLaneStep * (lane % cLanes - cMiddleLane);
}

/// Without what is on the way between its neighbours.
FB_Wire_Router::Route simplified(const FB_Wire_Router::Route& route) {
  FB_Wire_Router::Route result;
  for (const QPointF& point : route) {
    if (!result.empty() && result.back() == point) {
      continue;
    }
    if (result.size() > 1) {
      const QPointF& before = result[result.size() - 2];
      const QPointF& last = result.back();
      const bool isRow = before.y() == last.y() && last.y() == point.y();
      const bool isColumn = before.x() == last.x() && last.x() == point.x();
      if (isRow || isColumn) {
        result.pop_back();
      }
    }
    result.push_back(point);
  }
  return result;
}

bool isFinite(const QPointF& point) {
  return qIsFinite(point.x()) && qIsFinite(point.y());
}

} // namespace

/// One wire to be routed, at one distance from the blocks.
struct FB_Wire_Router::Task {
  QPointF mSource;
  QPointF mTarget;
  int mLane;
  Distance mDistance;
  std::vector<int> mIgnored; ///< blocks that cover an end: no way leads out of them
};

double FB_Wire_Router::reach() const {
  return std::max(mObstacles.largest().width(), mObstacles.largest().height()) + cRoundReach;
}

FB_Wire_Router::Route FB_Wire_Router::plain(const QPointF& source, const QPointF& target, int lane) {
  const double gap = target.x() - source.x();
  if (gap > 0) {
    const double column = source.x() + std::min(stubOf(lane), gap / 2);
    return simplified({source, {column, source.y()}, {column, target.y()}, target});
  }
  const double out = source.x() + stubOf(lane);
  const double in = target.x() - stubOf(lane);
  const bool isApart = std::abs(target.y() - source.y()) > cBelow;
  const double row = isApart ? (source.y() + target.y()) / 2 + shiftOf(lane)
                             : std::max(source.y(), target.y()) + cBelow + shiftOf(lane);
  return simplified({source, {out, source.y()}, {out, row}, {in, row}, {in, target.y()}, target});
}

FB_Wire_Router::Route FB_Wire_Router::route(const QPointF& source, const QPointF& target, int lane) const {
  if (!isFinite(source) || !isFinite(target)) {
    return {source, target};
  }
  Task task{source, target, lane, {}, {}};
  mObstacles.appendAround(source, task.mIgnored);
  mObstacles.appendAround(target, task.mIgnored);
  if (source.y() == target.y() && source.x() < target.x() &&
      mObstacles.firstHit(source, target, 0, task.mIgnored) < 0) {
    return {source, target};
  }
  for (const Distance& distance : cDistances) {
    task.mDistance = distance;
    if (const std::optional<Route> found = search(task)) {
      return simplified(*found);
    }
  }
  return plain(source, target, lane);
}

double FB_Wire_Router::stub(const QPointF& pin, double length, const Task& task) const {
  // Twice as far, so that there is as much room behind the turn as before it.
  const QPointF end = pin + QPointF(2 * length, 0);
  const int hit = mObstacles.firstHit(pin, end, 0, task.mIgnored);
  if (hit < 0) {
    return length;
  }
  const QRectF& obstacle = mObstacles.at(hit);
  const double room = length > 0 ? obstacle.left() - pin.x() : pin.x() - obstacle.right();
  return std::copysign(std::min(std::abs(length), std::max(room, 0.0) / 2), length);
}

std::optional<FB_Wire_Router::Route> FB_Wire_Router::search(const Task& task) const {
  const double gap = task.mTarget.x() - task.mSource.x();
  const double wanted = gap > 0 ? std::min(stubOf(task.mLane), gap / 2) : stubOf(task.mLane);
  const QPointF start = task.mSource + QPointF(stub(task.mSource, wanted, task), 0);
  const QPointF goal = task.mTarget + QPointF(stub(task.mTarget, -wanted, task), 0);

  FB_Wire_Grid grid(start, goal, reach() - cStubMaximum, task.mDistance.mAllowed);
  if (gap <= 0) {
    grid.addRow((start.y() + goal.y()) / 2 + shiftOf(task.mLane));
  }
  const double away = task.mDistance.mOffered + (task.mDistance.mHasLanes ? cLaneStep * (task.mLane % 3) : 0);
  std::vector<int> known;
  const auto add = [&](int obstacle) {
    const bool isNew = obstacle >= 0 && std::find(known.cbegin(), known.cend(), obstacle) == known.cend();
    if (isNew) {
      known.push_back(obstacle);
      grid.addObstacle(mObstacles.at(obstacle), away);
    }
    return isNew;
  };
  // The blocks at both ends; every other one when it turns out to stand in the way.
  add(mObstacles.firstHit(start, {task.mSource.x() - 1, start.y()}, 0, task.mIgnored));
  add(mObstacles.firstHit(goal, {task.mTarget.x() + 1, goal.y()}, 0, task.mIgnored));
  const bool isFar = (goal - start).manhattanLength() > cFar;
  while (known.size() < (isFar ? cKnownOfFar : cKnownMaximum)) {
    std::optional<Route> found = grid.search();
    if (!found) {
      break;
    }
    const Route way = simplified(*found);
    bool isFree = true;
    bool isNewKnown = false;
    for (size_t i = 1; i < way.size(); ++i) {
      const int hit = mObstacles.firstHit(way[i - 1], way[i], task.mDistance.mAllowed, task.mIgnored);
      isFree = isFree && hit < 0;
      isNewKnown = add(hit) || isNewKnown;
    }
    if (isFree) {
      found->insert(found->begin(), task.mSource);
      found->push_back(task.mTarget);
      return found;
    }
    if (!isNewKnown) {
      break;
    }
  }
  return std::nullopt;
}
