#include "fb/FB_Auto_Scroll.h"

#include <QScrollArea>
#include <QScrollBar>

#include <algorithm>
#include <chrono>

namespace {

constexpr int cMargin = 12;  // pixels before the edge
constexpr int cFastest = 40; // pixels each time

/// Negative before the beginning, positive behind the end.
int stepFor(double position, int length) {
  const double before = cMargin - position;
  const double behind = position - (length - cMargin);
  const double step = before > 0 ? -before : std::max(behind, 0.0);
  return std::clamp(static_cast<int>(step), -cFastest, cFastest);
}

} // namespace

FB_Auto_Scroll::FB_Auto_Scroll(QObject* parent) : QObject(parent) {
  mTimer.setInterval(std::chrono::milliseconds(20));
  connect(&mTimer, &QTimer::timeout, this, &FB_Auto_Scroll::onTimeout);
}

void FB_Auto_Scroll::track(QScrollArea& area, const QPointF& screen) {
  mArea = &area;
  const QWidget& viewport = *area.viewport();
  const QPointF point = viewport.mapFromGlobal(screen);
  mStep = {stepFor(point.x(), viewport.width()), stepFor(point.y(), viewport.height())};
  if (mStep.isNull()) {
    mTimer.stop();
  } else if (!mTimer.isActive()) {
    mTimer.start();
  }
}

void FB_Auto_Scroll::stop() {
  mTimer.stop();
  mArea = nullptr;
}

void FB_Auto_Scroll::onTimeout() {
  QScrollBar& across = *mArea->horizontalScrollBar();
  QScrollBar& down = *mArea->verticalScrollBar();
  const QPoint before(across.value(), down.value());
  across.setValue(before.x() + mStep.x());
  down.setValue(before.y() + mStep.y());
  if (before != QPoint(across.value(), down.value())) {
    emit scrolled();
  }
}
