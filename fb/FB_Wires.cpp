#include "fb/FB_Wires.h"

#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pins.h"
#include "ui/Theme.h"

#include <QPainter>
#include <QPainterPathStroker>

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace {

constexpr double cHitWidth = 8;   // of the pen; at least that many pixels
constexpr double cLong = 1500;    // px; of a longer curve only the seen parts are drawn
constexpr double cNetExtra = 1;   // px that the net under the mouse is wider
constexpr int cNetBrighter = 135; // per cent
constexpr int cAsItIs = 100;      // per cent
constexpr double cDash = 5;       // px, and as much between, of what is out of date

} // namespace

void FB_Wires::rebuild(const DB_FB_Page& page) {
  const std::vector<FB_Connections::Entry> entries = FB_Connections::of(page);
  std::vector<QRectF> rects;
  rects.reserve(static_cast<size_t>(page.mChildren.size()));
  mBlocks.clear();
  mBlocks.reserve(rects.capacity());
  for (const auto& block : page.mChildren) {
    rects.push_back(FB_Geometry::rect(*block));
    mBlocks.push_back({rects.back().topLeft(), rects.back().topLeft(), {}});
  }
  const auto pinOf = [&](int block, FB_Side side, int pin) {
    return FB_Geometry::pin(page.mChildren.at(block).mType, side, pin, rects[static_cast<size_t>(block)].width(),
                            FB_Geometry::cGrid);
  };

  mWires.clear();
  mWires.reserve(entries.size());
  mCourses.clear();
  mCourses.reserve(entries.size());
  mBoxes.resize(entries.size());
  for (const FB_Connections::Entry& entry : entries) {
    const DB_FB_Control& from = page.mChildren.at(entry.mSource);
    const DB_FB_Control& to = page.mChildren.at(entry.mTarget);
    const DB_Address_Binding& binding = from.mOutputs[static_cast<size_t>(entry.mOutput)].mBinding;
    const int index = count();
    mWires.push_back(
        {entry, !from.mDisplay || !to.mDisplay, binding.mKind == DB_Address_Binding::Kind::GroupAddress, binding.mKey});
    const QPointF source = pinOf(entry.mSource, FB_Side::Output, entry.mOutput);
    mCourses.push_back({source, pinOf(entry.mTarget, FB_Side::Input, entry.mInput), entry.mNet, {}, {}});
    mBlocks[static_cast<size_t>(entry.mSource)].mWires.push_back(index);
    mBlocks[static_cast<size_t>(entry.mTarget)].mWires.push_back(index);
  }
  mLights.assign(entries.size(), {});
  mRouter = FB_Wire_Router(std::move(rects));
  forgetCourses();
}

void FB_Wires::setStyle(Style style) {
  if (style != mStyle) {
    mStyle = style;
    forgetCourses();
  }
}

void FB_Wires::setZoom(double zoom) {
  if (const double scale = FB_Wire_Shape::scaleOf(zoom); scale != mScale) {
    mScale = scale;
    for (Course& course : mCourses) {
      course.mPath = {};
    }
  }
}

void FB_Wires::moveBlock(int block, const QPointF& position) {
  Block& moved = mBlocks[static_cast<size_t>(block)];
  moved.mPosition = position;
  for (const int wire : moved.mWires) {
    forgetCourse(wire);
  }
}

QPointF FB_Wires::source(int index) const {
  return mBlocks[static_cast<size_t>(at(index).mEntry.mSource)].mPosition +
         mCourses[static_cast<size_t>(index)].mSource;
}

QPointF FB_Wires::target(int index) const {
  return mBlocks[static_cast<size_t>(at(index).mEntry.mTarget)].mPosition +
         mCourses[static_cast<size_t>(index)].mTarget;
}

bool FB_Wires::isMoved(int index) const {
  const Block& from = mBlocks[static_cast<size_t>(at(index).mEntry.mSource)];
  const Block& to = mBlocks[static_cast<size_t>(at(index).mEntry.mTarget)];
  return from.mPosition != from.mHome || to.mPosition != to.mHome;
}

FB_Wire_Shape::Curve FB_Wires::curveOf(int index) const {
  return FB_Wire_Shape::curve(source(index), target(index), 1);
}

FB_Wire_Shape::Curve FB_Wires::zoomedCurveOf(int index) const {
  return FB_Wire_Shape::curve(source(index) * mScale, target(index) * mScale, mScale);
}

/// A way is not known until it is asked for; what it can reach at most is.
void FB_Wires::forgetCourse(int index) {
  Course& course = mCourses[static_cast<size_t>(index)];
  course.mPath = {};
  course.mRoute.clear();
  QRectF& box = mBoxes[static_cast<size_t>(index)];
  if (mStyle == Style::Curved) {
    box = curveOf(index).box();
  } else {
    const double reach = mRouter.reach();
    box = FB_Wire_Shape::box({source(index), target(index)}).adjusted(-reach, -reach, reach, reach);
  }
}

void FB_Wires::forgetCourses() {
  for (int i = 0; i < count(); ++i) {
    forgetCourse(i);
  }
}

const FB_Wire_Router::Route& FB_Wires::route(int index) const {
  Course& course = mCourses[static_cast<size_t>(index)];
  if (course.mRoute.empty()) {
    course.mRoute = isMoved(index) ? FB_Wire_Router::plain(source(index), target(index), course.mNet)
                                   : mRouter.route(source(index), target(index), course.mNet);
    mBoxes[static_cast<size_t>(index)] = FB_Wire_Shape::box(course.mRoute);
  }
  return course.mRoute;
}

const QPainterPath& FB_Wires::path(int index) const {
  Course& course = mCourses[static_cast<size_t>(index)];
  if (!course.mPath.isEmpty()) {
    return course.mPath;
  }
  if (mStyle == Style::Curved) {
    course.mPath = zoomedCurveOf(index).path();
  } else {
    FB_Wire_Router::Route zoomed = route(index);
    for (QPointF& point : zoomed) { // whole pixels, for sharp lines
      point = {std::round(point.x() * mScale), std::round(point.y() * mScale)};
    }
    course.mPath = FB_Wire_Shape::rounded(zoomed, mScale);
  }
  return course.mPath;
}

bool FB_Wires::mayBeHit(int index, const QPointF& point, double distance) const {
  const auto isInBox = [&] {
    const QRectF& box = mBoxes[static_cast<size_t>(index)];
    return box.adjusted(-distance, -distance, distance, distance).contains(point);
  };
  if (at(index).mIsHidden || !isInBox()) {
    return false;
  }
  return mStyle == Style::Curved ? curveOf(index).mayBeNear(point, distance)
                                 : FB_Wire_Shape::mayBeNear(route(index), point, distance);
}

int FB_Wires::hit(const QPointF& point) const {
  QPainterPathStroker stroker;
  stroker.setWidth(std::max(cHitWidth, cHitWidth * mScale));
  for (int i = count() - 1; i >= 0; --i) {
    if (mayBeHit(i, point / mScale, stroker.width() / mScale) && !path(i).isEmpty() &&
        stroker.createStroke(path(i)).contains(point)) {
      return i;
    }
  }
  return -1;
}

QList<int> FB_Wires::net(int index) const {
  QList<int> wires;
  for (int i = 0; i < count(); ++i) {
    if (mCourses[static_cast<size_t>(i)].mNet == mCourses[static_cast<size_t>(index)].mNet) {
      wires.push_back(i);
    }
  }
  return wires;
}

QList<int> FB_Wires::netOf(int block, FB_Side side, int pin) const {
  if (block < 0 || block >= static_cast<int>(mBlocks.size())) {
    return {};
  }
  for (const int wire : mBlocks[static_cast<size_t>(block)].mWires) {
    const FB_Connections::Entry& entry = at(wire).mEntry;
    const bool isHere = side == FB_Side::Output ? entry.mSource == block && entry.mOutput == pin
                                                : entry.mTarget == block && entry.mInput == pin;
    if (isHere) {
      return net(wire);
    }
  }
  return {};
}

double FB_Wires::room(int block, FB_Side side, int pin) const {
  double room = std::numeric_limits<double>::max();
  for (const int wire : mBlocks[static_cast<size_t>(block)].mWires) {
    const FB_Connections::Entry& entry = at(wire).mEntry;
    const bool isHere = side == FB_Side::Output ? entry.mSource == block && entry.mOutput == pin
                                                : entry.mTarget == block && entry.mInput == pin;
    const double way = target(wire).x() - source(wire).x();
    if (isHere && way > 0) {
      room = std::min(room, way / 2 * mScale);
    }
  }
  return room;
}

bool FB_Wires::isSeen(int index, const QRectF& region) const {
  const QRectF& box = mBoxes[static_cast<size_t>(index)]; // a straight wire's has no height
  return box.left() <= region.right() && box.right() >= region.left() && box.top() <= region.bottom() &&
         box.bottom() >= region.top();
}

bool FB_Wires::setLight(int index, const Light& light) {
  return std::exchange(mLights[static_cast<size_t>(index)], light) != light;
}

QRectF FB_Wires::rect(int index) const {
  const QRectF& box = mBoxes[static_cast<size_t>(index)];
  const double margin = std::max(1.0, std::round(mScale)) + cNetExtra + 1;
  return QRectF(box.topLeft() * mScale, box.size() * mScale).adjusted(-margin, -margin, margin, margin);
}

bool FB_Wires::isAlike(int a, int b) const {
  return at(a).mIsAddress == at(b).mIsAddress && mLights[static_cast<size_t>(a)] == mLights[static_cast<size_t>(b)];
}

QPen FB_Wires::penOf(int index, double width, int lightness) const {
  const Light& light = mLights[static_cast<size_t>(index)];
  const Theme::Role role = light.mIsOn            ? (*light.mIsOn ? Theme::Role::WireTrue : Theme::Role::WireFalse)
                           : at(index).mIsAddress ? Theme::Role::WireAddress
                                                  : Theme::Role::WireVariable;
  QPen pen(Theme::color(role).lighter(lightness), width, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
  if (light.mIsStale) {
    pen.setDashPattern({cDash / width, cDash / width});
  }
  return pen;
}

void FB_Wires::paint(QPainter& painter, const QRectF& region, const QSet<int>& net) const {
  std::vector<int> shown;
  std::vector<int> lit;                                   // above all others
  const double width = std::max(1.0, std::round(mScale)); // 1 px is drawn three times as fast as any more
  const double margin = (width + cNetExtra) / 2 + 1;
  const QRectF wide = region.adjusted(-margin, -margin, margin, margin);
  const QRectF seen(wide.topLeft() / mScale, wide.bottomRight() / mScale);
  for (int i = 0; i < count(); ++i) {
    if (at(i).mIsHidden || !isSeen(i, seen)) {
      continue;
    }
    if (mStyle == Style::Orthogonal) {
      (void)route(i); // now its box is exact
      if (!isSeen(i, seen)) {
        continue;
      }
    }
    (net.contains(i) ? lit : shown).push_back(i);
  }
  const auto isLong = [this](int wire) {
    const QSizeF size = mBoxes[static_cast<size_t>(wire)].size() * mScale;
    return mStyle == Style::Curved && std::max(size.width(), size.height()) > cLong;
  };
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  const QTransform onPixels = painter.transform();
  // In their order, as they are hit: the last one lies on top.
  const auto draw = [&](const std::vector<int>& wires, double penWidth, int lightness) {
    // A straight line of an odd width is sharp in the middle of the pixels, one of an even width between them.
    const double shift = mStyle == Style::Orthogonal && std::fmod(penWidth, 2) == 1 ? 0.5 : 0;
    painter.setTransform(QTransform::fromTranslate(shift, shift) * onPixels);
    int last = -1; // whose pen is set
    for (const int wire : wires) {
      if (last < 0 || !isAlike(last, wire)) {
        painter.setPen(penOf(wire, penWidth, lightness));
      }
      last = wire;
      // One path of them all would take ten times as long.
      painter.drawPath(isLong(wire) ? zoomedCurveOf(wire).partsIn(wide) : path(wire));
    }
  };
  draw(shown, width, cAsItIs);
  draw(lit, width + cNetExtra, cNetBrighter);
  painter.restore();
}

QPainterPath FB_Wires::curve(const QPointF& source, const QPointF& target, double zoom) {
  return FB_Wire_Shape::curve(source, target, zoom).path();
}
