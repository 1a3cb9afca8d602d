#include "ui/Page_Tree_View.h"

#include "base/Session_State.h"
#include "db/Page_Tree_Model.h"
#include "ui/Theme.h"

Page_Tree_View::Page_Tree_View(const Session_State& state, Page_Tree_Model& model, QWidget* parent)
    : Project_Tree_View(state, parent),
      mState(state),
      mModel(model) {
  setAccessibleName(tr("Seiten"));
  setHeaderHidden(true);
  setSelectionMode(SingleSelection);
  addPageCommands();
  setModel(&model);
  setEditTriggers(NoEditTriggers); // a double click opens; F2 renames
  setExpandsOnDoubleClick(false);
  setDragDropMode(InternalMove);
  setDefaultDropAction(Qt::MoveAction);
  connect(this, &QAbstractItemView::activated, this, &Page_Tree_View::open);
  // A move makes the tree anew, which may not happen in the middle of its own dropping.
  connect(&model, &Page_Tree_Model::moveRequested, this, &Page_Tree_View::moveRequested, Qt::QueuedConnection);
}

void Page_Tree_View::addPageCommands() {
  const QList<QAction*> common = actions();
  mOpen = addCommand(tr("Ö&ffnen"), {}, [this] { open(currentIndex()); });
  removeAction(mOpen);
  insertAction(common.value(0), mOpen);
  const auto page = [this] { return mModel.guidOf(logicPage()); };
  const auto separate = [this] {
    auto* const separator = new QAction(this);
    separator->setSeparator(true);
    addAction(separator);
  };
  separate();
  mNew = addCommand(tr("&Neue Programm Seite"), QKeySequence(Qt::Key_Insert),
                    [this, page] { emit newPageRequested(page()); });
  mNew->setIcon(Theme::icon(QStringLiteral("plus_white")));
  mRemove = addCommand(tr("&Löschen"), QKeySequence::Delete, [this, page] { emit removeRequested(page()); });
  mRemove->setIcon(Theme::icon(QStringLiteral("trash-white")));
  mDuplicate = addCommand(tr("&Duplizieren"), QKeySequence(Qt::CTRL | Qt::Key_D),
                          [this, page] { emit duplicateRequested(page()); });
  separate();
  mUp = addCommand(tr("Nach &oben"), QKeySequence(Qt::ALT | Qt::Key_Up), [this] { moveBy(-1); });
  mDown = addCommand(tr("Nach un&ten"), QKeySequence(Qt::ALT | Qt::Key_Down), [this] { moveBy(1); });
  separate();
  mProperties = addCommand(tr("&Eigenschaften…"), QKeySequence(Qt::ALT | Qt::Key_Return),
                           [this, page] { emit propertiesRequested(page()); });
  mProperties->setIcon(Theme::icon(QStringLiteral("gear_white")));
}

QModelIndex Page_Tree_View::logicPage() const {
  const QModelIndex current = currentIndex();
  const QModelIndex page = mModel.blockOf(current).isNull() ? current : current.parent();
  return mModel.isLogicPage(page) ? page : QModelIndex();
}

/// A page is removed or moved only by a command on its own row: with a block selected that would surprise.
void Page_Tree_View::updateCommands() {
  Project_Tree_View::updateCommands();
  const QModelIndex current = currentIndex();
  const bool mayEdit = !mState.operatingMode();
  const bool isOnPage = mModel.isLogicPage(current);
  const int last = mModel.rowCount(current.parent()) - 1;
  mOpen->setEnabled(!mModel.pageOf(current).isNull());
  mNew->setEnabled(mayEdit);
  mDuplicate->setEnabled(mayEdit && isOnPage);
  mRemove->setEnabled(mayEdit && isOnPage);
  mUp->setEnabled(mayEdit && isOnPage && current.row() > 0);
  mDown->setEnabled(mayEdit && isOnPage && current.row() < last);
  mProperties->setEnabled(mayEdit && logicPage().isValid());
}

void Page_Tree_View::open(const QModelIndex& index) {
  const QUuid page = mModel.pageOf(index);
  if (page.isNull()) {
    setExpanded(index, !isExpanded(index));
  } else if (const QUuid block = mModel.blockOf(index); !block.isNull()) {
    emit childChosen(page, block);
  } else {
    emit pageChosen(page);
  }
}

void Page_Tree_View::moveBy(int step) {
  const QModelIndex page = logicPage();
  emit moveRequested(mModel.guidOf(page), page.row() + step);
}
