#include "ui/Drag_Label.h"

#include "ui/Theme.h"

#include <QPainter>
#include <QWidget>

namespace {
constexpr int cPadding = 6;
constexpr int cLongest = 260;
constexpr QPoint cHotSpot(-14, -10);
} // namespace

QPixmap Drag_Label::picture(const QWidget& widget, const QString& text) {
  const QFontMetrics metrics = widget.fontMetrics();
  const QString shown = metrics.elidedText(text, Qt::ElideRight, cLongest);
  const QSize size(metrics.horizontalAdvance(shown) + 2 * cPadding, metrics.height() + cPadding);
  QPixmap picture(size * widget.devicePixelRatioF());
  picture.setDevicePixelRatio(widget.devicePixelRatioF());
  picture.fill(Theme::color(Theme::Role::Input));
  QPainter painter(&picture);
  painter.setFont(widget.font());
  painter.setPen(Theme::color(Theme::Role::Accent));
  painter.drawRect(QRect(QPoint(), size - QSize(1, 1)));
  painter.setPen(Theme::color(Theme::Role::Text));
  painter.drawText(QRect(QPoint(), size), Qt::AlignCenter, shown);
  return picture;
}

QPoint Drag_Label::hotSpot() {
  return cHotSpot;
}
