#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <vector>

/// The two shapes of a wire, and quick questions about them that need no path.
namespace FB_Wire_Shape {

/// A zoom that is not positive counts as 1.
[[nodiscard]] double scaleOf(double zoom);

/// A cubic Bézier curve, by its four points.
struct Curve {
  QPointF mSource;
  QPointF mAfterSource;
  QPointF mBeforeTarget;
  QPointF mTarget;

  [[nodiscard]] QPainterPath path() const;
  /// Holds the curve.
  [[nodiscard]] QRectF box() const;
  /// False when no point of the curve is that near, by x and by y.
  [[nodiscard]] bool mayBeNear(const QPointF& point, double distance) const;
  /// The parts of the curve that are in the region, with some more around: a long one takes long to draw.
  [[nodiscard]] QPainterPath partsIn(const QRectF& region) const;
};
/// `zoom` is that of the points.
[[nodiscard]] Curve curve(const QPointF& source, const QPointF& target, double zoom);

/// Horizontal and vertical lines with rounded corners.
[[nodiscard]] QPainterPath rounded(const std::vector<QPointF>& route, double zoom);
[[nodiscard]] QRectF box(const std::vector<QPointF>& route);
[[nodiscard]] bool mayBeNear(const std::vector<QPointF>& route, const QPointF& point, double distance);

} // namespace FB_Wire_Shape
