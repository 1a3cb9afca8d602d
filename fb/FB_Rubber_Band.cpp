#include "fb/FB_Rubber_Band.h"

#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Blocks.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QPainter>

FB_Rubber_Band::FB_Rubber_Band(FB_Page& page, const FB_Pointer& press, const QList<QUuid>& before)
    : mPage(page),
      mPress(press.mPage / page.zoom()),
      mBefore(before) {
  const QList<QUuid> kept = page.selectedBlocks();
  mKept = QSet<QUuid>(kept.begin(), kept.end());
}

void FB_Rubber_Band::move(const FB_Pointer& pointer) {
  const QPointF now = pointer.mPage / mPage.zoom();
  if (mRect.isNull() && (now - mPress).manhattanLength() * mPage.zoom() < QApplication::startDragDistance()) {
    return;
  }
  mRect = QRectF(mPress, now).normalized();
  const FB_Page_Blocks& blocks = mPage.blocks();
  QSet<QUuid> touched = mKept;
  for (int i = 0; i < blocks.count(); ++i) {
    if (blocks.isDisplayed(i) && mRect.intersects(blocks.rect(i))) {
      touched.insert(blocks.at(i).guid());
    }
  }
  mPage.showSelection(touched);
  mPage.updateOverlay();
}

void FB_Rubber_Band::release(const FB_Pointer& /*pointer*/) {
  mPage.tellSelection();
}

void FB_Rubber_Band::cancel() {
  mPage.select(mBefore);
}

void FB_Rubber_Band::paint(QPainter& painter) const {
  if (mRect.isNull()) {
    return;
  }
  const double zoom = mPage.zoom();
  QColor fill = Theme::color(Theme::Role::Accent);
  painter.setPen(fill);
  fill.setAlphaF(0.15F);
  painter.setBrush(fill);
  painter.drawRect(QRectF(mRect.topLeft() * zoom, mRect.size() * zoom));
}
