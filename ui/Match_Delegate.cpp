#include "ui/Match_Delegate.h"

#include "base/Text_Search.h"
#include "db/Model_Roles.h"
#include "ui/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

#include <algorithm>

namespace {

using Matches = QList<Text_Search::Match>;

QList<QTextLayout::FormatRange> formatsOf(const Matches& matches, qsizetype length) {
  QTextCharFormat format;
  format.setBackground(Theme::color(Theme::Role::Match));
  format.setForeground(Theme::color(Theme::Role::Text));
  QList<QTextLayout::FormatRange> ranges;
  for (const Text_Search::Match& match : matches) {
    const qsizetype end = std::min(match.mStart + match.mLength, length);
    if (end > match.mStart) {
      ranges.append({static_cast<int>(match.mStart), static_cast<int>(end - match.mStart), format});
    }
  }
  return ranges;
}

} // namespace

void Match_Delegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
  const auto matches = index.data(Model_Roles::cMatches).value<Matches>();
  if (matches.isEmpty()) {
    Named_Icon_Delegate::paint(painter, option, index);
    return;
  }
  QStyleOptionViewItem cell = option;
  initStyleOption(&cell, index);
  const QStyle* const style = cell.widget ? cell.widget->style() : QApplication::style();
  QRect place = style->subElementRect(QStyle::SE_ItemViewItemText, &cell, cell.widget);
  const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &cell, cell.widget) + 1;
  place.adjust(margin, 0, -margin, 0);
  const QString text = cell.fontMetrics.elidedText(cell.text, cell.textElideMode, place.width());
  // A dot that stands for left out text belongs to no match.
  const bool isCut = text != cell.text;
  const qsizetype length = isCut ? text.size() - 1 : text.size();
  cell.text.clear();
  style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);

  QTextLayout layout(text, cell.font);
  layout.setFormats(formatsOf(matches, length));
  layout.beginLayout();
  QTextLine line = layout.createLine();
  layout.endLayout();
  const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
  const QPalette::ColorGroup group = cell.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  painter->save();
  painter->setClipRect(place);
  painter->setPen(cell.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
  line.setPosition({0, 0});
  layout.draw(painter, QPointF(place.left(), place.top() + (place.height() - line.height()) / 2));
  painter->restore();
}
