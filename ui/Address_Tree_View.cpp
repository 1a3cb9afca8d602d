#include "ui/Address_Tree_View.h"

#include "db/Address_Tree_Model.h"

#include <QScrollBar>

Address_Tree_View::Address_Tree_View(Address_Tree_Model& model, const Session_State& state, QWidget* parent)
    : Project_Tree_View(state, parent),
      mModel(model) {
  setAccessibleName(tr("Gruppenadressen"));
  setModel(&model);
  setRenameColumn(Address_Tree_Model::cName);
  connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &Address_Tree_View::onAboutToBeReset);
  // Connected after the base class did, so that the tree is laid out anew already.
  connect(&model, &QAbstractItemModel::modelReset, this, &Address_Tree_View::onReset);
}

void Address_Tree_View::onAboutToBeReset() {
  const QUuid current = mModel.keyOf(currentIndex());
  if (!current.isNull()) {
    mCurrent = current;
  }
  if (mWasFiltered) {
    return;
  }
  mScroll = verticalScrollBar()->value();
  mExpanded.clear();
  for (int row = 0; row < mModel.rowCount(); ++row) {
    const QModelIndex main = mModel.index(row, 0);
    if (isExpanded(main)) {
      mExpanded.insert(mModel.keyOf(main));
    }
    for (int child = 0; child < mModel.rowCount(main); ++child) {
      const QModelIndex middle = mModel.index(child, 0, main);
      if (isExpanded(middle)) {
        mExpanded.insert(mModel.keyOf(middle));
      }
    }
  }
}

void Address_Tree_View::onReset() {
  const bool isFiltered = mModel.isFiltered();
  if (isFiltered) {
    expandAll();
  } else {
    for (const QUuid& key : std::as_const(mExpanded)) {
      if (const QModelIndex index = mModel.indexOf(key); index.isValid()) {
        setExpanded(index, true);
      }
    }
  }
  const QModelIndex current = mModel.indexOf(mCurrent);
  if (current.isValid()) {
    setCurrentIndex(current);
  }
  if (!isFiltered) {
    executeDelayedItemsLayout();
    verticalScrollBar()->setValue(mScroll);
    if (mWasFiltered && current.isValid()) {
      scrollTo(current, PositionAtCenter);
    }
  }
  mWasFiltered = isFiltered;
}
