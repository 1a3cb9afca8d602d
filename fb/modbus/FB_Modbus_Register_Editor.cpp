#include "fb/modbus/FB_Modbus_Register_Editor.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "db/Project_Session.h"
#include "fb/modbus/FB_Modbus_Delegate.h"
#include "fb/modbus/FB_Modbus_Model.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Modbus_Edits.h"
#include "fb/model/FB_Modbus_Table.h"
#include "fb/model/FB_Types.h"
#include "ui/Empty_Hint.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"
#include "ui/Undo_Step.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTableView>
#include <QToolBar>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>

namespace {

constexpr int cGap = 8;
constexpr int cMessageLines = 3;
constexpr int cShownFaults = 3;
constexpr QSize cSize(1180, 560);
constexpr int cFilterWidth = 240;
/// Of the columns, in their order.
constexpr int cWidths[] = {50, 150, 180, 70, 140, 120, 60, 70, 70, 100, 130, 120};
const QString cGeometryName = QStringLiteral("fb:FB_Modbus_Register_Editor");
const QString cHeaderName = QStringLiteral("fb:FB_Modbus_Register_Editor::mHeader");

QList<int> range(int first, qsizetype count) {
  QList<int> rows(count);
  std::iota(rows.begin(), rows.end(), first);
  return rows;
}

} // namespace

FB_Modbus_Register_Editor::FB_Modbus_Register_Editor(Project_Session& session, App_Settings& settings,
                                                     const QUuid& block, QWidget* parent)
    : FB_Block_Editor(session, settings, block, parent),
      mModel(new FB_Modbus_Model(session, block, this)),
      mFilterModel(new QSortFilterProxyModel(this)),
      mFilter(new Filter_Edit(0)),
      mTable(new QTableView),
      mHint(new Empty_Hint),
      mPages(new QStackedWidget),
      mMessage(new QLabel),
      mCount(new QLabel) {
  makeTable();
  makeBody();
  makeCommands();
  resize(cSize);
  restoreGeometry(settings.viewState(cGeometryName));
  mTable->horizontalHeader()->restoreState(settings.viewState(cHeaderName));

  const auto onFilter = [this](const QString& text) {
    mFilterModel->setFilterFixedString(text.trimmed());
    update();
  };
  connect(mFilter, &Filter_Edit::filterChanged, this, onFilter);
  connect(mFilter, &Filter_Edit::listWanted, mTable, qOverload<>(&QWidget::setFocus));
  connect(mHint, &Empty_Hint::stepRequested, this, &FB_Modbus_Register_Editor::onAdd);
  connect(mModel, &FB_Modbus_Model::refused, this, [this](const QString& reason) { tell(reason, true); });
  connect(mTable->selectionModel(), &QItemSelectionModel::selectionChanged, this, &FB_Modbus_Register_Editor::update);
  connect(mTable->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this] { tell(mModel->faultNear(mFilterModel->mapToSource(mTable->currentIndex())), true); });
  connect(&session.state(), &Session_State::operatingModeChanged, this, &FB_Modbus_Register_Editor::update);
  follow();
  select({0});
  mTable->setFocus();
}

FB_Modbus_Register_Editor::~FB_Modbus_Register_Editor() {
  settings().setViewState(cGeometryName, saveGeometry());
  settings().setViewState(cHeaderName, mTable->horizontalHeader()->saveState());
}

void FB_Modbus_Register_Editor::makeTable() {
  mFilterModel->setSourceModel(mModel);
  mFilterModel->setFilterKeyColumn(-1);
  mFilterModel->setFilterCaseSensitivity(Qt::CaseInsensitive);
  mTable->setModel(mFilterModel);
  mTable->setItemDelegate(new FB_Modbus_Delegate(mTable));
  mTable->setAccessibleName(tr("Register"));
  mTable->setAlternatingRowColors(true);
  mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
  mTable->setWordWrap(false);
  mTable->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
  mTable->horizontalHeader()->setHighlightSections(false);
  mTable->horizontalHeader()->setSectionsMovable(true);
  mTable->verticalHeader()->setDefaultSectionSize(std::max(24, fontMetrics().height() + cGap));
  for (int column = 0; column < FB_Modbus_Fields::cCount; ++column) {
    mTable->setColumnWidth(column, cWidths[column]);
  }
  mTable->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void FB_Modbus_Register_Editor::makeBody() {
  mMessage->setWordWrap(true);
  mMessage->setTextFormat(Qt::PlainText);
  mMessage->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  mMessage->setMinimumHeight(cMessageLines * fontMetrics().lineSpacing());
  mHint->setText(tr("Der Baustein hat noch keine Register.\nJedes gelesene Register wird ein Ausgang, jedes "
                    "geschriebene ein Eingang. Eine Registerliste aus einer Tabelle lässt sich mit Strg+V einfügen."));
  mHint->setStep(tr("&Register hinzufügen"));
  mPages->addWidget(mTable);
  mPages->addWidget(mHint);
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);
  auto* const body = new QWidget;
  auto* const layout = new QVBoxLayout(body);
  layout->setContentsMargins(cGap, cGap, cGap, cGap);
  layout->setSpacing(cGap);
  layout->addWidget(mPages, 1);
  layout->addWidget(mMessage);
  layout->addWidget(mCount);
  setCentralWidget(body);
}

QAction* FB_Modbus_Register_Editor::addCommand(QToolBar* bar, const QString& text, const QString& icon,
                                               const QKeySequence& key,
                                               void (FB_Modbus_Register_Editor::*onCommand)()) {
  auto* const action = new QAction(icon.isEmpty() ? QIcon() : Theme::icon(icon), text, this);
  action->setShortcut(key);
  const QString keyText = key.toString(QKeySequence::NativeText);
  action->setToolTip(QStringLiteral("%1 (%2)").arg(QString(text).remove(u'&'), keyText));
  connect(action, &QAction::triggered, this, onCommand);
  addAction(action);
  if (bar) {
    bar->addAction(action);
    mTable->addAction(action);
  }
  return action;
}

void FB_Modbus_Register_Editor::makeCommands() {
  using Self = FB_Modbus_Register_Editor;
  QToolBar* const bar = addToolBar(tr("Register"));
  bar->setObjectName(QStringLiteral("toolbar"));
  bar->setMovable(false);
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  bar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  mAdd = addCommand(bar, tr("&Hinzufügen"), QStringLiteral("plus_white"), Qt::Key_Insert, &Self::onAdd);
  QAction* const duplicate =
      addCommand(bar, tr("&Duplizieren"), QStringLiteral("duplicate_white"), Qt::CTRL | Qt::Key_D, &Self::onDuplicate);
  QAction* const remove =
      addCommand(bar, tr("&Löschen"), QStringLiteral("trash-white"), Qt::Key_Delete, &Self::onRemove);
  mMoves = {addCommand(bar, tr("Nach &oben"), {}, Qt::ALT | Qt::Key_Up, &Self::onUp),
            addCommand(bar, tr("Nach &unten"), {}, Qt::ALT | Qt::Key_Down, &Self::onDown)};
  bar->addSeparator();
  mCopy = addCommand(bar, tr("&Kopieren"), QStringLiteral("copy-white"), QKeySequence::Copy, &Self::onCopy);
  mPaste = addCommand(bar, tr("&Einfügen"), QStringLiteral("paste_white"), QKeySequence::Paste, &Self::onPaste);
  mOfSelection = {duplicate, remove};
  addCommand(nullptr, tr("Rückgängig"), {}, QKeySequence::Undo, &Self::onUndo);
  addCommand(nullptr, tr("Wiederholen"), {}, QKeySequence::Redo, &Self::onRedo);

  auto* const space = new QWidget;
  space->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
  bar->addWidget(space);
  mFilter->setMaximumWidth(cFilterWidth);
  mFilter->setAccessibleName(tr("Register suchen"));
  bar->addWidget(mFilter);
  connect(new QShortcut(QKeySequence::Find, this), &QShortcut::activated, mFilter, qOverload<>(&QWidget::setFocus));
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { emit helpRequested(FB_Types::helpFileName(FB_Modbus_Words::cMaster)); });
}

QList<int> FB_Modbus_Register_Editor::selected() const {
  QList<int> rows;
  for (const QModelIndex& index : mTable->selectionModel()->selectedRows()) {
    rows.append(mFilterModel->mapToSource(index).row());
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

void FB_Modbus_Register_Editor::select(const QList<int>& rows) {
  QItemSelection selection;
  QModelIndex first;
  const int column = std::max(0, mTable->currentIndex().column());
  for (const int row : rows) {
    const QModelIndex index = mFilterModel->mapFromSource(mModel->index(row, column));
    if (index.isValid()) {
      selection.select(index, index);
      first = first.isValid() ? first : index;
    }
  }
  if (first.isValid()) {
    mTable->selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
    mTable->selectionModel()->select(selection, QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
    mTable->scrollTo(first);
  }
}

void FB_Modbus_Register_Editor::show(const Edit_Result& result, const QList<int>& rows) {
  if (result) {
    mModel->refresh();
    select(rows);
    tell({}, false);
  } else {
    tell(result.mError, true);
  }
  update();
}

void FB_Modbus_Register_Editor::tell(const QString& text, bool isError) {
  mMessage->setText(text);
  Theme::setTextRole(*mMessage, isError ? Theme::Role::ErrorText : Theme::Role::Text);
}

void FB_Modbus_Register_Editor::update() {
  const bool isReadOnly = session().state().operatingMode();
  mModel->setReadOnly(isReadOnly);
  const QList<int> rows = selected();
  const bool isFiltered = !mFilter->text().trimmed().isEmpty();
  const int count = mModel->rowCount();
  mPages->setCurrentIndex(count == 0 ? 1 : 0);
  mAdd->setEnabled(!isReadOnly);
  mPaste->setEnabled(!isReadOnly);
  mCopy->setEnabled(!rows.isEmpty());
  mHint->setStepEnabled(!isReadOnly, isReadOnly ? Session_State::operatingModeRefusal() : QString());
  for (QAction* const action : mOfSelection) {
    action->setEnabled(!isReadOnly && !rows.isEmpty());
  }
  for (QAction* const action : mMoves) {
    action->setEnabled(!isReadOnly && !rows.isEmpty() && !isFiltered);
  }
  QStringList texts{count == 1 ? tr("1 Register") : tr("%1 Register").arg(Decimal_Text::count(count))};
  if (isFiltered) {
    texts.append(tr("%1 gezeigt").arg(Decimal_Text::count(mFilterModel->rowCount())));
  }
  if (rows.size() > 1) {
    texts.append(tr("%1 ausgewählt").arg(Decimal_Text::count(rows.size())));
  }
  if (const int faulty = mModel->faultyCount(); faulty > 0) {
    texts.append(tr("%1 mit Fehlern").arg(Decimal_Text::count(faulty)));
  }
  mCount->setText(texts.join(QStringLiteral(", ")));
}

void FB_Modbus_Register_Editor::follow() {
  if (const DB_FB_Control* const block = record()) {
    setWindowTitle(tr("%1 - Modbus Register").arg(FB_Geometry::title(*block).simplified()));
    const QList<int> rows = selected();
    mModel->refresh();
    if (selected().isEmpty()) {
      select(rows);
    }
    update();
  }
}

bool FB_Modbus_Register_Editor::finish() {
  mTable->setFocus(); // what is being typed in a cell is handed over
  return true;
}

/// Like the register before it, at the address that follows.
void FB_Modbus_Register_Editor::onAdd() {
  mFilter->clear();
  mFilter->apply();
  const QList<int> rows = selected();
  const int before = rows.isEmpty() ? mModel->rowCount() : rows.last() + 1;
  DB_Modbus_Register item;
  item.mName = tr("Register %1").arg(mModel->rowCount() + 1);
  if (before > 0) {
    const DB_Modbus_Register& last = mModel->registers()[static_cast<size_t>(before) - 1];
    const qint64 next = qint64(last.mAddress) + qint64(last.mWordCount) * last.mCount;
    item.mFunctionCode = FB_Modbus_Words::function(last.mFunctionCode) ? last.mFunctionCode : item.mFunctionCode;
    item.mDataType = last.mDataType;
    item.mWordCount = last.mWordCount;
    item.mSigned = last.mSigned;
    item.mAddress = static_cast<int>(std::clamp<qint64>(next, 0, 65535));
  }
  show(FB_Modbus_Edits::insertRegisters(session(), block(), before, {item}), {before});
  mTable->setFocus();
  mTable->setCurrentIndex(
      mFilterModel->mapFromSource(mModel->index(before, static_cast<int>(FB_Modbus_Fields::Field::Name))));
}

void FB_Modbus_Register_Editor::onDuplicate() {
  const QList<int> rows = selected();
  show(FB_Modbus_Edits::duplicate(session(), block(), rows), range(rows.isEmpty() ? 0 : rows.last() + 1, rows.size()));
}

void FB_Modbus_Register_Editor::onRemove() {
  const QList<int> rows = selected();
  const int next = rows.isEmpty() ? 0 : rows.first();
  const Edit_Result result = FB_Modbus_Edits::removeRegisters(session(), block(), rows);
  show(result, {std::max(0, std::min(next, mModel->rowCount() - 1 - static_cast<int>(rows.size())))});
}

void FB_Modbus_Register_Editor::onUp() {
  QList<int> rows = selected();
  const Edit_Result result = FB_Modbus_Edits::move(session(), block(), rows, -1);
  for (qsizetype i = 0; i < rows.size(); ++i) {
    rows[i] -= rows[i] > i ? 1 : 0;
  }
  show(result, rows);
}

void FB_Modbus_Register_Editor::onDown() {
  QList<int> rows = selected();
  const Edit_Result result = FB_Modbus_Edits::move(session(), block(), rows, 1);
  for (qsizetype i = 0; i < rows.size(); ++i) {
    rows[i] += rows[i] < mModel->rowCount() - (rows.size() - i) ? 1 : 0;
  }
  show(result, rows);
}

void FB_Modbus_Register_Editor::onCopy() {
  std::vector<DB_Modbus_Register> registers;
  for (const int row : selected()) {
    registers.push_back(mModel->registers()[static_cast<size_t>(row)]);
  }
  if (!registers.empty()) {
    QGuiApplication::clipboard()->setText(FB_Modbus_Table::write(registers));
  }
}

void FB_Modbus_Register_Editor::onPaste() {
  const FB_Modbus_Table::Result read = FB_Modbus_Table::read(QGuiApplication::clipboard()->text());
  QStringList faults = read.mFaults;
  if (faults.size() > cShownFaults) {
    const qsizetype more = faults.size() - cShownFaults + 1;
    faults = faults.mid(0, cShownFaults - 1);
    faults.append(tr("… und %1 weitere.").arg(Decimal_Text::count(more)));
  }
  if (read.mRegisters.empty()) {
    tell(faults.isEmpty() ? tr("Die Zwischenablage enthält keine Registertabelle.") : faults.join(u'\n'), true);
    return;
  }
  const QList<int> rows = selected();
  const int before = rows.isEmpty() ? mModel->rowCount() : rows.last() + 1;
  const Edit_Result result = FB_Modbus_Edits::insertRegisters(session(), block(), before, read.mRegisters);
  show(result, range(before, static_cast<qsizetype>(read.mRegisters.size())));
  if (result) {
    const auto count = static_cast<qsizetype>(read.mRegisters.size());
    const QString done =
        count == 1 ? tr("1 Register eingefügt.") : tr("%1 Register eingefügt.").arg(Decimal_Text::count(count));
    tell((QStringList(done) + faults).join(u'\n'), !faults.isEmpty());
  }
}

void FB_Modbus_Register_Editor::onUndo() {
  emit statusText(Undo_Step::undo(session().history()));
}

void FB_Modbus_Register_Editor::onRedo() {
  emit statusText(Undo_Step::redo(session().history()));
}
