#pragma once

#include <QRectF>
#include <QString>

class QPainter;

/// What lies below everything else on a page.
namespace FB_Page_Ground {

struct Look {
  double mZoom = 1;
  QSizeF mPage; ///< of the whole page, in pixels of the canvas
  bool mIsActive = true;
  bool mHasGrid = true;
};

/// Colour, grid and the page's edges within `region`, in pixels of the canvas.
void paint(QPainter& painter, const QRectF& region, const Look& look);

/// What to do on an empty page, in the middle of its visible part.
void paintHint(QPainter& painter, const QRectF& part);

} // namespace FB_Page_Ground
