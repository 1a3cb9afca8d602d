#pragma once

#include "fb/model/FB_Obstacles.h"

#include <optional>

/// Finds the way of a wire of horizontal and vertical lines from an output to an input, around the blocks of the page.
/// The same page gives the same ways, in whatever order they are asked for. Pixels of the unzoomed page.
class FB_Wire_Router {
public:
  /// From the source to the target; neighbours share their x or their y, and differ.
  using Route = std::vector<QPointF>;

  FB_Wire_Router() = default;
  /// The blocks, those of the wires' ends among them.
  explicit FB_Wire_Router(std::vector<QRectF> blocks) : mObstacles(std::move(blocks)) {}

  /// Leaves the source to the right and comes to the target from the left. Wires of different `lane` (not negative)
  /// keep some pixels apart where they turn. Runs through blocks only where it finds no other way.
  [[nodiscard]] Route route(const QPointF& source, const QPointF& target, int lane) const;
  /// As if there were no blocks, for what is being dragged.
  [[nodiscard]] static Route plain(const QPointF& source, const QPointF& target, int lane);

  /// How far a way goes out of the rectangle around its ends, at most.
  [[nodiscard]] double reach() const;

private:
  struct Task;
  [[nodiscard]] std::optional<Route> search(const Task& task) const;
  /// How far a wire goes straight on from its pin: `length` (to the left when negative), less where there is less room.
  [[nodiscard]] double stub(const QPointF& pin, double length, const Task& task) const;

  FB_Obstacles mObstacles;
};
