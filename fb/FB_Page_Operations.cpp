// The edits of the page: each calls the edits of its model, which records the step, and tells what became of it.
#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Follower.h"
#include "fb/model/FB_Clipboard.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Snap.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int cFromEdge = 5;           // pixels of the canvas, of a drop beyond its edge
constexpr QSizeF cUsualBlock{128, 64}; // of the unzoomed page

} // namespace

bool FB_Page::finish(const Edit_Result& result) {
  mFollower->flush();
  if (!result) {
    tellLater(result.mError);
    return false;
  }
  setModified();
  return true;
}

bool FB_Page::finish(const FB_Page_Edits::Result& result) {
  if (!finish(static_cast<const Edit_Result&>(result))) {
    return false;
  }
  select(result.mBlocks);
  if (!result.mNote.isEmpty()) {
    emit statusText(result.mNote);
  }
  return true;
}

bool FB_Page::insertBlock(int type) {
  const QPointF centre = visibleCentre() / zoom() - QPointF(cUsualBlock.width() / 2, cUsualBlock.height() / 2);
  const int grid = snapGrid();
  QPointF place(FB_Snap::toGrid(std::max(0.0, centre.x()), grid), FB_Snap::toGrid(std::max(0.0, centre.y()), grid));
  // One after the other, they would hide each other.
  const auto isTaken = [&] {
    for (int i = 0; i < mBlocks.count(); ++i) {
      if (QLineF(mBlocks.rect(i).topLeft(), place).length() < 1) {
        return true;
      }
    }
    return false;
  };
  while (isTaken()) {
    place += QPointF(FB_Geometry::cGrid, FB_Geometry::cGrid);
  }
  const bool isDone = finish(FB_Page_Edits::create(mSession, mGuid, type, place));
  if (isDone) {
    bringIntoView(mBlocks.extent(selectedBlocks()));
    setFocus(Qt::OtherFocusReason);
    tellInserted();
  }
  return isDone;
}

/// The block that was just made is the only one selected.
void FB_Page::tellInserted() {
  if (FB_Base* const block = mBlocks.find(selectedBlocks().value(0))) {
    block->inserted();
  }
}

bool FB_Page::dropBlock(int type, const QPointF& point) {
  QPointF place(std::round(point.x()), std::round(point.y()));
  place.setX(place.x() > width() ? width() - cFromEdge : place.x());
  place.setY(place.y() > height() ? height() - cFromEdge : place.y());
  const bool isDone = finish(FB_Page_Edits::create(mSession, mGuid, type, place / zoom()));
  if (isDone) {
    tellInserted();
  }
  return isDone;
}

bool FB_Page::moveBlocks(const QHash<QUuid, QPointF>& positions) {
  return finish(FB_Page_Edits::move(mSession, positions));
}

bool FB_Page::nudge(const QPointF& offset) {
  const QList<QUuid> selected = selectedBlocks();
  const QRectF extent = mBlocks.extent(selected);
  const QPointF step(std::max(offset.x(), -extent.left()), std::max(offset.y(), -extent.top()));
  QHash<QUuid, QPointF> positions;
  for (const QUuid& block : selected) {
    positions.insert(block, mBlocks.rect(mBlocks.indexOf(block)).topLeft() + step);
  }
  if (step.isNull() || !moveBlocks(positions)) {
    return false;
  }
  bringIntoView(mBlocks.extent(selected));
  return true;
}

void FB_Page::alignToGrid() {
  if (!isVisible() || !mayEdit() || !mSettings.isOn(Setting::ShowGrid)) {
    return;
  }
  if (finish(FB_Page_Edits::alignToGrid(mSession, selectedBlocks(), mSettings.value(Setting::GridSize)))) {
    mSession.history().commit(); // at once, a step of its own
  }
}

bool FB_Page::align(FB_Page_Edits::Edge edge) {
  return finish(FB_Page_Edits::align(mSession, selectedBlocks(), edge));
}

bool FB_Page::distribute(Qt::Orientation orientation) {
  return finish(FB_Page_Edits::distribute(mSession, selectedBlocks(), orientation));
}

bool FB_Page::connectPins(const FB_Base& source, FB_Side sourceSide, int sourcePin, const FB_Base& target,
                          FB_Side targetSide, int targetPin) {
  return connectPins({source.guid(), sourceSide, sourcePin}, {target.guid(), targetSide, targetPin});
}

bool FB_Page::connectPins(const FB_Pin_Ref& from, const FB_Pin_Ref& to) {
  return finish(FB_Page_Edits::connectPins(mSession, from, to));
}

bool FB_Page::removeConnection(const FB_Connection& connection) {
  return finish(FB_Page_Edits::removeConnection(mSession, connection));
}

bool FB_Page::moveConnection(const FB_Connection& connection, FB_Side end, const FB_Pin_Ref& to) {
  return finish(FB_Page_Edits::moveConnection(mSession, connection, end, to));
}

bool FB_Page::removeSelected() {
  return finish(FB_Page_Edits::remove(mSession, selectedBlocks()));
}

bool FB_Page::duplicate(const QList<QUuid>& blocks, const QPointF& offset) {
  return finish(FB_Clipboard::duplicate(mSession, blocks, offset, mSettings.isOn(Setting::FBCopyPasteKeepIO)));
}

bool FB_Page::paste(const QByteArray& packed, const QPointF& position) {
  return finish(FB_Clipboard::paste(mSession, mGuid, packed, position, mSettings.isOn(Setting::FBCopyPasteKeepIO)));
}
