#include "fb/FB_Wire_Gesture.h"

#include "fb/FB_Page.h"
#include "fb/FB_Page_Blocks.h"
#include "fb/model/FB_Geometry.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QPainterPath>

FB_Wire_Gesture::FB_Wire_Gesture(FB_Page& page, const FB_Pin_Ref& from, const FB_Pointer& press)
    : mPage(page),
      mFrom(from),
      mScreen(press.mScreen),
      mEnd(press.mPage) {}

bool FB_Wire_Gesture::fits(const FB_Pin_Ref& pin) const {
  return pin.mSide != mFrom.mSide && pin.mBlock != mFrom.mBlock;
}

void FB_Wire_Gesture::move(const FB_Pointer& pointer) {
  if (!mHasStarted && (pointer.mScreen - mScreen).manhattanLength() < QApplication::startDragDistance()) {
    return;
  }
  mHasStarted = true;
  mTarget = mPage.blocks().pinAt(pointer.mPage);
  if (mTarget == mFrom) {
    mTarget.reset();
  }
  mEnd = mTarget ? mPage.blocks().pinPoint(*mTarget) : pointer.mPage;
  mPage.showCursor(mTarget && !fits(*mTarget) ? Qt::ForbiddenCursor : Qt::CrossCursor);
  mPage.updateOverlay();
}

void FB_Wire_Gesture::release(const FB_Pointer& pointer) {
  move(pointer);
  if (mHasStarted && mTarget) {
    finish(*mTarget);
  }
}

void FB_Wire_Gesture::finish(const FB_Pin_Ref& to) {
  mPage.connectPins(mFrom, to);
}

void FB_Wire_Gesture::paint(QPainter& painter) const {
  if (!mHasStarted) {
    return;
  }
  const bool isRefused = mTarget && !fits(*mTarget);
  const QColor colour = Theme::color(isRefused ? Theme::Role::Error : Theme::Role::Accent);
  const QPointF start = mPage.blocks().pinPoint(mFrom);
  const bool isForward = mFrom.mSide == FB_Side::Output;
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(colour, 2, isRefused ? Qt::DashLine : Qt::SolidLine));
  painter.drawPath(FB_Wires::curve(isForward ? start : mEnd, isForward ? mEnd : start, mPage.zoom()));
  if (mTarget) {
    const double radius = FB_Geometry::cGrid * mPage.zoom() / 2;
    const double inside = mTarget->mSide == FB_Side::Input ? radius / 2 : -radius / 2; // where the pin's mark is
    painter.drawEllipse(mEnd + QPointF(inside, 0), radius, radius);
  }
}
