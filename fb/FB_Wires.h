#pragma once

#include "fb/FB_Wire_Shape.h"
#include "fb/model/FB_Connections.h"
#include "fb/model/FB_Wire_Router.h"

#include <QList>
#include <QPen>
#include <QSet>
#include <QUuid>

#include <array>
#include <optional>

class QPainter;

/// The wires of one page as they are drawn. Positions are those of the records times the zoom, never of widgets.
/// A wire's path is made when it is first seen or hit, and forgotten when one of its ends moves.
class FB_Wires {
public:
  enum class Style { Curved, Orthogonal }; ///< the numbers of the setting `mFBWireStyle`

  /// A connection of the page.
  struct Wire {
    FB_Connections::Entry mEntry; ///< indexes in the page's children, and of the pins
    bool mIsHidden = false;       ///< neither drawn nor hit: one of the blocks is not displayed
    bool mIsAddress = false;      ///< carries a group address, else an internal variable
    QUuid mKey;                   ///< of that
  };

  /// What a wire shows of its live value: on and off by the colour, what is out of date by dashes.
  struct Light {
    std::optional<bool> mIsOn;
    bool mIsStale = false;
    friend bool operator==(const Light&, const Light&) = default;
  };

  /// Connections, positions and sizes anew. Keeps no reference to the page.
  void rebuild(const DB_FB_Page& page);
  void setStyle(Style style);
  /// Not positive: as 1.
  void setZoom(double zoom);
  /// Shows a block (by its index in the page's children) at another place of the unzoomed page, while it is dragged.
  void moveBlock(int block, const QPointF& position);

  [[nodiscard]] int count() const { return static_cast<int>(mWires.size()); }
  [[nodiscard]] const Wire& at(int index) const { return mWires[static_cast<size_t>(index)]; }
  /// True when it looks other than before. Building the wires anew puts all lights out.
  bool setLight(int index, const Light& light);
  [[nodiscard]] const Light& light(int index) const { return mLights[static_cast<size_t>(index)]; }
  /// Around all that is drawn of the wire; pixels of the zoomed page.
  [[nodiscard]] QRectF rect(int index) const;
  /// In pixels of the zoomed page; valid until the next change.
  [[nodiscard]] const QPainterPath& path(int index) const;
  /// The topmost wire (the last) at a point of the zoomed page, -1 for none: within half a pen of 8 × zoom, at least 8.
  [[nodiscard]] int hit(const QPointF& point) const;

  /// All wires that share the binding of that wire, itself among them.
  [[nodiscard]] QList<int> net(int index) const;
  /// All wires that share the binding of that pin.
  /// Half of the way to the nearest pin that a wire leads on to, zoomed; the greatest number without one.
  [[nodiscard]] double room(int block, FB_Side side, int pin) const;
  [[nodiscard]] QList<int> netOf(int block, FB_Side side, int pin) const;

  /// The wires in `region` of the zoomed page; those of `net` above the others, brighter and 1 px wider.
  void paint(QPainter& painter, const QRectF& region, const QSet<int>& net) const;

  /// A wire that is being drawn, from a pin to the pointer.
  [[nodiscard]] static QPainterPath curve(const QPointF& source, const QPointF& target, double zoom);

private:
  /// What a wire's course follows from. Unzoomed.
  struct Course {
    QPointF mSource; ///< from the block's upper left corner
    QPointF mTarget;
    int mNet = 0;
    FB_Wire_Router::Route mRoute; ///< empty when not known (yet), and with curves
    QPainterPath mPath;           ///< zoomed; empty when not known (yet)
  };
  struct Block {
    QPointF mHome; ///< of the record
    QPointF mPosition;
    std::vector<int> mWires;
  };

  [[nodiscard]] QPointF source(int index) const;
  [[nodiscard]] QPointF target(int index) const;
  [[nodiscard]] bool isMoved(int index) const;
  /// Of the unzoomed page.
  [[nodiscard]] FB_Wire_Shape::Curve curveOf(int index) const;
  [[nodiscard]] FB_Wire_Shape::Curve zoomedCurveOf(int index) const;
  [[nodiscard]] const FB_Wire_Router::Route& route(int index) const;
  [[nodiscard]] bool isAlike(int a, int b) const;
  [[nodiscard]] QPen penOf(int index, double width, int lightness) const;
  void forgetCourse(int index);
  void forgetCourses();
  /// The wire, as far as it is known, in a part of the unzoomed page.
  [[nodiscard]] bool isSeen(int index, const QRectF& region) const;
  [[nodiscard]] bool mayBeHit(int index, const QPointF& point, double distance) const;

  Style mStyle = Style::Curved;
  double mScale = 1;
  std::vector<Wire> mWires;
  std::vector<Light> mLights; ///< of the wires
  std::vector<Block> mBlocks;
  FB_Wire_Router mRouter;
  mutable std::vector<Course> mCourses; ///< of the wires
  mutable std::vector<QRectF> mBoxes;   ///< each holds its wire; unzoomed, in a list of their own for a quick walk
};
