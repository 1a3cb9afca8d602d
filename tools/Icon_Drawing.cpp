#include "tools/Icon_Drawing.h"

#include <QFileInfo>
#include <QPainter>

namespace {

constexpr qreal boxSize = 24;
constexpr qreal lineWidth = 2;

} // namespace

Icon_Drawing::Icon_Drawing(const QString& file) : mDrawing(file), mName(QFileInfo(file).completeBaseName()) {}

QImage Icon_Drawing::picture(int size) {
  QImage result(size, size, QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setRenderHint(QPainter::Antialiasing);
  // A line of an odd number of pixels is sharp around the middle of a pixel, one of an even number around an edge.
  const bool isOdd = qRound(lineWidth * size / boxSize) % 2 != 0;
  const qreal shift = isOdd ? -0.5 : 0;
  mDrawing.render(&painter, QRectF(shift, shift, size, size));
  return result;
}
