#include "fb/help/FB_Help_Hits.h"

#include "ui/Theme.h"

#include <QApplication>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {

constexpr int cPage = Qt::UserRole;
constexpr int cExcerpt = Qt::UserRole + 1;
constexpr int cPadding = 4;

/// The title, and below it, paler, the line of the text.
class Hit_Delegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    QStyleOptionViewItem cell = option;
    initStyleOption(&cell, index);
    const QString title = cell.text;
    cell.text.clear();
    const QStyle* const style = cell.widget ? cell.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &cell, painter, cell.widget);
    const bool isSelected = cell.state.testFlag(QStyle::State_Selected);
    const QRect place = cell.rect.adjusted(2 * cPadding, cPadding, -2 * cPadding, -cPadding);
    const int height = cell.fontMetrics.height();
    painter->save();
    painter->setFont(cell.font);
    const auto line = [&](int row, const QString& text, Theme::Role role) {
      painter->setPen(Theme::color(isSelected ? Theme::Role::AccentText : role));
      painter->drawText(QRect(place.left(), place.top() + row * height, place.width(), height),
                        Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                        cell.fontMetrics.elidedText(text, Qt::ElideRight, place.width()));
    };
    line(0, title, Theme::Role::Text);
    line(1, index.data(cExcerpt).toString(), Theme::Role::SecondaryText);
    painter->restore();
  }

  [[nodiscard]] QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& /*index*/) const override {
    return {0, 2 * option.fontMetrics.height() + 2 * cPadding};
  }
};

} // namespace

FB_Help_Hits::FB_Help_Hits(QWidget* parent) : QListWidget(parent) {
  setObjectName(QStringLiteral("fb:mHelpHits"));
  setAccessibleName(tr("Gefundene Seiten"));
  setItemDelegate(new Hit_Delegate(this));
  setUniformItemSizes(true);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::currentItemChanged, this, [this](const QListWidgetItem* item) {
    if (item) {
      emit pageChosen(item->data(cPage).toString());
    }
  });
}

void FB_Help_Hits::setHits(const QList<FB_Help_Search::Hit>& hits) {
  const QSignalBlocker blocker(this);
  clear();
  for (const FB_Help_Search::Hit& hit : hits) {
    auto* const item = new QListWidgetItem(hit.mTitle, this);
    item->setData(cPage, hit.mPage);
    item->setData(cExcerpt, hit.mExcerpt);
    item->setToolTip(hit.mExcerpt.toHtmlEscaped());
  }
}

void FB_Help_Hits::enter() {
  setFocus();
  if (!currentItem() && count() > 0) {
    setCurrentRow(0);
  }
}
