#include "fb/FB_Pin_Labels.h"

#include "fb/FB_Base.h"
#include "fb/FB_Block_Host.h"
#include "fb/FB_Texts.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pin_Text.h"
#include "ui/Theme.h"

#include <QCoreApplication>
#include <QPainter>

#include <algorithm>

namespace {

using Theme::Role;

// In grid units.
constexpr double cGap = 0.25; ///< between the parts
constexpr double cValueWidth = 5;
constexpr double cLeastValueWidth = 1.5;
constexpr double cValueHeight = 0.8;
constexpr double cNameWidth = 10;
constexpr double cVariableWidth = 8; ///< less: a wire tells already what it is connected to
constexpr double cLinkWidth = 8;
constexpr double cLeastRoom = 3;
constexpr double cLinkShare = 0.45;  ///< of the room, at most
constexpr double cNameBottom = 0.06; ///< above the wire
constexpr double cNameHeight = 0.9;
constexpr double cMost = 4 * cGap + cValueWidth + cNameWidth + cLinkWidth;

constexpr int cGroundAlpha = 190; ///< of 255, below a name

const std::vector<DB_FB_Pin>& pinsOf(const FB_Base& block, FB_Side side) {
  return side == FB_Side::Input ? block.record().mInputs : block.record().mOutputs;
}

bool isAnyBound(const std::vector<DB_FB_Pin>& pins) {
  return std::any_of(pins.cbegin(), pins.cend(),
                     [](const DB_FB_Pin& pin) { return pin.mBinding.mKind != DB_Address_Binding::Kind::None; });
}

Role roleOf(const DB_Address_Binding& binding) {
  return binding.mKind == DB_Address_Binding::Kind::Internal ? Role::WireVariable : Role::WireAddress;
}

} // namespace

FB_Pin_Labels::FB_Pin_Labels(const FB_Base& block, const FB_Block_Host& host)
    : mBlock(block),
      mHost(host),
      mGrid(block.grid()),
      mTexts(block.texts()) {}

QRectF FB_Pin_Labels::rect(const FB_Base& block) {
  QRectF rect = block.geometry();
  const double grid = block.grid();
  if (isAnyBound(block.record().mInputs)) {
    rect.adjust(-cMost * grid, -grid / 2, 0, 0);
  }
  if (isAnyBound(block.record().mOutputs)) {
    rect.adjust(0, -grid / 2, cMost * grid, 0);
  }
  return rect;
}

QString FB_Pin_Labels::valueText(const FB_Live_Value& live) {
  const QString value = live.mText.simplified();
  return value.isEmpty() ? QStringLiteral("–") : value;
}

double FB_Pin_Labels::valueColumn(FB_Side side) const {
  double widest = 0;
  for (const DB_FB_Pin& pin : pinsOf(mBlock, side)) {
    if (mHost.isShowingValues() && pin.mBinding.mKind != DB_Address_Binding::Kind::None) {
      const double width = mTexts.width(valueText(mHost.valueOf(pin.mBinding))) + 2 * cGap * mGrid;
      widest = std::max(widest, std::clamp(width, cLeastValueWidth * mGrid, cValueWidth * mGrid));
    }
  }
  return widest;
}

FB_Pin_Labels::Row FB_Pin_Labels::rowOf(FB_Side side, int index, double column) const {
  const DB_Address_Binding& binding = pinsOf(mBlock, side)[index].mBinding;
  const QPointF pin = mBlock.pinPoint(side, index);
  const FB_Pin_Ref ref{mBlock.guid(), side, index};
  const double room = std::max(mHost.labelRoom(ref), cLeastRoom * mGrid);
  double from = cGap * mGrid; // distance from the pin
  const auto place = [&](const QString& text, double width, double top, double height) {
    const double left = side == FB_Side::Input ? pin.x() - from - width : pin.x() + from;
    from += width + cGap * mGrid;
    return Label{text, {left, pin.y() + top * mGrid, width, height * mGrid}};
  };
  constexpr double cNameTop = -cNameBottom - cNameHeight;
  const auto placeAbove = [&](const QString& text, double most) {
    return place(text, std::clamp(most, 1.0, mTexts.width(text) + 1), cNameTop, cNameHeight);
  };
  Row row;
  if (column > 0) {
    // All as wide as the widest: the name of the row below would stand on a narrower one.
    const FB_Live_Value live = mHost.valueOf(binding);
    row.mValue = place(valueText(live), column, -cValueHeight / 2, cValueHeight);
    row.mIsStale = live.mIsStale;
  }
  const bool isVariable = binding.mKind == DB_Address_Binding::Kind::Internal;
  const QString pages = mHost.linkedPages(ref);
  const QString link = pages.isEmpty() ? QString() : QCoreApplication::translate("FB_Pin_Labels", "->%1").arg(pages);
  const double most = room - from - cGap * mGrid;
  const double forLink =
      link.isEmpty() ? 0 : std::min({mTexts.width(link) + 1, cLinkWidth * mGrid, cLinkShare * most}) + cGap * mGrid;
  row.mName = placeAbove(FB_Pin_Text::label(binding),
                         std::min((isVariable ? cVariableWidth : cNameWidth) * mGrid, most - forLink));
  if (!link.isEmpty()) {
    row.mLink = placeAbove(link, std::min(cLinkWidth * mGrid, room - from - cGap * mGrid));
  }
  return row;
}

template <class On_Row>
void FB_Pin_Labels::visit(double top, double bottom, On_Row&& onRow) const {
  const double edge = mBlock.record().mY * mHost.zoom();
  for (const FB_Side side : {FB_Side::Input, FB_Side::Output}) {
    const std::vector<DB_FB_Pin>& pins = pinsOf(mBlock, side);
    const double column = valueColumn(side);
    const FB_Geometry::Rows shown = FB_Geometry::rowsBetween(top - edge, bottom - edge, pins.size(), mGrid);
    for (int i = shown.mFirst; i < shown.mEnd; ++i) {
      if (pins[i].mBinding.mKind != DB_Address_Binding::Kind::None &&
          onRow(FB_Pin_Ref{mBlock.guid(), side, i}, pins[i].mBinding, rowOf(side, i, column))) {
        return;
      }
    }
  }
}

void FB_Pin_Labels::paint(QPainter& painter) const {
  painter.setFont(mTexts.font());
  painter.setRenderHint(QPainter::Antialiasing);
  const double padding = cGap * mGrid;
  QColor ground = Theme::color(Role::Canvas);
  ground.setAlpha(cGroundAlpha);
  const QRectF part = painter.hasClipping() ? painter.clipBoundingRect() : rect(mBlock);
  visit(part.top(), part.bottom(), [&](const FB_Pin_Ref& pin, const DB_Address_Binding& binding, const Row& row) {
    const Qt::Alignment alignment = (pin.mSide == FB_Side::Input ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter;
    if (!row.mValue.mRect.isNull()) {
      painter.setPen(QPen(Theme::color(Role::Border), 1, row.mIsStale ? Qt::DashLine : Qt::SolidLine));
      painter.setBrush(Theme::color(Role::Input));
      painter.drawRect(row.mValue.mRect);
      painter.setPen(Theme::color(row.mIsStale ? Role::SecondaryText : Role::Text));
      mTexts.draw(painter, row.mValue.mRect.adjusted(padding, 0, -padding, 0), Qt::AlignCenter, row.mValue.mText);
    }
    painter.fillRect(row.mName.mRect, ground); // wires cross it
    painter.setPen(Theme::color(roleOf(binding)));
    mTexts.draw(painter, row.mName.mRect, alignment, row.mName.mText, Qt::ElideMiddle);
    if (!row.mLink.mRect.isNull()) {
      painter.setPen(Theme::color(Role::Link));
      mTexts.draw(painter, row.mLink.mRect, alignment, row.mLink.mText);
    }
    return false;
  });
}

std::optional<FB_Pin_Ref> FB_Pin_Labels::linkAt(const QPointF& point) const {
  std::optional<FB_Pin_Ref> found;
  visit(point.y(), point.y(), [&](const FB_Pin_Ref& pin, const DB_Address_Binding&, const Row& row) {
    if (row.mLink.mRect.contains(point)) {
      found = pin;
    }
    return found.has_value();
  });
  return found;
}
