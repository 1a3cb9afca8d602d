#include "fb/FB_Page_Picture.h"

#include "fb/FB_Base.h"
#include "fb/FB_Page.h"
#include "fb/FB_Page_Blocks.h"
#include "ui/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace {

constexpr double cMargin = 16;         // pixels around the blocks
constexpr double cLargest = 8'000'000; // pixels of a picture, 32 MB

} // namespace

QImage FB_Page_Picture::of(FB_Page& page, const QList<QUuid>& guids) {
  FB_Page_Blocks& blocks = page.blocks();
  const QRectF extent = blocks.extent(guids);
  const double zoom = page.zoom();
  QRectF part(extent.topLeft() * zoom, extent.size() * zoom);
  for (const QUuid& guid : guids) {
    part |= blocks.find(guid)->labelRect();
  }
  part.adjust(-cMargin, -cMargin, cMargin, cMargin);
  if (part.width() * part.height() > cLargest) {
    return {};
  }
  QImage picture(part.size().toSize(), QImage::Format_RGB32);
  picture.fill(Theme::color(Theme::Role::Canvas));
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(-part.topLeft());
  const QSet<QUuid> shown(guids.begin(), guids.end());
  const FB_Wires& wires = blocks.wires();
  for (int i = 0; i < wires.count(); ++i) {
    const FB_Connection connection = blocks.connection(i);
    if (!wires.at(i).mIsHidden && shown.contains(connection.mSource) && shown.contains(connection.mTarget)) {
      using Role = Theme::Role;
      painter.setPen(QPen(Theme::color(wires.at(i).mIsAddress ? Role::WireAddress : Role::WireVariable), 2));
      painter.drawPath(wires.path(i));
    }
  }
  for (const QUuid& guid : guids) {
    FB_Base& block = *blocks.find(guid);
    block.paintLabels(painter);
    painter.save();
    painter.translate(block.pos());
    painter.setClipRect(block.rect());
    block.paintBlock(painter);
    painter.restore();
  }
  return picture;
}
