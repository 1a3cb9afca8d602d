#include "tools/Icon_Sheet.h"

#include "tools/Icon_Drawing.h"

#include <QColor>
#include <QFont>
#include <QPainter>

#include <array>

namespace {

constexpr std::array sizes{16, 20, 24, 32, 48};
constexpr int disabledSize = 24;
constexpr int gap = 12;
constexpr int columns = 5;
constexpr int largest = 48;
constexpr int textHeight = 16;
constexpr int cellHeight = gap + largest + textHeight;
constexpr int fontSize = 11;
constexpr int cellWidth = [] {
  int width = gap + disabledSize + gap;
  for (const int size : sizes) {
    width += size + gap;
  }
  return width;
}();

const QColor ground(0x23, 0x23, 0x23);
const QColor textColor(0xa8, 0xa8, 0xa8);
const QColor disabledColor(0x6a, 0x6a, 0x6a);

QImage disabled(QImage picture) {
  QPainter painter(&picture);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(picture.rect(), disabledColor);
  return picture;
}

void drawCell(QPainter& painter, const QString& file, const QPoint& corner) {
  Icon_Drawing drawing(file);
  QPoint place = corner + QPoint(gap, gap);
  const auto put = [&](const QImage& picture) {
    painter.drawImage(place + QPoint(0, (largest - picture.height()) / 2), picture);
    place += QPoint(picture.width() + gap, 0);
  };
  for (const int size : sizes) {
    put(drawing.picture(size));
  }
  put(disabled(drawing.picture(disabledSize)));
  painter.drawText(QRect(corner + QPoint(gap, gap + largest), QSize(cellWidth - gap, textHeight)),
                   Qt::AlignLeft | Qt::AlignVCenter, drawing.name());
}

} // namespace

QImage Icon_Sheet::make(const std::vector<QString>& drawings) {
  const int count = int(drawings.size());
  const int rows = (count + columns - 1) / columns;
  QImage sheet(columns * cellWidth + gap, rows * cellHeight + gap, QImage::Format_RGB32);
  sheet.fill(ground);
  QPainter painter(&sheet);
  QFont font = painter.font();
  font.setPixelSize(fontSize);
  painter.setFont(font);
  painter.setPen(textColor);
  for (int i = 0; i < count; ++i) {
    drawCell(painter, drawings[size_t(i)], QPoint((i % columns) * cellWidth, (i / columns) * cellHeight));
  }
  return sheet;
}
