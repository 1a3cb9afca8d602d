#include "ui/Address_Tree_View.h"

#include "base/Decimal_Text.h"
#include "db/Address_Edits.h"
#include "db/Address_Table_Paste.h"
#include "db/Address_Tree_Model.h"
#include "db/Project_Session.h"
#include "ui/Address_Cell_Delegate.h"
#include "ui/Address_Field_Dialog.h"
#include "ui/Message_Box.h"
#include "ui/Theme.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>

#include <algorithm>

namespace {

using Kind = Address_Rows::Kind;
using Field = Address_Edits::Field;

constexpr int cMostFaults = 10;

struct Flag_Row {
  int mColumn;
  const char* mText;
};

constexpr Flag_Row cFlags[] = {
    {Address_Rows::cReadAtStart, QT_TRANSLATE_NOOP("Address_Tree_View", "Lesen beim &Start")},
    {Address_Rows::cReadCyclic, QT_TRANSLATE_NOOP("Address_Tree_View", "Lesen &zyklisch")},
    {Address_Rows::cWrite, QT_TRANSLATE_NOOP("Address_Tree_View", "S&chreiben")},
    {Address_Rows::cActive, QT_TRANSLATE_NOOP("Address_Tree_View", "&Aktiv")},
};

Field fieldOf(int column) {
  switch (column) {
  case Address_Rows::cDescription:
    return Field::Description;
  case Address_Rows::cType:
    return Field::Type;
  case Address_Rows::cReadAtStart:
    return Field::ReadAtStart;
  case Address_Rows::cReadCyclic:
    return Field::ReadCyclic;
  case Address_Rows::cWrite:
    return Field::Write;
  case Address_Rows::cActive:
    return Field::Active;
  default:
    return Field::Name;
  }
}

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
  const Group_Address at = currentAddress();
  const QItemSelection selection = selectionModel() ? selectionModel()->selection() : QItemSelection();
  const bool isEditable = mayEdit && std::any_of(selection.cbegin(), selection.cend(), [this](const auto& range) {
                            return mModel.kindOf(range.topLeft()) <= Kind::Sub;
                          });
  mAddMain->setEnabled(mayEdit);
  mAddMiddle->setEnabled(mayEdit && at.main() >= 0);
  mAddSub->setEnabled(mayEdit && at.middle() >= 0);
  mPaste->setEnabled(mayEdit);
  for (QAction* const action : {mCut, mDelete, mSet}) {
    action->setEnabled(isEditable);
  }
}

/// An edit that moved its row has built the rows anew, and that has closed the editor already.
void Address_Tree_View::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  if (!editor->isHidden()) {
    Project_Tree_View::closeEditor(editor, hint);
  }
}

// --- what is selected ---

QList<QUuid> Address_Tree_View::selectedKeys() const {
  const auto placeOf = [](QModelIndex index) {
    std::vector<int> place;
    for (; index.isValid(); index = index.parent()) {
      place.insert(place.begin(), index.row());
    }
    return place;
  };
  std::vector<std::pair<std::vector<int>, QUuid>> placed;
  for (const QModelIndex& index : selectionModel()->selectedRows()) {
    if (const QUuid key = mModel.keyOf(index); !key.isNull()) {
      placed.emplace_back(placeOf(index), key);
    }
  }
  std::sort(placed.begin(), placed.end(), [](const auto& a, const auto& b) { return a.first < b.first; });
  QList<QUuid> keys;
  keys.reserve(static_cast<qsizetype>(placed.size()));
  for (const auto& [place, key] : placed) {
    keys.append(key);
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

// --- commands ---

bool Address_Tree_View::tell(const Edit_Result& result) {
  if (!result) {
    emit mModel.refused(result.mError);
  }
  return static_cast<bool>(result);
}

void Address_Tree_View::tellAdded(const Edit_Result& result, const QUuid& key) {
  if (!tell(result)) {
    return;
  }
  emit added(key);
  showKey(key);
  edit(mModel.indexOf(key).siblingAtColumn(Address_Rows::cName));
}

void Address_Tree_View::onAddMainGroup() {
  QUuid key;
  const int main = Address_Edits::freeMain(mSession, std::max(0, currentAddress().main() + 1));
  tellAdded(main < 0 ? Edit_Result::refused(tr("Alle Hauptgruppen (0..31) sind vergeben."))
                     : Address_Edits::addMainGroup(mSession, main, {}, &key),
            key);
}

void Address_Tree_View::onAddMiddleGroup() {
  QUuid key;
  const Group_Address at = currentAddress();
  const int middle = Address_Edits::freeMiddle(mSession, at.main(), std::max(0, at.middle() + 1));
  tellAdded(middle < 0 ? Edit_Result::refused(tr("In der Hauptgruppe %1 sind alle Mittelgruppen (0..7) vergeben.")
                                                  .arg(Group_Address::mainGroupText(at.main())))
                       : Address_Edits::addMiddleGroup(mSession, at.main(), middle, {}, &key),
            key);
}

void Address_Tree_View::onAddAddress() {
  QUuid key;
  const Group_Address at = currentAddress();
  const int sub = Address_Edits::freeSub(mSession, at.main(), at.middle(), std::max(0, at.sub() + 1));
  tellAdded(sub < 0 ? Edit_Result::refused(tr("In der Mittelgruppe %1 sind alle Adressen (0..255) vergeben.")
                                               .arg(Group_Address::middleGroupText(at.main(), at.middle())))
                    : Address_Edits::add(mSession, {at.main(), at.middle(), sub}, {}, &key),
            key);
}

void Address_Tree_View::toClipboard(Address_Clipboard::Use use) {
  auto* const data = new QMimeData;
  data->setText(selectedText());
  data->setData(Address_Clipboard::mimeType(), Address_Clipboard::pack(mSession, editedKeys(), use));
  QGuiApplication::clipboard()->setMimeData(data);
}

void Address_Tree_View::onCopy() {
  toClipboard(Address_Clipboard::Use::Copy);
}

void Address_Tree_View::onCut() {
  toClipboard(Address_Clipboard::Use::Move);
  emit info(tr("Ausgeschnitten: beim Einfügen werden die Adressen verschoben, Verknüpfungen folgen."));
}

void Address_Tree_View::onPaste() {
  const QMimeData* const data = QGuiApplication::clipboard()->mimeData();
  const QUuid target = mModel.keyOf(currentIndex());
  Address_Clipboard::Result result;
  const bool isPacked = data && data->hasFormat(Address_Clipboard::mimeType());
  const Edit_Result edit =
      isPacked ? Address_Clipboard::paste(mSession, data->data(Address_Clipboard::mimeType()), target, result)
               : Address_Table_Paste::paste(mSession, data ? data->text() : QString(), target, result);
  if (!tell(edit)) {
    return;
  }
  if (!result.mKeys.isEmpty()) {
    emit added(result.mKeys.constFirst());
    showKey(result.mKeys.constFirst());
  }
  emit info(tr("Eingefügt: %1 neu, %2 geändert, %3 verschoben.")
                .arg(Decimal_Text::count(result.mAdded), Decimal_Text::count(result.mChanged),
                     Decimal_Text::count(result.mMoved)));
  if (!result.mFaults.isEmpty()) {
    QStringList lines = result.mFaults.first(qMin(result.mFaults.size(), qsizetype(cMostFaults)));
    if (result.mFaults.size() > cMostFaults) {
      lines.append(tr("… und %1 weitere.").arg(Decimal_Text::count(result.mFaults.size() - cMostFaults)));
    }
    Message_Box::showMessage(this, tr("Nicht eingefügt: %1.").arg(Decimal_Text::count(result.mFaults.size())) +
                                       QStringLiteral("\n\n") + lines.join(u'\n'));
  }
}

void Address_Tree_View::onDelete() {
  const QList<QUuid> keys = editedKeys();
  const Address_Edits::Deletion deletion = Address_Edits::whatRemoves(mSession, keys, mModel.usage());
  if (deletion.mUses > 0 &&
      !Message_Box::askYesNo(this,
                             tr("Zu löschende Adressen: %1. Auf sie zeigen Verknüpfungen: %2. Diese bleiben und "
                                "zeigen dann auf keine Adresse mehr.\n\nTrotzdem löschen?")
                                 .arg(Decimal_Text::count(deletion.mAddresses), Decimal_Text::count(deletion.mUses)))) {
    return;
  }
  QModelIndex next = currentIndex();
  const QItemSelectionModel* const selection = selectionModel();
  while (next.isValid() && selection->isSelected(next)) {
    next = indexBelow(next);
  }
  const QUuid nextKey = mModel.keyOf(next);
  if (tell(Address_Edits::remove(mSession, keys))) {
    showKey(nextKey);
    emit info(tr("Gelöschte Adressen: %1.").arg(Decimal_Text::count(deletion.mAddresses)));
  }
}

void Address_Tree_View::onSetText(int column) {
  Address_Field_Dialog dialog(fieldOf(column), this);
  const QString present = currentIndex().siblingAtColumn(column).data(Qt::EditRole).toString();
  dialog.setText(present);
  if (dialog.exec() == QDialog::Accepted && mSession.isOpen()) {
    tell(Address_Edits::set(mSession, editedKeys(), fieldOf(column), dialog.text()));
  }
}

void Address_Tree_View::onSetFlag(int column, bool isOn) {
  tell(Address_Edits::set(mSession, editedKeys(), fieldOf(column), isOn));
}

void Address_Tree_View::onActivated(const QModelIndex& index) {
  if (mModel.kindOf(index) == Kind::Use) {
    emit pageChosen(mModel.useOf(index).mPageGuid);
  }
}

void Address_Tree_View::onHeaderMenu(const QPoint& at) {
  QMenu menu(this);
  menu.addSection(tr("Spalten"));
  for (int column = Address_Rows::cName; column < Address_Rows::cColumnCount; ++column) {
    const QString title = mModel.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    QAction* const action = menu.addAction(title);
    action->setCheckable(true);
    action->setChecked(!isColumnHidden(column));
    connect(action, &QAction::toggled, this, [this, column](bool isOn) { setColumnHidden(column, !isOn); });
  }
  menu.exec(header()->mapToGlobal(at));
}

// --- a new building of the rows ---

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
