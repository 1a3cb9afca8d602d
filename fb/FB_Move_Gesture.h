#pragma once

#include "fb/FB_Gesture.h"
#include "fb/model/FB_Snap.h"

#include <QList>
#include <QRectF>
#include <QUuid>

class FB_Page;

/// Drags the selected blocks. They come to rest on the grid and in line with others, unless Alt is held; with Ctrl
/// copies come to rest there. Without a drag it was a click, which with Ctrl deselects the block and else selects only
/// it, when it was selected before.
class FB_Move_Gesture : public FB_Gesture {
public:
  /// `block` was pressed at that point of the canvas and is selected.
  FB_Move_Gesture(FB_Page& page, const QUuid& block, const FB_Pointer& press, bool wasSelected);

  void move(const FB_Pointer& pointer) override;
  void release(const FB_Pointer& pointer) override;
  void cancel() override;
  void paint(QPainter& painter) const override;

private:
  struct Moved {
    QUuid mBlock;
    QPointF mFrom;
  };

  void start();
  void click(Qt::KeyboardModifiers modifiers);
  void putBack();
  [[nodiscard]] FB_Snap::Lines guides() const;
  [[nodiscard]] FB_Snap::Result placeFor(const FB_Pointer& pointer) const;

  FB_Page& mPage;
  QUuid mBlock;
  QPointF mPress;  ///< on the unzoomed page
  QPointF mScreen; ///< where the press was
  bool mWasSelected;
  bool mHasStarted = false;
  QList<QUuid> mBlocks;
  std::vector<Moved> mMoved;
  QRectF mExtent; ///< of all that is dragged, before
  QPointF mAnchor;
  FB_Snap::Lines mOwn;
  FB_Snap::Result mPlace;
};
