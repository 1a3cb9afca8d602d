// How the page is drawn: ground, wires, and what stands beside the blocks' pins; the blocks draw themselves above.
#include "base/App_Settings.h"
#include "db/Project_Session.h"
#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Ground.h"
#include "fb/FB_Page_Overlay.h"
#include "fb/model/FB_Geometry.h"

#include <QPaintEvent>
#include <QPainter>

void FB_Page::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  const QRectF region = event->region().boundingRect();
  painter.setClipRect(region); // tells the parts below what need not be drawn
  const DB_FB_Page* const page = mBlocks.page();
  FB_Page_Ground::Look look{zoom(), size(), !page || page->mActive, mSettings.isOn(Setting::ShowGrid)};
  FB_Page_Ground::paint(painter, region, look);
  if (mBlocks.count() == 0) {
    FB_Page_Ground::paintHint(painter, visiblePart());
    return;
  }
  painter.setRenderHint(QPainter::Antialiasing);
  mBlocks.wires().paint(painter, region, mNet);
  for (int i = 0; i < mBlocks.count(); ++i) {
    paintLabels(painter, region, i); // also of blocks that are out of sight themselves
  }
}

/// They stand beside the block, and go with it while it is dragged.
void FB_Page::paintLabels(QPainter& painter, const QRectF& region, int index) const {
  constexpr double cReach = 32 * FB_Geometry::cGrid; // no label is longer
  if (!mBlocks.isDisplayed(index)) {
    return;
  }
  const QRectF& rect = mBlocks.rect(index);
  const QRectF near((rect.topLeft() - QPointF(cReach, cReach)) * zoom(),
                    (rect.size() + 2 * QSizeF(cReach, cReach)) * zoom());
  if (!near.intersects(region)) {
    return;
  }
  const FB_Base& block = mBlocks.at(index);
  const QPointF moved = (rect.topLeft() - QPointF(block.record().mX, block.record().mY)) * zoom();
  if (block.labelRect().intersects(region)) {
    painter.translate(moved);
    block.paintLabels(painter);
    painter.translate(-moved);
  }
}

void FB_Page::updateCanvas() {
  update(visiblePart());
}

void FB_Page::updateOverlay() {
  mOverlay->place();
  mOverlay->update();
}
