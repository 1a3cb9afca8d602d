// What of the page is seen: zoom, size and scrolling.
#include "fb/FB_Base.h"
#include "fb/FB_Inline_Edit.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Follower.h"
#include "fb/FB_Page_Overlay.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <cmath>

namespace {

constexpr int cTenthsMinimum = 5;
constexpr int cTenthsMaximum = 40;
constexpr double cMargin = 24; // pixels around what is brought into view

} // namespace

QScrollArea* FB_Page::scrollArea() const {
  QWidget* const viewport = parentWidget();
  return viewport ? qobject_cast<QScrollArea*>(viewport->parentWidget()) : nullptr;
}

QRect FB_Page::visiblePart() const {
  return scrollArea() ? QRect(-pos(), parentWidget()->size()) & rect() : rect();
}

QPointF FB_Page::visibleCentre() const {
  return QRectF(visiblePart()).center();
}

QPoint FB_Page::scrollPosition() const {
  const QScrollArea* const area = scrollArea();
  return area ? QPoint(area->horizontalScrollBar()->value(), area->verticalScrollBar()->value()) : QPoint();
}

void FB_Page::scrollTo(const QPoint& position) {
  if (const QScrollArea* const area = scrollArea()) {
    area->horizontalScrollBar()->setValue(position.x());
    area->verticalScrollBar()->setValue(position.y());
  }
}

void FB_Page::viewChanged() {
  // A block that the mouse is held on must not be hidden: it would lose the mouse.
  mBlocks.showWithin(visiblePart(), !mGesture);
  mOverlay->place();
  if (mBlocks.count() == 0) {
    update(); // the hint stays in the middle
  }
}

void FB_Page::zoomIn() {
  if (isVisible()) {
    setTenths(mTenths + 1, visibleCentre());
  }
}

void FB_Page::zoomOut() {
  if (isVisible()) {
    setTenths(mTenths - 1, visibleCentre());
  }
}

void FB_Page::zoomReset() {
  if (isVisible()) {
    setTenths(10, visibleCentre());
  }
}

void FB_Page::setZoom(double zoom, const QPointF& anchor) {
  const double tenths = std::clamp(zoom * 10, double(cTenthsMinimum), double(cTenthsMaximum));
  setTenths(std::isnan(zoom) ? 10 : static_cast<int>(std::lround(tenths)), anchor);
}

void FB_Page::setTenths(int tenths, const QPointF& anchor) {
  tenths = std::clamp(tenths, cTenthsMinimum, cTenthsMaximum);
  if (tenths == mTenths) {
    return;
  }
  closeEditor();
  cancelGesture();
  const QPointF shift = anchor * tenths / mTenths - anchor;
  const QPoint before = scrollPosition();
  mTenths = tenths;
  rebuildConnections();
  mBlocks.applyZoom();
  updateSize();
  scrollTo(before + shift.toPoint());
  viewChanged();
  update();
  emit zoomChanged(zoom());
}

void FB_Page::zoomTo(const QRectF& rect) {
  const QSize room = scrollArea() ? scrollArea()->viewport()->size() : size();
  if (rect.isEmpty() || room.isEmpty()) {
    return;
  }
  const double fit =
      std::min((room.width() - 2 * cMargin) / rect.width(), (room.height() - 2 * cMargin) / rect.height());
  // Down to a whole step, so that it fits indeed.
  setTenths(static_cast<int>(std::clamp(std::floor(fit * 10), double(cTenthsMinimum), double(cTenthsMaximum))), {});
  scrollTo((rect.center() * zoom() - QPointF(room.width() / 2.0, room.height() / 2.0)).toPoint());
}

void FB_Page::zoomToFit() {
  zoomTo(mBlocks.extent());
}

void FB_Page::zoomToSelection() {
  const QList<QUuid> selected = selectedBlocks();
  zoomTo(selected.isEmpty() ? mBlocks.extent() : mBlocks.extent(selected));
}

void FB_Page::showBlock(const QUuid& block) {
  showBlocks({block});
}

void FB_Page::showBlocks(const QList<QUuid>& blocks) {
  mFollower->flush();
  const QRectF extent = mBlocks.extent(blocks);
  if (!extent.isNull()) {
    select(blocks);
    bringIntoView(extent);
  }
}

void FB_Page::bringIntoView(const QRectF& rect) {
  const QScrollArea* const area = scrollArea();
  if (!area || rect.isNull()) {
    return;
  }
  const QRectF wanted =
      QRectF(rect.topLeft() * zoom(), rect.size() * zoom()).adjusted(-cMargin, -cMargin, cMargin, cMargin);
  const QSizeF room = area->viewport()->size();
  const auto along = [](double position, double length, double from, double to) {
    return to - from > length || from < position ? from : std::max(position, to - length);
  };
  const QPointF now = scrollPosition();
  scrollTo(QPointF(along(now.x(), room.width(), wanted.left(), wanted.right()),
                   along(now.y(), room.height(), wanted.top(), wanted.bottom()))
               .toPoint());
  viewChanged();
}

void FB_Page::updateSize() {
  QRectF whole = mBlocks.extent();
  if (const DB_FB_Page* const page = mBlocks.page()) {
    whole |= QRectF(0, 0, page->mWidth, page->mHeight);
  }
  resize(static_cast<int>(std::ceil(whole.right() * zoom())), static_cast<int>(std::ceil(whole.bottom() * zoom())));
}

void FB_Page::growTo(const QRectF& rect) {
  resize(std::max(width(), static_cast<int>(std::ceil(rect.right() * zoom()))),
         std::max(height(), static_cast<int>(std::ceil(rect.bottom() * zoom()))));
}

void FB_Page::showExecutionOrder(bool isShown) {
  mShowsOrder = isShown;
  mOverlay->place();
}

void FB_Page::showEvent(QShowEvent* event) {
  QWidget::showEvent(event);
  lightWires(); // what came while it was hidden
  viewChanged();
}

void FB_Page::hideEvent(QHideEvent* event) {
  closeEditor();
  cancelGesture();
  leaveSpace();
  QWidget::hideEvent(event);
}

void FB_Page::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  viewChanged();
}

void FB_Page::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  viewChanged();
}
