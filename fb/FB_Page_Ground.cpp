#include "fb/FB_Page_Ground.h"

#include "fb/model/FB_Geometry.h"
#include "ui/Theme.h"

#include <QCoreApplication>
#include <QPainter>

#include <cmath>

namespace {

constexpr int cMajor = 8;        // cells between the lines
constexpr double cLeastGap = 12; // pixels between dots

void paintLines(QPainter& painter, const QRectF& region, double pitch) {
  painter.setPen(Theme::color(Theme::Role::GridLine));
  const double step = pitch * cMajor;
  for (double x = std::ceil(region.left() / step) * step; x <= region.right(); x += step) {
    painter.drawLine(QLineF(std::round(x), region.top(), std::round(x), region.bottom()));
  }
  for (double y = std::ceil(region.top() / step) * step; y <= region.bottom(); y += step) {
    painter.drawLine(QLineF(region.left(), std::round(y), region.right(), std::round(y)));
  }
}

/// Every other one is left out until they do not crowd.
void paintDots(QPainter& painter, const QRectF& region, double pitch) {
  while (pitch < cLeastGap) {
    pitch *= 2;
  }
  QList<QPoint> dots;
  const auto right = static_cast<int>(std::floor(region.right() / pitch));
  const auto bottom = static_cast<int>(std::floor(region.bottom() / pitch));
  for (int row = static_cast<int>(std::ceil(region.top() / pitch)); row <= bottom; ++row) {
    const int y = static_cast<int>(std::lround(row * pitch));
    for (int column = static_cast<int>(std::ceil(region.left() / pitch)); column <= right; ++column) {
      dots.append({static_cast<int>(std::lround(column * pitch)), y});
    }
  }
  painter.setPen(Theme::color(Theme::Role::GridDot));
  painter.drawPoints(dots.constData(), static_cast<int>(dots.size()));
}

} // namespace

void FB_Page_Ground::paint(QPainter& painter, const QRectF& region, const Look& look) {
  painter.fillRect(region, Theme::color(look.mIsActive ? Theme::Role::Canvas : Theme::Role::Bar));
  if (look.mHasGrid) {
    const double pitch = FB_Geometry::cGrid * look.mZoom;
    paintLines(painter, region, pitch);
    paintDots(painter, region, pitch);
  }
  painter.setPen(Theme::color(Theme::Role::Border));
  painter.drawLine(QLineF(look.mPage.width() - 1, 0, look.mPage.width() - 1, look.mPage.height() - 1));
  painter.drawLine(QLineF(0, look.mPage.height() - 1, look.mPage.width() - 1, look.mPage.height() - 1));
}

void FB_Page_Ground::paintHint(QPainter& painter, const QRectF& part) {
  painter.setPen(Theme::color(Theme::Role::SecondaryText));
  painter.drawText(part, Qt::AlignCenter | Qt::TextWordWrap,
                   QCoreApplication::translate("FB_Page_Ground", "Auf dieser Seite steht noch kein Baustein.\n\n"
                                                                 "Einen Baustein aus dem Katalog hierher ziehen\n"
                                                                 "oder im Katalog doppelt anklicken."));
}
