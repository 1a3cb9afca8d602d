#include "fb/FB_Wire_Shape.h"

#include <QLineF>

#include <algorithm>
#include <utility>

namespace {

constexpr double cBow = 0.75;
constexpr double cBowDistance = 128; // beyond which a curve gets no rounder
constexpr double cRadius = 8;
constexpr double cArc = 0.5522847498; // handles of a Bézier curve that is a quarter of a circle
constexpr int cHalvings = 5;          // a curve in up to 32 pieces

QRectF boxOf(std::initializer_list<QPointF> points) {
  QRectF box(*points.begin(), QSizeF(0, 0));
  for (const QPointF& point : points) {
    box.setLeft(std::min(box.left(), point.x()));
    box.setRight(std::max(box.right(), point.x()));
    box.setTop(std::min(box.top(), point.y()));
    box.setBottom(std::max(box.bottom(), point.y()));
  }
  return box;
}

bool isNear(const QRectF& box, const QPointF& point, double distance) {
  return point.x() >= box.left() - distance && point.x() <= box.right() + distance &&
         point.y() >= box.top() - distance && point.y() <= box.bottom() + distance;
}

/// De Casteljau.
std::pair<FB_Wire_Shape::Curve, FB_Wire_Shape::Curve> halves(const FB_Wire_Shape::Curve& curve) {
  const QPointF ab = (curve.mSource + curve.mAfterSource) / 2;
  const QPointF bc = (curve.mAfterSource + curve.mBeforeTarget) / 2;
  const QPointF cd = (curve.mBeforeTarget + curve.mTarget) / 2;
  const QPointF abc = (ab + bc) / 2;
  const QPointF bcd = (bc + cd) / 2;
  const QPointF middle = (abc + bcd) / 2;
  return {{curve.mSource, ab, abc, middle}, {middle, bcd, cd, curve.mTarget}};
}

bool mayBeNearHalves(const FB_Wire_Shape::Curve& curve, const QPointF& point, double distance, int halvings) {
  if (!isNear(curve.box(), point, distance)) {
    return false;
  }
  if (halvings == 0) {
    return true;
  }
  const auto [first, second] = halves(curve);
  return mayBeNearHalves(first, point, distance, halvings - 1) ||
         mayBeNearHalves(second, point, distance, halvings - 1);
}

bool isApart(const QRectF& a, const QRectF& b) {
  return a.left() > b.right() || a.right() < b.left() || a.top() > b.bottom() || a.bottom() < b.top();
}

void addParts(const FB_Wire_Shape::Curve& curve, const QRectF& region, int halvings, QPainterPath& parts) {
  const QRectF box = curve.box();
  if (isApart(box, region)) {
    return;
  }
  if (halvings > 0 && !region.contains(box)) {
    const auto [first, second] = halves(curve);
    addParts(first, region, halvings - 1, parts);
    addParts(second, region, halvings - 1, parts);
    return;
  }
  if (parts.currentPosition() != curve.mSource || parts.isEmpty()) {
    parts.moveTo(curve.mSource);
  }
  parts.cubicTo(curve.mAfterSource, curve.mBeforeTarget, curve.mTarget);
}

/// From `from` towards `to`.
QPointF onTheWay(const QPointF& from, const QPointF& to, double distance) {
  const QLineF line(from, to);
  return line.length() > 0 ? line.pointAt(distance / line.length()) : from;
}

} // namespace

double FB_Wire_Shape::scaleOf(double zoom) {
  return zoom > 0 ? zoom : 1;
}

FB_Wire_Shape::Curve FB_Wire_Shape::curve(const QPointF& source, const QPointF& target, double zoom) {
  const double distance = QLineF(source, target).length();
  const QPointF bow(cBow * std::min(distance, cBowDistance * scaleOf(zoom)), 0);
  return {source, source + bow, target - bow, target};
}

QPainterPath FB_Wire_Shape::Curve::path() const {
  QPainterPath path(mSource);
  path.cubicTo(mAfterSource, mBeforeTarget, mTarget);
  return path;
}

QRectF FB_Wire_Shape::Curve::box() const {
  return boxOf({mSource, mAfterSource, mBeforeTarget, mTarget});
}

bool FB_Wire_Shape::Curve::mayBeNear(const QPointF& point, double distance) const {
  return mayBeNearHalves(*this, point, distance, cHalvings);
}

QPainterPath FB_Wire_Shape::Curve::partsIn(const QRectF& region) const {
  QPainterPath parts;
  addParts(*this, region, cHalvings, parts);
  return parts;
}

QPainterPath FB_Wire_Shape::rounded(const std::vector<QPointF>& route, double zoom) {
  if (route.size() < 2) {
    return {};
  }
  QPainterPath path(route.front());
  for (size_t i = 1; i + 1 < route.size(); ++i) {
    const QPointF& corner = route[i];
    const double room = std::min(QLineF(route[i - 1], corner).length(), QLineF(corner, route[i + 1]).length()) / 2;
    const double radius = std::min(cRadius * scaleOf(zoom), room);
    const QPointF from = onTheWay(corner, route[i - 1], radius);
    const QPointF to = onTheWay(corner, route[i + 1], radius);
    path.lineTo(from);
    path.cubicTo(from + (corner - from) * cArc, to + (corner - to) * cArc, to);
  }
  path.lineTo(route.back());
  return path;
}

QRectF FB_Wire_Shape::box(const std::vector<QPointF>& route) {
  QRectF box(route.front(), QSizeF(0, 0));
  for (const QPointF& point : route) {
    box = boxOf({box.topLeft(), box.bottomRight(), point});
  }
  return box;
}

bool FB_Wire_Shape::mayBeNear(const std::vector<QPointF>& route, const QPointF& point, double distance) {
  for (size_t i = 1; i < route.size(); ++i) {
    if (isNear(boxOf({route[i - 1], route[i]}), point, distance)) {
      return true;
    }
  }
  return false;
}
