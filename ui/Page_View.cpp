#include "ui/Page_View.h"

#include "db/Page_Tree_Model.h"
#include "db/Project_Session.h"
#include "ui/Empty_Hint.h"
#include "ui/Page_Details_View.h"
#include "ui/Project_Tree_View.h"

#include <QHeaderView>
#include <QSplitter>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {
constexpr int cTreeStretch = 1;
constexpr int cDetailsStretch = 3;
constexpr int cAnyHeight = 1000; // the splitter keeps the ratio only
} // namespace

Page_View::Page_View(Project_Session& session, QWidget* parent)
    : QWidget(parent),
      mSession(session),
      mModel(new Page_Tree_Model(session, this)),
      mSplitter(new QSplitter(Qt::Vertical)),
      mTreeOrHint(new QStackedWidget),
      mTree(new Project_Tree_View(session.state())),
      mDetails(new Page_Details_View(*mModel, session.state())) {
  mTree->setAccessibleName(tr("Seiten"));
  mTree->setHeaderHidden(true);
  mTree->setSelectionMode(QAbstractItemView::SingleSelection);
  mTree->setModel(mModel);
  mTree->setEditTriggers(QAbstractItemView::NoEditTriggers); // a double click opens; F2 renames
  makeOpenCommand();
  auto* const hint = new Empty_Hint;
  hint->setText(tr("Es ist kein Projekt geöffnet. Hier stehen die Seiten des Projekts."));
  mTreeOrHint->addWidget(hint);
  mTreeOrHint->addWidget(mTree);

  mSplitter->setObjectName(QStringLiteral("ui:mSplitterRight"));
  mSplitter->addWidget(mTreeOrHint);
  mSplitter->addWidget(mDetails);
  mSplitter->setStretchFactor(0, cTreeStretch);
  mSplitter->setStretchFactor(1, cDetailsStretch);
  mSplitter->setSizes({cTreeStretch * cAnyHeight, cDetailsStretch * cAnyHeight});
  mSplitter->setChildrenCollapsible(false);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(mSplitter);

  // A box in the middle of committing an editor would take its focus and commit it again.
  connect(mTree, &Project_Tree_View::refused, this, &Page_View::refused);
  connect(mModel, &Page_Tree_Model::refused, this, &Page_View::refused, Qt::QueuedConnection);
  connect(mModel, &QAbstractItemModel::modelAboutToBeReset, this, &Page_View::onAboutToBeReset);
  connect(mModel, &QAbstractItemModel::modelReset, this, &Page_View::onReset);
  connect(mTree->selectionModel(), &QItemSelectionModel::currentChanged, this, [this](const QModelIndex& current) {
    mCurrent = mModel->guidOf(current);
    mDetails->setPage(mCurrent);
  });
  // Blocks that come and go are told by no list, but every edit changes the history.
  connect(&session.history(), &History::changed, mDetails, &Page_Details_View::refresh);
  connect(&session, &Project_Session::opened, this, &Page_View::updateState);
  connect(&session, &Project_Session::closed, this, &Page_View::updateState);
  onReset();
  updateState();
}

void Page_View::makeOpenCommand() {
  auto* const open = new QAction(tr("Ö&ffnen"), mTree);
  open->setEnabled(false);
  mTree->insertAction(mTree->actions().value(0), open);
  const auto choose = [this](const QModelIndex& index) {
    if (const QUuid page = mModel->guidOf(index); !page.isNull()) {
      emit pageChosen(page);
    }
  };
  connect(open, &QAction::triggered, this, [this, choose] { choose(mTree->currentIndex()); });
  connect(mTree, &QAbstractItemView::activated, this, choose);
  connect(mTree->selectionModel(), &QItemSelectionModel::currentChanged, open,
          [this, open](const QModelIndex& current) { open->setEnabled(!mModel->guidOf(current).isNull()); });
  connect(mModel, &QAbstractItemModel::modelReset, open,
          [this, open] { open->setEnabled(!mModel->guidOf(mTree->currentIndex()).isNull()); });
}

void Page_View::enter() {
  if (!mTree->currentIndex().isValid()) {
    mTree->setCurrentIndex(mModel->index(0, 0));
  }
  mTree->setFocus(Qt::ShortcutFocusReason);
}

void Page_View::showPage(const QUuid& guid) {
  const QModelIndex page = mModel->indexOf(guid);
  if (page.isValid()) {
    mTree->setExpanded(page.parent(), true);
    mTree->setCurrentIndex(page);
    mTree->scrollTo(page);
  }
}

void Page_View::onAboutToBeReset() {
  for (int branch = 0; branch < Page_Tree_Model::cBranchCount; ++branch) {
    mIsCollapsed[static_cast<size_t>(branch)] = !mTree->isExpanded(mModel->index(branch, 0));
  }
}

void Page_View::onReset() {
  for (int branch = 0; branch < Page_Tree_Model::cBranchCount; ++branch) {
    mTree->setExpanded(mModel->index(branch, 0), !mIsCollapsed[static_cast<size_t>(branch)]);
  }
  const QModelIndex current = mModel->indexOf(mCurrent);
  if (current.isValid()) {
    mTree->setCurrentIndex(current);
  }
  mDetails->setPage(mCurrent);
}

void Page_View::updateState() {
  mTreeOrHint->setCurrentIndex(mSession.isOpen() ? 1 : 0);
  mDetails->setHint(mSession.isOpen() ? tr("Eine Seite wählen; hier steht, was sie ausmacht.") : QString());
  mDetails->refresh();
}
