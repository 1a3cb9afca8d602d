// How a block looks and where its pins are hit.
#include "db/ProjectDatabase.h"
#include "fb/FB_Base.h"
#include "fb/FB_Block_Host.h"
#include "fb/FB_Block_Painter.h"
#include "fb/FB_Pin_Labels.h"
#include "fb/model/FB_Execution_Order.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Tool_Tip.h"
#include "fb/model/FB_Types.h"

#include <QPaintEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr double cLeastHit = 6; ///< pixels around a pin

/// The index of the pin of that side that is hit, -1 for none.
int hit(const FB_Base& block, FB_Side side, const QPointF& point) {
  const std::vector<DB_FB_Pin>& pins = side == FB_Side::Input ? block.record().mInputs : block.record().mOutputs;
  const double reach = std::max(block.grid() / 2, cLeastHit);
  const QPointF first = FB_Geometry::pin(block.type(), side, 0, block.width(), block.grid());
  // Rows stand one grid apart, so the nearest one is known.
  const auto row = static_cast<int>(std::lround((point.y() - first.y()) / block.grid()));
  const int index = std::clamp(row, 0, std::max(0, static_cast<int>(pins.size()) - 1));
  const QPointF away = point - FB_Geometry::pin(block.type(), side, index, block.width(), block.grid());
  const bool isHit = !pins.empty() && std::abs(away.x()) <= reach && std::abs(away.y()) <= reach;
  return isHit ? index : -1;
}

} // namespace

FB_Texts& FB_Base::texts() const {
  mHost.texts().setFont(font(), mGrid);
  return mHost.texts();
}

FB_Body FB_Base::body() const {
  const FB_Type* const type = FB_Types::find(mRecord.mType);
  return type ? type->mBody : FB_Body::Plain;
}

void FB_Base::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setClipRect(event->rect());
  paintBlock(painter);
}

void FB_Base::paintBlock(QPainter& painter) const {
  const FB_Block_Painter block(painter, *this);
  block.drawBody(body());
  if (body() != FB_Body::None) {
    block.drawTitle();
    block.drawPinNames();
  }
  block.drawBodyText(bodyText());
  paintContent(painter);
  block.drawFrame(body());
  block.drawPins();
}

QString FB_Base::toolTipText() const {
  const bool isDebug = mHost.isDebugToolTip();
  return FB_Tool_Tip::of(mRecord, mHoveredInput, mHoveredOutput,
                         isDebug ? std::optional(FB_Execution_Order::ofBlock(mHost.database(), mRecord.mGuid))
                                 : std::nullopt);
}

void FB_Base::paintLabels(QPainter& painter) const {
  FB_Pin_Labels(*this, mHost).paint(painter);
}

QRectF FB_Base::labelRect() const {
  return FB_Pin_Labels::rect(*this);
}

std::optional<FB_Pin_Ref> FB_Base::linkAt(const QPointF& canvasPoint) const {
  return labelRect().contains(canvasPoint) ? FB_Pin_Labels(*this, mHost).linkAt(canvasPoint) : std::nullopt;
}

std::optional<FB_Pin_Ref> FB_Base::pinAt(const QPointF& point) const {
  for (const FB_Side side : {FB_Side::Input, FB_Side::Output}) {
    if (const int index = hit(*this, side, point); index >= 0) {
      return FB_Pin_Ref{mRecord.mGuid, side, index};
    }
  }
  return std::nullopt;
}
