#include "ui/Page_View.h"

#include "db/Page_Tree_Model.h"
#include "db/Project_Session.h"
#include "fb/model/FB_Execution_Order.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Types.h"
#include "ui/Empty_Hint.h"
#include "ui/Page_Details_View.h"
#include "ui/Page_Tree_View.h"

#include <QHeaderView>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {
constexpr int cTreeStretch = 1;
constexpr int cDetailsStretch = 3;
constexpr int cAnyHeight = 1000; // the splitter keeps the ratio only
} // namespace

Page_View::Page_View(Project_Session& session, QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mModel(new Page_Tree_Model(session, {&FB_Geometry::title, &FB_Types::name, &FB_Execution_Order::ofBlock}, this)),
      mSplitter(new QSplitter(Qt::Vertical)),
      mTreeOrHint(new QStackedWidget),
      mPanels(new QTabWidget),
      mTree(new Page_Tree_View(session.state(), *mModel)),
      mDetails(new Page_Details_View(*mModel, session.state())) {
  auto* const hint = new Empty_Hint;
  hint->setText(tr("Es ist kein Projekt geöffnet. Hier stehen die Seiten des Projekts."));
  mTreeOrHint->addWidget(hint);
  mTreeOrHint->addWidget(mTree);

  mSplitter->setObjectName(QStringLiteral("ui:mSplitterRight"));
  mSplitter->addWidget(mTreeOrHint);
  mPanels->setDocumentMode(true);
  mPanels->tabBar()->setAccessibleName(tr("Bausteine und Eigenschaften"));
  mPanels->tabBar()->setAcceptDrops(true);
  mPanels->tabBar()->setChangeCurrentOnDrag(true);
  mPanels->addTab(mDetails, tr("Seite"));
  mPanels->tabBar()->setAutoHide(true);
  mSplitter->addWidget(mPanels);
  mSplitter->setStretchFactor(0, cTreeStretch);
  mSplitter->setStretchFactor(1, cDetailsStretch);
  mSplitter->setSizes({cTreeStretch * cAnyHeight, cDetailsStretch * cAnyHeight});
  mSplitter->setChildrenCollapsible(false);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mSplitter);

  connect(mTree, &Page_Tree_View::refused, this, &Page_View::refused);
  connect(mTree, &Page_Tree_View::pageChosen, this, &Page_View::pageChosen);
  connect(mTree, &Page_Tree_View::childChosen, this, &Page_View::childChosen);
  connect(mTree, &Page_Tree_View::newPageRequested, this, &Page_View::newPageRequested);
  connect(mTree, &Page_Tree_View::duplicateRequested, this, &Page_View::duplicateRequested);
  connect(mTree, &Page_Tree_View::removeRequested, this, &Page_View::removeRequested);
  connect(mTree, &Page_Tree_View::propertiesRequested, this, &Page_View::propertiesRequested);
  connect(mTree, &Page_Tree_View::moveRequested, this, &Page_View::moveRequested);
  // A box in the middle of committing an editor would take its focus and commit it again.
  connect(mModel, &Page_Tree_Model::refused, this, &Page_View::refused, Qt::QueuedConnection);
  connect(mModel, &QAbstractItemModel::modelAboutToBeReset, this, &Page_View::onAboutToBeReset);
  connect(mModel, &QAbstractItemModel::modelReset, this, &Page_View::onReset);
  connect(mTree->selectionModel(), &QItemSelectionModel::currentChanged, this, &Page_View::onCurrentChanged);
  mShowWanted.setSingleShot(true);
  mShowWanted.setInterval(0);
  connect(&mShowWanted, &QTimer::timeout, this, &Page_View::onShowBlock);
  // Blocks that come and go are told by no list, but every edit changes the history.
  connect(&session.history(), &History::changed, mDetails, &Page_Details_View::refresh);
  connect(&session, &Project_Session::opened, this, &Page_View::updateState);
  connect(&session, &Project_Session::closed, this, &Page_View::updateState);
  onReset();
  updateState();
}

void Page_View::onCurrentChanged(const QModelIndex& current) {
  mCurrent = mModel->pageOf(current);
  mCurrentBlock = mModel->blockOf(current);
  mDetails->setPage(mCurrent);
}

void Page_View::addPanel(QWidget* panel, const QString& title) {
  mPanels->insertTab(mPanels->count() - 1, panel, title);
  mPanels->setCurrentIndex(0);
}

void Page_View::showPanel(QWidget* panel) {
  mPanels->setCurrentWidget(panel);
}

void Page_View::enter() {
  if (!mTree->currentIndex().isValid()) {
    mTree->setCurrentIndex(mModel->index(0, 0));
  }
  mTree->setFocus(Qt::ShortcutFocusReason);
}

void Page_View::showPage(const QUuid& guid) {
  const QModelIndex page = mModel->indexOf(guid);
  const bool isBlockOfIt = guid == mCurrent && !mCurrentBlock.isNull();
  if (page.isValid() && !isBlockOfIt) {
    mTree->setExpanded(page.parent(), true);
    mTree->setCurrentIndex(page);
    mTree->scrollTo(page);
  }
}

void Page_View::showBlock(const QUuid& page, const QUuid& block) {
  Q_UNUSED(page)
  mWanted = block;
  mShowWanted.start();
}

void Page_View::leaveBlock() {
  mShowWanted.stop();
  if (!mCurrentBlock.isNull()) {
    mTree->setCurrentIndex(mModel->indexOf(mCurrent));
  }
}

void Page_View::onShowBlock() {
  mModel->followBlocks();
  const QModelIndex block = mModel->indexOfBlock(mWanted);
  if (block.isValid()) {
    mTree->setCurrentIndex(block);
    mTree->scrollTo(block);
  }
}

void Page_View::onAboutToBeReset() {
  for (int branch = 0; branch < Page_Tree_Model::cBranchCount; ++branch) {
    mIsCollapsed[static_cast<size_t>(branch)] = !mTree->isExpanded(mModel->index(branch, 0));
  }
  mRow = mModel->indexOf(mCurrent).row();
  mExpanded.clear();
  const QModelIndex logic = mModel->index(Page_Tree_Model::cLogicBranch, 0);
  for (int row = 0; row < mModel->rowCount(logic); ++row) {
    if (const QModelIndex page = mModel->index(row, 0, logic); mTree->isExpanded(page)) {
      mExpanded.insert(mModel->guidOf(page));
    }
  }
}

/// The page that came to stand where the deleted one was, or the last one.
QModelIndex Page_View::besideDeleted() const {
  const QModelIndex logic = mModel->index(Page_Tree_Model::cLogicBranch, 0);
  return mModel->index(qMin(mRow, mModel->rowCount(logic) - 1), 0, logic);
}

void Page_View::onReset() {
  for (int branch = 0; branch < Page_Tree_Model::cBranchCount; ++branch) {
    mTree->setExpanded(mModel->index(branch, 0), !mIsCollapsed[static_cast<size_t>(branch)]);
  }
  for (const QUuid& page : std::as_const(mExpanded)) {
    mTree->setExpanded(mModel->indexOf(page), true);
  }
  const QModelIndex block = mModel->indexOfBlock(mCurrentBlock);
  QModelIndex current = block.isValid() ? block : mModel->indexOf(mCurrent);
  if (!current.isValid() && mSession.isOpen() && mRow >= 0) {
    current = besideDeleted();
  }
  if (current.isValid()) {
    mTree->setCurrentIndex(current);
  }
  mDetails->setPage(mCurrent);
}

void Page_View::updateState() {
  if (!mSession.isOpen()) {
    mCurrent = {};
    mCurrentBlock = {};
  }
  mTreeOrHint->setCurrentIndex(mSession.isOpen() ? 1 : 0);
  mDetails->setHint(mSession.isOpen() ? tr("Eine Seite wählen; hier steht, was sie ausmacht.") : QString());
  mDetails->refresh();
}
