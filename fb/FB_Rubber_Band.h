#pragma once

#include "fb/FB_Gesture.h"

#include <QRectF>
#include <QSet>
#include <QUuid>

class FB_Page;

/// Selects the blocks that a rectangle touches, besides those that were selected when it began.
class FB_Rubber_Band : public FB_Gesture {
public:
  FB_Rubber_Band(FB_Page& page, const FB_Pointer& press, const QList<QUuid>& before);

  void move(const FB_Pointer& pointer) override;
  void release(const FB_Pointer& pointer) override;
  void cancel() override;
  void paint(QPainter& painter) const override;

private:
  FB_Page& mPage;
  QPointF mPress; ///< on the unzoomed page
  QList<QUuid> mBefore;
  QSet<QUuid> mKept; ///< stay selected, whatever the rectangle touches
  QRectF mRect;      ///< on the unzoomed page
};
