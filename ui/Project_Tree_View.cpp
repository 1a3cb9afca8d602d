#include "ui/Project_Tree_View.h"

#include "base/Session_State.h"
#include "ui/Named_Icon_Delegate.h"

#include <QClipboard>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QKeySequence>
#include <QRegularExpression>

#include <map>
#include <utility>

namespace {

QString cellText(const QModelIndex& index) {
  if (const QVariant check = index.data(Qt::CheckStateRole); check.isValid()) {
    return check.toInt() == Qt::Checked ? QCoreApplication::translate("Project_Tree_View", "ja")
                                        : QCoreApplication::translate("Project_Tree_View", "nein");
  }
  static const QRegularExpression breaks(QStringLiteral("[\\t\\r\\n]+"));
  return index.data().toString().replace(breaks, QStringLiteral(" "));
}

} // namespace

Project_Tree_View::Project_Tree_View(const Session_State& state, QWidget* parent) : QTreeView(parent), mState(state) {
  setItemDelegate(new Named_Icon_Delegate(this));
  setAlternatingRowColors(true);
  setUniformRowHeights(true);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(DoubleClicked);
  setHorizontalScrollMode(ScrollPerPixel);
  setContextMenuPolicy(Qt::ActionsContextMenu);
  mRename = addCommand(tr("&Umbenennen"), QKeySequence(Qt::Key_F2), [this] { onRename(); });
  mCopy = addCommand(tr("&Kopieren"), QKeySequence::Copy, [this] { onCopy(); });
  connect(&state, &Session_State::operatingModeChanged, this, [this] { updateCommands(); });
}

QAction* Project_Tree_View::addCommand(const QString& text, const QKeySequence& keys) {
  auto* const action = new QAction(text, this);
  action->setShortcut(keys);
  action->setShortcutContext(Qt::WidgetShortcut);
  addAction(action);
  return action;
}

void Project_Tree_View::setModel(QAbstractItemModel* model) {
  QTreeView::setModel(model);
  // After the base class has heard of it, so that no command belongs to a row that is gone.
  connect(model, &QAbstractItemModel::modelReset, this, [this] { updateCommands(); });
  connect(selectionModel(), &QItemSelectionModel::selectionChanged, this, [this] { updateCommands(); });
}

QAction* Project_Tree_View::commandOf(const QKeyEvent& event, bool isEnabled) const {
  const QKeySequence keys(event.keyCombination());
  for (QAction* const action : actions()) {
    if (action->isEnabled() == isEnabled && action->shortcut() == keys) {
      return action;
    }
  }
  return nullptr;
}

/// While the tree has the focus its commands come before equal keys of the window, which would otherwise leave both
/// without effect.
bool Project_Tree_View::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && commandOf(static_cast<QKeyEvent&>(*event))) {
    event->accept();
    return true;
  }
  return QTreeView::event(event);
}

void Project_Tree_View::keyPressEvent(QKeyEvent* event) {
  if (QAction* const command = commandOf(*event)) {
    command->trigger();
  } else if (commandOf(*event, false)) {
    if (mState.operatingMode()) {
      emit refused(Session_State::operatingModeRefusal());
    }
  } else {
    QTreeView::keyPressEvent(event);
  }
}

void Project_Tree_View::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTreeView::currentChanged(current, previous);
  updateCommands();
}

void Project_Tree_View::setRenameColumn(int column) {
  mRenameColumn = column;
  mRename->setVisible(column >= 0);
  updateCommands();
}

QModelIndex Project_Tree_View::renameIndex() const {
  return currentIndex().siblingAtColumn(mRenameColumn);
}

void Project_Tree_View::updateCommands() {
  mRename->setEnabled(renameIndex().flags().testFlag(Qt::ItemIsEditable));
  mCopy->setEnabled(selectionModel() && selectionModel()->hasSelection());
}

void Project_Tree_View::onRename() {
  rename(renameIndex());
}

void Project_Tree_View::rename(const QModelIndex& index) {
  const QModelIndex cell = index.siblingAtColumn(mRenameColumn);
  setColumnHidden(mRenameColumn, false);
  scrollTo(cell);
  edit(cell);
}

/// An editor hands its text over when it loses the focus.
void Project_Tree_View::finishEditing() {
  if (state() == EditingState) {
    setFocus();
  }
}

std::vector<int> Project_Tree_View::placeOf(QModelIndex index) {
  std::vector<int> rows;
  for (; index.isValid(); index = index.parent()) {
    rows.insert(rows.begin(), index.row());
  }
  return rows;
}

QString Project_Tree_View::selectedText() const {
  // Selected rows come in the order of selecting.
  std::map<std::vector<int>, QModelIndex> rows;
  for (const QModelIndex& row : selectionModel()->selectedRows()) {
    rows.emplace(placeOf(row), row);
  }
  const QList<int> columns = shownColumns();
  QStringList lines;
  for (const auto& [place, row] : std::as_const(rows)) {
    QStringList cells;
    for (const int column : columns) {
      cells.append(cellText(row.siblingAtColumn(column)));
    }
    lines.append(cells.join(QLatin1Char('\t')));
  }
  return lines.join(QLatin1Char('\n'));
}

QString Project_Tree_View::titleText() const {
  QStringList titles;
  for (const int column : shownColumns()) {
    titles.append(model()->headerData(column, Qt::Horizontal).toString());
  }
  return titles.join(QLatin1Char('\t'));
}

QList<int> Project_Tree_View::shownColumns() const {
  QList<int> columns;
  for (int i = 0; i < header()->count(); ++i) {
    if (const int column = header()->logicalIndex(i); !isColumnHidden(column)) {
      columns.append(column);
    }
  }
  return columns;
}

void Project_Tree_View::onCopy() {
  QGuiApplication::clipboard()->setText(selectedText());
}
