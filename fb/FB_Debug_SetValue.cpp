#include "fb/FB_Debug_SetValue.h"

#include "fb/FB_Block_Host.h"
#include "fb/FB_Block_Painter.h"
#include "fb/model/FB_Geometry.h"

#include <QLocale>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>

namespace {

constexpr double cPadding = 0.75; ///< grid units at the left and right of the rows
constexpr double cNamePart = 0.4; ///< of a row's width

constexpr int cFirstValue = 1; ///< parameter of the first output's value

} // namespace

void FB_Debug_SetValue::valuesChanged() {
  update();
}

int FB_Debug_SetValue::rowAt(double y) const {
  for (int i = 0; i < static_cast<int>(record().mOutputs.size()); ++i) {
    if (std::abs(y - FB_Geometry::pin(type(), FB_Side::Output, i, width(), grid()).y()) <= grid() / 2) {
      return i;
    }
  }
  return -1;
}

void FB_Debug_SetValue::mousePressEvent(QMouseEvent* event) {
  const int row = event->button() == Qt::LeftButton && host().isOperatingMode() ? rowAt(event->position().y()) : -1;
  if (row < 0) {
    FB_Base::mousePressEvent(event);
    return;
  }
  host().sendValue(record().mOutputs[static_cast<size_t>(row)].mBinding, record().mParams.value(cFirstValue + row));
}

QString FB_Debug_SetValue::preset(int output) const {
  const QString text = record().mParams.value(cFirstValue + output);
  bool isNumber = false;
  const double number = text.toDouble(&isNumber);
  return isNumber ? QLocale().toString(number, 'f', QLocale::FloatingPointShortest) : text.simplified();
}

void FB_Debug_SetValue::paintContent(QPainter& painter) const {
  const FB_Block_Painter block(painter, *this);
  const double padding = cPadding * grid();
  const double width = this->width() - 2 * padding;
  painter.setPen(block.color(Theme::Role::Text));
  block.drawText({padding, 0, width, FB_Geometry::cTitleBand * grid()}, Qt::AlignLeft | Qt::AlignVCenter,
                 FB_Geometry::titleLines(record()).constFirst());
  for (int i = 0; i < static_cast<int>(record().mOutputs.size()); ++i) {
    const double top = FB_Geometry::pin(type(), FB_Side::Output, i, this->width(), grid()).y() - grid() / 2;
    const double nameWidth = width * cNamePart;
    painter.setPen(block.color(Theme::Role::SecondaryText));
    block.drawText({padding, top, nameWidth, grid()}, Qt::AlignLeft | Qt::AlignVCenter,
                   record().mOutputs[i].mShortName);
    const QString value = host().valueOf(record().mOutputs[i].mBinding).mText.simplified();
    painter.setPen(block.color(value.isEmpty() ? Theme::Role::SecondaryText : Theme::Role::Text));
    block.drawText({padding + nameWidth, top, width - nameWidth, grid()}, Qt::AlignRight | Qt::AlignVCenter,
                   value.isEmpty() ? preset(i) : value);
  }
}
