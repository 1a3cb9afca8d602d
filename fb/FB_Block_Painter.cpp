#include "fb/FB_Block_Painter.h"

#include "fb/FB_Base.h"
#include "fb/FB_Texts.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

using Theme::Role;

// In grid units.
constexpr double cMargin = 0.5;    ///< beside the body, where the pins stand
constexpr double cPadding = 0.3;   ///< between the body's edge and texts
constexpr double cRounding = 0.25; ///< corners of unframed blocks
constexpr double cPinRadius = 0.2;
constexpr double cHatchPitch = 0.75;

constexpr double cFrameWidth = 1;
constexpr double cSelectedWidth = 3;
constexpr double cFrameInset = 2; ///< pixels that the title stands lower, clear of the highlight on small pages

QPen framePen(bool isSelected) {
  return {Theme::color(isSelected ? Role::SelectedFrame : Role::BlockFrame), isSelected ? cSelectedWidth : cFrameWidth,
          Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin};
}

Role roleOf(DB_Address_Binding::Kind kind) {
  switch (kind) {
  case DB_Address_Binding::Kind::None:
    break;
  case DB_Address_Binding::Kind::GroupAddress:
    return Role::WireAddress;
  case DB_Address_Binding::Kind::Internal:
    return Role::WireVariable;
  }
  return Role::Indicator;
}

} // namespace

FB_Block_Painter::FB_Block_Painter(QPainter& painter, const FB_Base& block)
    : mPainter(painter),
      mBlock(block),
      mGrid(block.grid()),
      mTexts(block.texts()) {
  mPainter.setRenderHint(QPainter::Antialiasing);
  mPainter.setFont(mTexts.font());
}

QColor FB_Block_Painter::color(Theme::Role role) const {
  return Theme::color(mBlock.record().mDisabled ? Role::DisabledText : role);
}

double FB_Block_Painter::padding() const {
  return std::max(cPadding * mGrid, cSelectedWidth + 1); // the highlight covers no letters
}

bool FB_Block_Painter::isOneRow() const {
  return mBlock.height() < 1.5 * mGrid;
}

QRectF FB_Block_Painter::bodyRect(FB_Body body) const {
  if (body == FB_Body::None) {
    return mBlock.rect();
  }
  const int margin = qRound(cMargin * mGrid);
  return mBlock.rect().adjusted(margin, 0, -margin, 0);
}

void FB_Block_Painter::drawBody(FB_Body body) const {
  const QRectF rect = bodyRect(body);
  switch (body) {
  case FB_Body::Plain:
  case FB_Body::Lighter:
    mPainter.fillRect(rect, Theme::color(body == FB_Body::Plain ? Role::Bar : Role::BlockBody));
    break;
  case FB_Body::None:
    mPainter.setPen(QPen(Theme::color(Role::Border), cFrameWidth));
    mPainter.setBrush(Theme::color(Role::Input));
    mPainter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), cRounding * mGrid, cRounding * mGrid);
    break;
  }
  if (mBlock.record().mDisabled) {
    hatch(rect.adjusted(0, isOneRow() ? 0 : FB_Geometry::cTitleBand * mGrid, 0, 0));
  }
}

void FB_Block_Painter::hatch(const QRectF& rect) const {
  mPainter.save();
  mPainter.setClipRect(rect, Qt::IntersectClip);
  mPainter.setPen(QPen(Theme::color(Role::Hover), 1));
  const double pitch = cHatchPitch * mGrid;
  QList<QLineF> lines;
  for (double x = rect.left() + pitch; x < rect.right() + rect.height(); x += pitch) {
    lines.append({x, rect.top(), x - rect.height(), rect.bottom()});
  }
  mPainter.drawLines(lines);
  mPainter.restore();
}

FB_Geometry::Rows FB_Block_Painter::rows(size_t count) const {
  const QRectF part = mPainter.hasClipping() ? mPainter.clipBoundingRect() : QRectF(mBlock.rect());
  return FB_Geometry::rowsBetween(part.top(), part.bottom(), count, mGrid);
}

void FB_Block_Painter::drawTitle() const {
  const QRectF body = bodyRect(FB_Body::Plain);
  const QRectF band(body.left(), body.top(), body.width(), FB_Geometry::cTitleBand * mGrid);
  const double y = std::round(band.bottom()) + 0.5;
  mPainter.setPen(QPen(Theme::color(Role::Border), 1));
  mPainter.drawLine(QPointF(band.left() + 1, y), QPointF(band.right() - 1, y));
  mPainter.setPen(Theme::color(mBlock.record().mDisabled ? Role::SecondaryText : Role::Text));
  drawText(band.adjusted(padding(), cFrameInset, -padding(), 0), Qt::AlignLeft | Qt::AlignVCenter,
           FB_Geometry::titleLines(mBlock.record()).constFirst());
}

void FB_Block_Painter::drawLines(const QStringList& lines) const {
  const QRectF body = bodyRect(FB_Body::Plain).adjusted(padding(), 0, -padding(), 0);
  mPainter.setPen(color(Role::Text));
  double y = body.top() + mGrid / 2;
  for (const QString& line : lines) {
    drawText({body.left(), y, body.width(), mGrid}, Qt::AlignLeft | Qt::AlignVCenter, line);
    y += mGrid;
  }
}

void FB_Block_Painter::drawPins() const {
  for (const FB_Side side : {FB_Side::Input, FB_Side::Output}) {
    const DB_FB_Control& record = mBlock.record();
    const std::vector<DB_FB_Pin>& pins = side == FB_Side::Input ? record.mInputs : record.mOutputs;
    const FB_Geometry::Rows shown = rows(pins.size());
    for (int i = shown.mFirst; i < shown.mEnd; ++i) {
      drawPin(pins[static_cast<size_t>(i)], side, i);
    }
  }
}

void FB_Block_Painter::drawPin(const DB_FB_Pin& pin, FB_Side side, int index) const {
  const bool isInput = side == FB_Side::Input;
  const double width = mBlock.width();
  const double y = FB_Geometry::pin(mBlock.type(), side, index, width, mGrid).y();
  const QPointF centre(isInput ? cMargin * mGrid / 2 : width - cMargin * mGrid / 2, y);
  const bool isHovered = (isInput ? mBlock.hoveredInput() : mBlock.hoveredOutput()) == index;
  const DB_Address_Binding::Kind kind = pin.mBinding.mKind;
  const QColor ink = isHovered ? Theme::color(Role::Accent) : color(roleOf(kind));
  const double radius = std::max(1.5, (isHovered ? cMargin / 2 : cPinRadius) * mGrid);
  mPainter.setPen(QPen(ink, isHovered ? 2 : 1));
  if (kind != DB_Address_Binding::Kind::None) {
    mPainter.drawLine(QPointF(isInput ? 0 : width, y), centre); // the wire ends at the edge
  }
  mPainter.setBrush(kind == DB_Address_Binding::Kind::None ? QBrush(Qt::NoBrush) : QBrush(ink));
  if (kind == DB_Address_Binding::Kind::Internal) {
    mPainter.drawRect(QRectF(centre.x() - radius, centre.y() - radius, 2 * radius, 2 * radius));
  } else {
    mPainter.drawEllipse(centre, radius, radius);
  }
}

void FB_Block_Painter::drawPinNames() const {
  const QRectF body = bodyRect(FB_Body::Plain).adjusted(padding(), 0, -padding(), 0);
  const DB_FB_Control& record = mBlock.record();
  const FB_Geometry::Rows shown = rows(std::max(record.mInputs.size(), record.mOutputs.size()));
  const double most = body.width() - padding();
  mPainter.setPen(color(Role::SecondaryText));
  for (auto i = static_cast<size_t>(shown.mFirst); i < static_cast<size_t>(shown.mEnd); ++i) {
    const QString left = i < record.mInputs.size() ? record.mInputs[i].mShortName : QString();
    const QString right = i < record.mOutputs.size() ? record.mOutputs[i].mShortName : QString();
    double leftWidth = body.width();
    double rightWidth = body.width();
    if (!left.isEmpty() && !right.isEmpty()) {
      leftWidth = mTexts.width(left) + 1;
      rightWidth = mTexts.width(right) + 1;
      if (leftWidth + rightWidth > most) {
        const double half = most / 2;
        const double kept = std::max(half, most - rightWidth);
        leftWidth = std::min(leftWidth, kept);
        rightWidth = most - leftWidth;
      }
    }
    const double y = FB_Geometry::pin(record.mType, FB_Side::Input, static_cast<int>(i), 0, mGrid).y() - mGrid / 2;
    drawText({body.left(), y, leftWidth, mGrid}, Qt::AlignLeft | Qt::AlignVCenter, left);
    drawText({body.right() - rightWidth, y, rightWidth, mGrid}, Qt::AlignRight | Qt::AlignVCenter, right);
  }
}

void FB_Block_Painter::drawFrame(FB_Body body) const {
  const bool isSelected = mBlock.isSelected();
  if (body == FB_Body::None && !isSelected) {
    return;
  }
  QPen pen = framePen(isSelected);
  if (body == FB_Body::None && isOneRow()) {
    pen.setWidthF(std::min(cSelectedWidth, mGrid / 8)); // a row of a small page has no room for more
  }
  const double inset = pen.widthF() / 2;
  mPainter.setPen(pen);
  mPainter.setBrush(Qt::NoBrush);
  mPainter.drawRect(bodyRect(body).adjusted(inset, inset, -inset, -inset));
}

void FB_Block_Painter::drawBodyText(const QString& text) const {
  if (text.isEmpty()) {
    return;
  }
  const QRectF whole = mBlock.rect();
  mPainter.setPen(color(Role::Text));
  drawText(
      whole.adjusted(cMargin * mGrid + 2, isOneRow() ? 0 : FB_Geometry::cTitleBand * mGrid, -cMargin * mGrid - 2, 0),
      Qt::AlignCenter, text);
}

void FB_Block_Painter::drawText(const QRectF& rect, Qt::Alignment alignment, const QString& text,
                                Qt::TextElideMode mode) const {
  mTexts.draw(mPainter, rect, alignment, text, mode);
}
