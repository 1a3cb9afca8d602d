#include "ui/Result_List.h"

#include "base/App_Settings.h"
#include "db/Address_Filter_Model.h"
#include "db/Model_Roles.h"
#include "ui/Empty_Hint.h"
#include "ui/Project_Tree_View.h"

#include <QAction>
#include <QHeaderView>
#include <QScrollBar>

#include <algorithm>

Result_List::Result_List(QAbstractItemModel& table, int addressColumn, const Session_State& state)
    : mModel(new Address_Filter_Model(table, addressColumn, this)),
      mTree(new Project_Tree_View(state)),
      mHint(new Empty_Hint) {
  mTree->setRenameColumn(-1);
  mTree->setRootIsDecorated(false);
  mTree->setAllColumnsShowFocus(true);
  mTree->setModel(mModel);
  mTree->header()->setSectionsMovable(true);
  mTree->header()->setFirstSectionMovable(true);
  // A third click leads back to the order of the project.
  mTree->header()->setSortIndicatorClearable(true);
  mTree->header()->setSortIndicator(-1, Qt::AscendingOrder);
  mTree->setSortingEnabled(true);
  addWidget(mTree);
  addWidget(mHint);

  connect(mTree, &QAbstractItemView::activated, this, [this](const QModelIndex& index) { emit chosen(rowOf(index)); });
  connect(mTree->selectionModel(), &QItemSelectionModel::selectionChanged, this, &Result_List::selectionChanged);
  connect(mModel, &QAbstractItemModel::modelAboutToBeReset, this, &Result_List::onAboutToBeReset);
  connect(mModel, &QAbstractItemModel::modelReset, this, &Result_List::onReset);
  updatePage();
}

void Result_List::setNames(const QString& accessibleName, const QString& settingsName) {
  mTree->setAccessibleName(accessibleName);
  mTree->header()->setObjectName(settingsName);
}

void Result_List::setFilter(const QString& text) {
  mModel->setFilter(text);
  updatePage();
  if (mTree->currentIndex().isValid()) {
    mTree->scrollTo(mTree->currentIndex());
  }
}

void Result_List::setHint(const QString& text) {
  mHint->setText(text);
}

void Result_List::addCommand(const QString& text, const std::function<void(int row)>& onRow) {
  auto* const action = new QAction(text, mTree);
  connect(action, &QAction::triggered, this, [this, onRow] {
    if (mTree->currentIndex().isValid()) {
      onRow(rowOf(mTree->currentIndex()));
    }
  });
  mTree->insertAction(mTree->actions().value(0), action);
}

QWidget& Result_List::view() {
  return *mTree;
}

QHeaderView& Result_List::header() {
  return *mTree->header();
}

void Result_List::setDelegate(QAbstractItemDelegate* delegate) {
  delegate->setParent(mTree);
  mTree->setItemDelegate(delegate);
}

void Result_List::updateTexts() {
  mTree->viewport()->update();
}

bool Result_List::isFiltered() const {
  return mModel->isFiltered();
}

qsizetype Result_List::shownCount() const {
  return mModel->rowCount();
}

int Result_List::rowOf(const QModelIndex& index) const {
  return mModel->mapToSource(index).row();
}

std::vector<int> Result_List::selectedRows() const {
  std::vector<int> rows;
  for (const QModelIndex& index : mTree->selectionModel()->selectedRows()) {
    rows.push_back(rowOf(index));
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

void Result_List::enter() {
  if (!mTree->currentIndex().isValid()) {
    mTree->setCurrentIndex(mModel->index(0, 0));
  }
  mTree->setFocus(Qt::ShortcutFocusReason);
}

bool Result_List::showRow(int row) {
  const QModelIndex shown = mModel->mapFromSource(mModel->sourceModel()->index(row, 0));
  if (shown.isValid()) {
    mTree->setCurrentIndex(shown);
    mTree->scrollTo(shown);
  }
  return shown.isValid();
}

int Result_List::current() const {
  return mTree->currentIndex().row();
}

void Result_List::setCurrent(int shownRow) {
  mTree->setCurrentIndex(mModel->index(std::min(shownRow, mModel->rowCount() - 1), 0));
}

void Result_List::choose(int shownRow) {
  setCurrent(shownRow);
  emit chosen(rowOf(mTree->currentIndex()));
}

void Result_List::chooseNext() {
  if (const int count = mModel->rowCount(); count > 0) {
    choose((current() + 1) % count);
  }
}

void Result_List::choosePrevious() {
  if (const int count = mModel->rowCount(); count > 0) {
    choose((std::max(current(), 0) + count - 1) % count);
  }
}

void Result_List::updatePage() {
  setCurrentIndex(mModel->rowCount() > 0 ? 0 : 1);
}

void Result_List::onAboutToBeReset() {
  mCurrent = mTree->currentIndex().data(Model_Roles::cIdentity);
  mIsCurrentSelected = mTree->selectionModel()->hasSelection();
  mScroll = mTree->verticalScrollBar()->value();
}

void Result_List::onReset() {
  updatePage();
  if (!mCurrent.isValid()) {
    return;
  }
  for (int row = 0; row < mModel->rowCount(); ++row) {
    const QModelIndex index = mModel->index(row, 0);
    if (index.data(Model_Roles::cIdentity) == mCurrent) {
      // A row is current without being selected until somebody selects it.
      mTree->selectionModel()->setCurrentIndex(index, mIsCurrentSelected ? QItemSelectionModel::ClearAndSelect |
                                                                               QItemSelectionModel::Rows
                                                                         : QItemSelectionModel::NoUpdate);
      break;
    }
  }
  mTree->doItemsLayout();
  mTree->verticalScrollBar()->setValue(mScroll);
}

void Result_List::saveState(App_Settings& settings) const {
  settings.setViewState(mTree->header()->objectName(), mTree->header()->saveState());
}

void Result_List::restoreState(const App_Settings& settings) {
  mTree->header()->restoreState(settings.viewState(mTree->header()->objectName()));
}
