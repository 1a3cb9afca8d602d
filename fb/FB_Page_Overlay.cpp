#include "fb/FB_Page_Overlay.h"

#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Blocks.h"
#include "fb/model/FB_Execution_Order.h"
#include "ui/Theme.h"

#include <QPainter>

#include <algorithm>

FB_Page_Overlay::FB_Page_Overlay(FB_Page& page) : QWidget(&page), mPage(page) {
  setAttribute(Qt::WA_TransparentForMouseEvents);
  setAttribute(Qt::WA_NoSystemBackground);
  hide();
}

void FB_Page_Overlay::place() {
  const bool isNeeded = mPage.gesture() || mPage.isShowingExecutionOrder();
  if (isNeeded) {
    setGeometry(mPage.visiblePart());
    raise();
  }
  setVisible(isNeeded);
}

void FB_Page_Overlay::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  painter.translate(-pos());
  if (mPage.isShowingExecutionOrder()) {
    paintOrder(painter);
  }
  if (const FB_Gesture* const gesture = mPage.gesture()) {
    gesture->paint(painter);
  }
}

/// At the upper right corner.
void FB_Page_Overlay::paintOrder(QPainter& painter) const {
  const FB_Page_Blocks& blocks = mPage.blocks();
  const DB_FB_Page* const page = blocks.page();
  if (!page) {
    return;
  }
  const std::vector<int> numbers = FB_Execution_Order::ofPage(mPage.database(), *page);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const int count = std::min(blocks.count(), static_cast<int>(numbers.size())); // the widgets may not have followed yet
  for (int i = 0; i < count; ++i) {
    const int number = numbers[static_cast<size_t>(i)];
    if (!blocks.isShown(i) || number == 0) {
      continue;
    }
    const QString text = QString::number(number);
    QRectF badge = painter.fontMetrics().boundingRect(text).adjusted(-5, -1, 5, 1);
    badge.moveCenter(blocks.rect(i).topRight() * mPage.zoom());
    painter.setPen(Theme::color(Theme::Role::Canvas));
    painter.setBrush(Theme::color(Theme::Role::Warning));
    painter.drawRoundedRect(badge, badge.height() / 2, badge.height() / 2);
    painter.drawText(badge, Qt::AlignCenter, text);
  }
  painter.restore();
}
