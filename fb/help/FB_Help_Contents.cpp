#include "fb/help/FB_Help_Contents.h"

#include "fb/model/FB_Help.h"
#include "fb/model/FB_Types.h"
#include "ui/Theme.h"

namespace {
constexpr int cPage = Qt::UserRole;
constexpr int cIndentation = 12;
} // namespace

FB_Help_Contents::FB_Help_Contents(QWidget* parent) : QTreeWidget(parent) {
  setObjectName(QStringLiteral("fb:mHelpContents"));
  setAccessibleName(tr("Inhalt"));
  setHeaderHidden(true);
  setUniformRowHeights(true);
  setIndentation(cIndentation);
  setEditTriggers(NoEditTriggers);
  for (const FB_Help::Topic& topic : FB_Help::topics()) {
    addPage(*invisibleRootItem(), QString::fromLatin1(topic.mPage));
  }
  for (const FB_Types::Category& category : FB_Types::categories()) {
    const QString title = *category.mTitle ? FB_Types::text(category.mTitle) : tr("Aus älteren Projekten");
    auto* const item = new QTreeWidgetItem(this, {title});
    for (const FB_Type& type : category.mTypes) {
      addPage(*item, FB_Types::helpFileName(type.mId));
    }
  }
  connect(this, &QTreeWidget::currentItemChanged, this, [this](const QTreeWidgetItem* item) {
    if (const QString page = item ? item->data(0, cPage).toString() : QString(); !page.isEmpty()) {
      emit pageChosen(page);
    }
  });
}

void FB_Help_Contents::addPage(QTreeWidgetItem& parent, const QString& page) {
  auto* const item = new QTreeWidgetItem(&parent, {FB_Help::title(page)});
  item->setIcon(0, Theme::icon(FB_Help::typeOf(page) ? QStringLiteral("block_white") : QStringLiteral("info_white")));
  item->setData(0, cPage, page);
  item->setToolTip(0, FB_Help::title(page));
  item->setFlags(item->flags() | Qt::ItemNeverHasChildren);
  mItems.insert(page, item);
}

void FB_Help_Contents::showPage(const QString& page) {
  QTreeWidgetItem* const item = mItems.value(page);
  if (item && item != currentItem()) {
    const QSignalBlocker blocker(this);
    setCurrentItem(item);
  }
  if (item) {
    scrollToItem(item);
  }
}
