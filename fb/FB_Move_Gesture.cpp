#include "fb/FB_Move_Gesture.h"

#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Blocks.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pins.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QPainter>

#include <algorithm>

namespace {

constexpr double cReach = 5; // pixels on the screen

void addRows(FB_Snap::Lines& lines, const FB_Base& block, double top) {
  for (const FB_Side side : {FB_Side::Input, FB_Side::Output}) {
    const int count = static_cast<int>(FB_Pins::pins(block.record(), side).size());
    for (int i = 0; i < count; ++i) {
      lines.mRows.push_back(top + FB_Geometry::pin(block.record(), side, i).y());
    }
  }
}

} // namespace

FB_Move_Gesture::FB_Move_Gesture(FB_Page& page, const QUuid& block, const FB_Pointer& press, bool wasSelected)
    : mPage(page),
      mBlock(block),
      mPress(press.mPage / page.zoom()),
      mScreen(press.mScreen),
      mWasSelected(wasSelected) {}

void FB_Move_Gesture::start() {
  mHasStarted = true;
  const FB_Page_Blocks& blocks = mPage.blocks();
  mBlocks = mPage.selectedBlocks();
  for (const QUuid& block : std::as_const(mBlocks)) {
    mMoved.push_back({block, blocks.rect(blocks.indexOf(block)).topLeft()});
    blocks.at(blocks.indexOf(block)).raise();
  }
  mExtent = blocks.extent(mBlocks);
  const int pressed = blocks.indexOf(mBlock);
  mAnchor = blocks.rect(pressed).topLeft();
  mOwn.add(mExtent);
  mOwn.add(blocks.rect(pressed));
  addRows(mOwn, blocks.at(pressed), mAnchor.y());
}

/// Of what stands in the visible part.
FB_Snap::Lines FB_Move_Gesture::guides() const {
  const FB_Page_Blocks& blocks = mPage.blocks();
  FB_Snap::Lines lines;
  for (int i = 0; i < blocks.count(); ++i) {
    if (blocks.isShown(i) && !blocks.at(i).isSelected()) {
      lines.add(blocks.rect(i));
      addRows(lines, blocks.at(i), blocks.rect(i).top());
    }
  }
  return lines;
}

FB_Snap::Result FB_Move_Gesture::placeFor(const FB_Pointer& pointer) const {
  const QPointF offset = pointer.mPage / mPage.zoom() - mPress;
  FB_Snap::Result place{offset, {}, {}};
  if (!pointer.mModifiers.testFlag(Qt::AltModifier)) {
    place = FB_Snap::snap(offset, mOwn, mAnchor, guides(), cReach / mPage.zoom(), mPage.snapGrid());
  }
  place.mOffset.setX(std::max(place.mOffset.x(), -mExtent.left()));
  place.mOffset.setY(std::max(place.mOffset.y(), -mExtent.top()));
  return place;
}

void FB_Move_Gesture::move(const FB_Pointer& pointer) {
  if (!mHasStarted) {
    if ((pointer.mScreen - mScreen).manhattanLength() < QApplication::startDragDistance()) {
      return;
    }
    start();
  }
  mPage.showCursor(pointer.mModifiers.testFlag(Qt::ControlModifier) ? Qt::DragCopyCursor : Qt::SizeAllCursor);
  mPlace = placeFor(pointer);
  for (const Moved& moved : mMoved) {
    mPage.blocks().showAt(mPage.blocks().indexOf(moved.mBlock), moved.mFrom + mPlace.mOffset);
  }
  mPage.growTo(mExtent.translated(mPlace.mOffset));
  mPage.updateCanvas();
}

void FB_Move_Gesture::release(const FB_Pointer& pointer) {
  if (!mHasStarted) {
    click(pointer.mModifiers);
    return;
  }
  if (pointer.mModifiers.testFlag(Qt::ControlModifier)) {
    putBack();
    mPage.duplicate(mBlocks, mPlace.mOffset);
    return;
  }
  QHash<QUuid, QPointF> positions;
  for (const Moved& moved : mMoved) {
    positions.insert(moved.mBlock, moved.mFrom + mPlace.mOffset);
  }
  if (mPlace.mOffset.isNull() || !mPage.moveBlocks(positions)) {
    putBack();
  }
}

void FB_Move_Gesture::click(Qt::KeyboardModifiers modifiers) {
  if (!mWasSelected) {
    return;
  }
  if (modifiers.testFlag(Qt::ControlModifier)) {
    QList<QUuid> others = mPage.selectedBlocks();
    others.removeOne(mBlock);
    mPage.select(others);
  } else if (!modifiers.testFlag(Qt::ShiftModifier)) {
    mPage.select({mBlock});
  }
}

/// Those that are still there: the page may have followed an edit since they were let go.
void FB_Move_Gesture::putBack() {
  for (const Moved& moved : mMoved) {
    if (const int index = mPage.blocks().indexOf(moved.mBlock); index >= 0) {
      mPage.blocks().putBack(index);
    }
  }
  mPage.updateSize();
  mPage.updateCanvas();
}

void FB_Move_Gesture::cancel() {
  putBack();
}

void FB_Move_Gesture::paint(QPainter& painter) const {
  const QRectF part = mPage.visiblePart();
  painter.setPen(QPen(Theme::color(Theme::Role::Accent), 1, Qt::DashLine));
  if (mPlace.mGuideX) {
    const double x = *mPlace.mGuideX * mPage.zoom();
    painter.drawLine(QPointF(x, part.top()), QPointF(x, part.bottom()));
  }
  if (mPlace.mGuideY) {
    const double y = *mPlace.mGuideY * mPage.zoom();
    painter.drawLine(QPointF(part.left(), y), QPointF(part.right(), y));
  }
}
