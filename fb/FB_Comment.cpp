#include "fb/FB_Comment.h"

#include "fb/FB_Block_Painter.h"
#include "fb/model/FB_Geometry.h"

void FB_Comment::paintBlock(QPainter& painter) const {
  const FB_Block_Painter block(painter, *this);
  block.drawBody(body());
  block.drawLines(FB_Geometry::titleLines(record()));
  block.drawFrame(body());
}

bool FB_Comment::canBeDisabled() const {
  return false;
}

bool FB_Comment::isStandIn() const {
  return record().mOriginalType != 0;
}
