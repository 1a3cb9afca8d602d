#include "ui/Address_Tree_View.h"

#include "db/Address_Tree_Model.h"
#include "db/Project_Session.h"
#include "ui/Address_Cell_Delegate.h"
#include "ui/Address_Value_Menu.h"
#include "ui/Drag_Label.h"
#include "ui/Theme.h"

#include <QDrag>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>

#include <algorithm>
#include <functional>
#include <iterator>

namespace {

using Kind = Address_Rows::Kind;

struct Flag_Row {
  int mColumn;
  const char* mText;
};

constexpr Flag_Row cFlags[] = {
    {Address_Rows::cReadAtStart, QT_TRANSLATE_NOOP("Address_Tree_View", "Lesen &Start")},
    {Address_Rows::cReadCyclic, QT_TRANSLATE_NOOP("Address_Tree_View", "Lesen &zyklisch")},
    {Address_Rows::cWrite, QT_TRANSLATE_NOOP("Address_Tree_View", "S&chreiben")},
    {Address_Rows::cActive, QT_TRANSLATE_NOOP("Address_Tree_View", "&Aktiv")},
};

} // namespace

Address_Tree_View::Address_Tree_View(Project_Session& session, Address_Tree_Model& model, QWidget* parent)
    : Project_Tree_View(session.state(), parent),
      mSession(session),
      mModel(model) {
  setAccessibleName(tr("Gruppenadressen"));
  setItemDelegate(new Address_Cell_Delegate(model, this));
  addCommands();
  setModel(&model);
  setRenameColumn(Address_Rows::cName);
  setSortingEnabled(true);
  sortByColumn(Address_Rows::cAddress, Qt::AscendingOrder);
  setDragDropMode(InternalMove);
  setDefaultDropAction(Qt::MoveAction);
  header()->setContextMenuPolicy(Qt::CustomContextMenu);
  connect(header(), &QWidget::customContextMenuRequested, this, &Address_Tree_View::onHeaderMenu);
  connect(this, &QAbstractItemView::activated, this, &Address_Tree_View::onActivated);
  mModel.setTargets([this](const QUuid& key) {
    const QList<QUuid> keys = editedKeys();
    return keys.contains(key) ? keys : QList<QUuid>{key};
  });
  connect(&model, &QAbstractItemModel::modelAboutToBeReset, this, &Address_Tree_View::onAboutToBeReset);
  connect(&model, &Address_Tree_Model::renumbered, this, &Address_Tree_View::showKey, Qt::QueuedConnection);
  connect(&model, &QAbstractItemModel::dataChanged, this, &Address_Tree_View::restoreOrder, Qt::QueuedConnection);
  connect(&session.values(), &Address_Values::changed, this, &Address_Tree_View::onValuesChanged);
  connect(&session, &Project_Session::opened, this, [this] { updateCommands(); });
  connect(&session, &Project_Session::closed, this, [this] { updateCommands(); });
  // Connected after the base class did, so that the tree is laid out anew already.
  connect(&model, &QAbstractItemModel::modelReset, this, &Address_Tree_View::onReset);
}

void Address_Tree_View::addCommands() {
  QAction* const rename = actions().constFirst();
  mAddSub = addCommand(tr("Neue &Adresse"), QKeySequence(Qt::Key_Insert), [this] { onAddAddress(); });
  mAddMiddle = addCommand(tr("Neue &Mittelgruppe"), {}, [this] { onAddMiddleGroup(); });
  mAddMain = addCommand(tr("Neue &Hauptgruppe"), {}, [this] { onAddMainGroup(); });
  mAddSub->setIcon(Theme::icon(QStringLiteral("sub_group")));
  mAddMiddle->setIcon(Theme::icon(QStringLiteral("middle_group")));
  mAddMain->setIcon(Theme::icon(QStringLiteral("main_group")));
  auto* const separator = new QAction(this);
  separator->setSeparator(true);
  insertActions(rename, {mAddSub, mAddMiddle, mAddMain, separator});
  mCut = addCommand(tr("Auss&chneiden"), QKeySequence::Cut, [this] { onCut(); });
  mPaste = addCommand(tr("&Einfügen"), QKeySequence::Paste, [this] { onPaste(); });
  mDelete = addCommand(tr("&Löschen"), QKeySequence::Delete, [this] { onDelete(); });
  mDelete->setIcon(Theme::icon(QStringLiteral("trash-white")));
  auto* const lastSeparator = new QAction(this);
  lastSeparator->setSeparator(true);
  addAction(lastSeparator);
  mSet = makeSetMenu()->menuAction();
  addAction(mSet);
  mValueMenu = new Address_Value_Menu(
      mSession, [this] { return selectedAddresses(); }, this);
  connect(mValueMenu, &Address_Value_Menu::info, this, &Address_Tree_View::info);
  connect(mValueMenu, &Address_Value_Menu::refused, this, &Address_Tree_View::refused);
  addAction(mValueMenu->menuAction());
}

QMenu* Address_Tree_View::makeSetMenu() {
  auto* const menu = new QMenu(tr("Für alle ausgewählten &setzen"), this);
  menu->addAction(tr("&Datenpunkttyp…"), this, [this] { onSetText(Address_Rows::cType); });
  menu->addAction(tr("&Beschreibung…"), this, [this] { onSetText(Address_Rows::cDescription); });
  menu->addSeparator();
  for (const Flag_Row& flag : cFlags) {
    QMenu* const values = menu->addMenu(tr(flag.mText));
    values->addAction(tr("&Ein"), this, [this, &flag] { onSetFlag(flag.mColumn, true); });
    values->addAction(tr("&Aus"), this, [this, &flag] { onSetFlag(flag.mColumn, false); });
  }
  return menu;
}

void Address_Tree_View::updateCommands() {
  Project_Tree_View::updateCommands();
  const bool mayEdit = mSession.isOpen() && !mSession.state().operatingMode();
  const QItemSelection selection = selectionModel() ? selectionModel()->selection() : QItemSelection();
  const bool isEditable = mayEdit && std::any_of(selection.cbegin(), selection.cend(), [this](const auto& range) {
                            return mModel.kindOf(range.topLeft()) <= Kind::Sub;
                          });
  for (QAction* const action : {mAddMain, mAddMiddle, mAddSub, mPaste}) {
    action->setEnabled(mayEdit);
  }
  for (QAction* const action : {mCut, mDelete, mSet}) {
    action->setEnabled(isEditable);
  }
}

/// An edit that moved its row has built the rows anew, and that has closed the editor already.
/// The usual picture, a whole row, would hide the pin that one aims at. What was moved is made anew by the model.
void Address_Tree_View::startDrag(Qt::DropActions actions) {
  QModelIndexList dragged = selectionModel()->selectedIndexes();
  dragged.removeIf([](const QModelIndex& index) { return !index.flags().testFlag(Qt::ItemIsDragEnabled); });
  QMimeData* const data = dragged.isEmpty() ? nullptr : mModel.mimeData(dragged);
  if (!data) {
    return;
  }
  const QModelIndexList rows = selectionModel()->selectedRows();
  const QModelIndex first = rows.value(0);
  const QString name = first.siblingAtColumn(Address_Rows::cName).data().toString();
  auto* const drag = new QDrag(this);
  drag->setMimeData(data);
  drag->setPixmap(Drag_Label::picture(*this, rows.size() == 1 ? first.data().toString() + u' ' + name
                                                              : tr("%1 Zeilen").arg(rows.size())));
  drag->setHotSpot(Drag_Label::hotSpot());
  drag->exec(actions & ~Qt::DropActions(Qt::CopyAction), Qt::MoveAction);
}

void Address_Tree_View::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  const bool isTab = hint == QAbstractItemDelegate::EditNextItem || hint == QAbstractItemDelegate::EditPreviousItem;
  if (!editor->isHidden()) {
    // The toolkit's own way would lead to the address of the next row.
    const QModelIndex cell = indexAt(editor->geometry().center());
    const QModelIndex next =
        isTab ? besideCell(cell, hint == QAbstractItemDelegate::EditNextItem ? 1 : -1) : QModelIndex();
    Project_Tree_View::closeEditor(editor, isTab ? QAbstractItemDelegate::NoHint : hint);
    if (next.isValid()) {
      selectionModel()->setCurrentIndex(next, QItemSelectionModel::NoUpdate);
      edit(next);
    }
  } else if (hint != QAbstractItemDelegate::NoHint) {
    setFocus(); // which the editor has lost to whatever came next
  }
  QMetaObject::invokeMethod(this, &Address_Tree_View::restoreOrder, Qt::QueuedConnection);
}

void Address_Tree_View::restoreOrder() {
  if (state() != EditingState) {
    mModel.restoreOrder();
  }
}

QModelIndex Address_Tree_View::besideCell(const QModelIndex& cell, int step) const {
  for (int at = header()->visualIndex(cell.column()) + step; at >= 0 && at < header()->count(); at += step) {
    const QModelIndex next = cell.siblingAtColumn(header()->logicalIndex(at));
    if (next.flags().testFlag(Qt::ItemIsEditable) && !isColumnHidden(next.column())) {
      return next;
    }
  }
  return {};
}

void Address_Tree_View::selectAll() {
  if (!mModel.isFiltered()) {
    Project_Tree_View::selectAll();
    return;
  }
  QItemSelection hits;
  addHits({}, hits);
  selectionModel()->select(hits, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

void Address_Tree_View::addHits(const QModelIndex& parent, QItemSelection& hits) const {
  const int count = mModel.rowCount(parent);
  for (int row = 0; row < count; ++row) {
    const QModelIndex index = mModel.index(row, 0, parent);
    if (mModel.kindOf(index) == Kind::Sub || mModel.kindOf(index) == Kind::Variable) {
      hits.append(QItemSelectionRange(index, mModel.index(count - 1, 0, parent)));
      return; // the others are of the same kind
    }
    if (mModel.rowCount(index) == 0) {
      hits.append(QItemSelectionRange(index));
    } else {
      addHits(index, hits);
    }
  }
}

/// In the order of the rows. Of thousands of rows there are few ranges.
std::vector<QItemSelectionRange> Address_Tree_View::selectedRanges() const {
  std::vector<std::pair<std::vector<int>, QItemSelectionRange>> placed;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    if (range.left() == 0) {
      placed.emplace_back(placeOf(range.topLeft()), range);
    }
  }
  std::sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  std::vector<QItemSelectionRange> ranges;
  ranges.reserve(placed.size());
  std::transform(placed.begin(), placed.end(), std::back_inserter(ranges),
                 [](const auto& pair) { return pair.second; });
  return ranges;
}

QList<QUuid> Address_Tree_View::selectedKeys() const {
  QList<QUuid> keys;
  for (const QItemSelectionRange& range : selectedRanges()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      if (const QUuid key = mModel.keyOf(mModel.index(row, 0, range.parent())); !key.isNull()) {
        keys.append(key);
      }
    }
  }
  return keys;
}

QList<QUuid> Address_Tree_View::editedKeys() const {
  const Address_Tree& tree = mSession.database().mAddresses;
  QList<QUuid> keys = selectionModel() ? selectedKeys() : QList<QUuid>();
  keys.removeIf([&tree](const QUuid& key) { return !tree.record(key); });
  return keys;
}

Group_Address Address_Tree_View::currentAddress() const {
  const Address_Tree& tree = mSession.database().mAddresses;
  const QUuid key = mModel.keyOf(currentIndex());
  const DB_Address_Sub_Group* const sub = tree.subGroup(key);
  const DB_Address_Middle_Group* const middle = tree.middleGroup(sub ? sub->mMiddleKey : key);
  const DB_Address_MainGroup* const main = tree.mainGroup(middle ? middle->mMainKey : key);
  return {main ? main->mNumber : -1, middle ? middle->mNumber : -1, sub ? sub->mNumber : -1};
}

Group_Address Address_Tree_View::placeForNew() const {
  const Group_Address at = currentAddress();
  if (at.main() >= 0) {
    return at;
  }
  const auto& mains = mSession.database().mAddresses.mainGroups();
  return {mains.isEmpty() ? 0 : mains.at(0).mNumber, -1, -1};
}

void Address_Tree_View::showKey(const QUuid& key) {
  const QModelIndex index = mModel.indexOf(key);
  if (index.isValid()) {
    selectOnly(index);
    scrollTo(index, EnsureVisible);
  }
}

/// The toolkit's own way looks at the keys that are held, and after Ctrl+V would leave the row unselected.
void Address_Tree_View::selectOnly(const QModelIndex& index) {
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

/// Neighbours become one range: thousands of single ones would take the toolkit seconds.
void Address_Tree_View::selectKeys(const QList<QUuid>& keys) {
  QItemSelection selection;
  QModelIndex first;
  QModelIndex last;
  const auto close = [&] {
    if (first.isValid()) {
      selection.append(QItemSelectionRange(first, last));
    }
  };
  for (const QUuid& key : keys) {
    const QModelIndex index = mModel.indexOf(key);
    if (!index.isValid()) {
      continue;
    }
    if (!last.isValid() || index.parent() != last.parent() || index.row() != last.row() + 1) {
      close();
      first = index;
    }
    last = index;
  }
  close();
  selectionModel()->select(selection, QItemSelectionModel::Select | QItemSelectionModel::Rows);
}

void Address_Tree_View::onActivated(const QModelIndex& index) {
  if (mModel.kindOf(index) == Kind::Use) {
    emit pageChosen(mModel.useOf(index).mPageGuid);
  }
}

void Address_Tree_View::onHeaderMenu(const QPoint& at) {
  QMenu menu(this);
  for (int column = Address_Rows::cName; column < Address_Rows::cColumnCount; ++column) {
    const QString title = mModel.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    QAction* const action = menu.addAction(title);
    action->setCheckable(true);
    action->setChecked(!isColumnHidden(column));
    connect(action, &QAction::toggled, this, [this, column](bool isOn) { setColumnHidden(column, !isOn); });
  }
  menu.exec(header()->mapToGlobal(at));
}

/// Only what is seen is told, however many came.
void Address_Tree_View::onValuesChanged(const QSet<QUuid>& keys) {
  if (!isVisible()) {
    return;
  }
  QModelIndexList seen;
  const int bottom = viewport()->height();
  for (QModelIndex index = indexAt({0, 0}); index.isValid() && visualRect(index).top() < bottom;
       index = indexBelow(index)) {
    seen.append(index);
  }
  mModel.tellValues(keys, seen);
}

QList<QUuid> Address_Tree_View::selectedAddresses() const {
  QList<QUuid> keys;
  QSet<QUuid> known; // an address may be selected itself and with its group
  const std::function<void(const QModelIndex&)> add = [&](const QModelIndex& index) {
    if (mModel.kindOf(index) == Kind::Sub) {
      const QUuid key = mModel.keyOf(index);
      if (!known.contains(key)) {
        known.insert(key);
        keys.append(key);
      }
    } else if (mModel.kindOf(index) < Kind::Sub) {
      for (int row = 0; row < mModel.rowCount(index); ++row) {
        add(mModel.index(row, 0, index));
      }
    }
  };
  for (const QItemSelectionRange& range : selectedRanges()) {
    for (int row = range.top(); row <= range.bottom(); ++row) {
      add(mModel.index(row, 0, range.parent()));
    }
  }
  return keys;
}

void Address_Tree_View::onAboutToBeReset() {
  const QUuid current = mModel.keyOf(currentIndex());
  if (!current.isNull()) {
    mCurrent = current;
  }
  mSelected = selectedKeys();
  if (mWasFiltered) {
    return;
  }
  mScroll = verticalScrollBar()->value();
  mExpanded.clear();
  for (int row = 0; row < mModel.rowCount(); ++row) {
    const QModelIndex top = mModel.index(row, 0);
    if (isExpanded(top)) {
      mExpanded.insert(mModel.keyOf(top));
    }
    for (int child = 0; child < mModel.rowCount(top); ++child) {
      const QModelIndex inner = mModel.index(child, 0, top);
      if (isExpanded(inner)) {
        mExpanded.insert(mModel.keyOf(inner));
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
      const QModelIndex index = key.isNull() ? mModel.variablesIndex() : mModel.indexOf(key);
      if (index.isValid()) {
        setExpanded(index, true);
      }
    }
  }
  if (const QModelIndex variables = mModel.variablesIndex(); variables.isValid()) {
    setFirstColumnSpanned(variables.row(), {}, true);
  }
  const QModelIndex current = mModel.indexOf(mCurrent);
  if (current.isValid()) {
    selectOnly(current);
  }
  if (mSelected.size() > 1) {
    selectKeys(mSelected);
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
