#include "fb/FB_Dev_New_Control.h"

#include "base/App_Settings.h"
#include "fb/FB_Catalogue_Tip.h"
#include "fb/FB_Catalogue_Tree.h"
#include "fb/model/FB_Catalogue_Search.h"
#include "fb/model/FB_Types.h"
#include "ui/Empty_Hint.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidgetItemIterator>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 4;

using Matches = bool (FB_Catalogue_Search::*)(const QString&) const;

/// Shows what matches with all that is below it, and what holds something that matches; answers whether it is shown.
bool filter(QTreeWidgetItem& item, const FB_Catalogue_Search& search, Matches matches, bool isBelowMatch = false) {
  const bool isMatch = isBelowMatch || (search.*matches)(item.text(0));
  bool isShown = isMatch;
  for (int i = 0; i < item.childCount(); ++i) {
    const bool isChildShown = filter(*item.child(i), search, matches, isMatch);
    isShown = isShown || isChildShown;
  }
  item.setHidden(!isShown);
  return isShown;
}

bool filter(QTreeWidget& tree, const FB_Catalogue_Search& search, Matches matches) {
  bool isShown = false;
  for (int i = 0; i < tree.topLevelItemCount(); ++i) {
    isShown = filter(*tree.topLevelItem(i), search, matches) || isShown;
  }
  return isShown;
}

} // namespace

FB_Dev_New_Control::FB_Dev_New_Control(const App_Settings& settings, QWidget* parent)
    : QWidget(parent),
      mSettings(settings),
      mField(new QLineEdit),
      mSearch(new QToolButton),
      mTreeOrHint(new QStackedWidget),
      mTree(new FB_Catalogue_Tree),
      mHint(new Empty_Hint) {
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(makeSearchRow());
  layout->addWidget(mTreeOrHint);

  mTree->setObjectName(QStringLiteral("ui:mCatalogue"));
  mTree->setAccessibleName(tr("Bausteine"));
  mTree->setHeaderLabel(tr("Baustein"));
  mHint->setStep(tr("Suche &leeren"));
  mTreeOrHint->addWidget(mTree);
  mTreeOrHint->addWidget(mHint);
  fill();

  connect(mSearch, &QAbstractButton::clicked, this, &FB_Dev_New_Control::onSearchStart);
  connect(mField, &QLineEdit::returnPressed, this, &FB_Dev_New_Control::onSearchStart);
  connect(mField, &QLineEdit::textChanged, this, &FB_Dev_New_Control::onSearchStart);
  connect(mHint, &Empty_Hint::stepRequested, this, [this] {
    mField->clear();
    mField->setFocus();
  });
  connect(mTree, &FB_Catalogue_Tree::typeActivated, this, &FB_Dev_New_Control::insertRequested);
  connect(mTree, &FB_Catalogue_Tree::searchWanted, this, &FB_Dev_New_Control::onTyped);
  connect(&settings, &App_Settings::changed, this, &FB_Dev_New_Control::onSettingChanged);
}

QWidget* FB_Dev_New_Control::makeSearchRow() {
  mField->setObjectName(QStringLiteral("ui:mSearchText"));
  mField->setAccessibleName(tr("Baustein suchen"));
  mField->setPlaceholderText(tr("Baustein suchen"));
  mField->setToolTip(tr("Name oder Kategorie eines Bausteins, auch nur ein Teil davon"));
  mField->addAction(Theme::icon(QStringLiteral("search-white")), QLineEdit::LeadingPosition);
  mField->setClearButtonEnabled(true);
  mField->installEventFilter(this);
  mSearch->setObjectName(QStringLiteral("ui:mSearch"));
  mSearch->setIcon(Theme::icon(QStringLiteral("search-white")));
  mSearch->setAccessibleName(tr("Suchen"));
  mSearch->setToolTip(tr("Suchen"));

  auto* const row = new QWidget;
  auto* const layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mField);
  layout->addWidget(mSearch);
  return row;
}

void FB_Dev_New_Control::fill() {
  mTree->clear();
  for (const FB_Types::Category& category : FB_Types::categories()) {
    if (*category.mTitle == '\0' || (category.mIsHs && !mSettings.isOn(Setting::ShowHsBlocks))) {
      continue;
    }
    auto* const item = new QTreeWidgetItem(mTree, {FB_Types::text(category.mTitle)}, FB_Catalogue_Tree::cCategory);
    item->setFlags(item->flags() & ~Qt::ItemIsDragEnabled);
    for (const FB_Type& type : category.mTypes) {
      addEntry(*item, type);
    }
  }
  onSearchStart();
}

void FB_Dev_New_Control::addEntry(QTreeWidgetItem& category, const FB_Type& type) {
  auto* const item = new QTreeWidgetItem(&category, {FB_Types::name(type.mId)}, type.mId);
  item->setIcon(0, Theme::icon(QStringLiteral("plus_white")));
  item->setToolTip(0, FB_Catalogue_Tip::of(type));
  item->setFlags(item->flags() | Qt::ItemNeverHasChildren);
}

void FB_Dev_New_Control::onSettingChanged(Setting setting) {
  if (setting == Setting::ShowHsBlocks) {
    fill();
  }
}

void FB_Dev_New_Control::onSearchStart() {
  const FB_Catalogue_Search search(mField->text());
  mTree->clearSelection();
  const bool isFound =
      filter(*mTree, search, &FB_Catalogue_Search::isIn) || filter(*mTree, search, &FB_Catalogue_Search::areWordsIn);
  if (search.isEmpty()) {
    mTree->collapseAll();
  } else {
    mTree->expandAll();
  }
  mHint->setText(tr("Kein Baustein und keine Kategorie enthält \"%1\".").arg(search.text()));
  mTreeOrHint->setCurrentIndex(isFound ? 0 : 1);
}

void FB_Dev_New_Control::enter() {
  mField->setFocus(Qt::ShortcutFocusReason);
  mField->selectAll();
}

std::optional<int> FB_Dev_New_Control::currentType() const {
  return mTree->currentType();
}

void FB_Dev_New_Control::onTyped(const QString& typed) {
  mField->setFocus();
  mField->setText(typed);
}

/// Onto the entry that is current, or the first one that the search has found.
void FB_Dev_New_Control::enterTree() {
  QTreeWidgetItem* const current = mTree->currentItem();
  if (!current || !mTree->visualItemRect(current).isValid()) {
    const bool isSearching = !mField->text().trimmed().isEmpty();
    QTreeWidgetItemIterator item(mTree, QTreeWidgetItemIterator::NotHidden);
    while (isSearching && *item && (*item)->type() == FB_Catalogue_Tree::cCategory) {
      ++item;
    }
    mTree->setCurrentItem(*item);
  } else {
    mTree->setCurrentItem(current);
  }
  mTree->setFocus(Qt::TabFocusReason);
}

bool FB_Dev_New_Control::eventFilter(QObject* object, QEvent* event) {
  const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
  if (object != mField || !isKey) {
    return QWidget::eventFilter(object, event);
  }
  const int key = static_cast<QKeyEvent*>(event)->key();
  const bool isClearing = key == Qt::Key_Escape && !mField->text().isEmpty();
  if (!isClearing && key != Qt::Key_Down) {
    return QWidget::eventFilter(object, event);
  }
  if (event->type() == QEvent::KeyPress) {
    if (isClearing) {
      mField->clear();
    } else if (mTreeOrHint->currentIndex() == 0) {
      enterTree();
    }
  }
  event->accept();
  return true;
}
