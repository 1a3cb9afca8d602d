#include "fb/lua/FB_Lua_Trace_View.h"

#include "ui/Theme.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QScrollBar>
#include <QShortcut>
#include <QStackedWidget>
#include <QTableView>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {

constexpr int cMargin = 8;
constexpr int cFirstColumn = 160;
constexpr int cGatherMs = 100;

QToolButton* makeButton(const QString& icon, const QString& text, const QString& tip) {
  auto* const button = new QToolButton;
  button->setIcon(Theme::icon(icon));
  button->setText(text);
  button->setToolTip(tip);
  button->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  button->setAutoRaise(true);
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

QList<QStandardItem*> makeRow(const QStringList& cells) {
  QList<QStandardItem*> row;
  for (const QString& cell : cells) {
    row.append(new QStandardItem(cell));
    row.last()->setEditable(false);
  }
  return row;
}

} // namespace

FB_Lua_Trace_View::FB_Lua_Trace_View(const QString& title, const QStringList& columns, QWidget* parent)
    : QWidget(parent),
      mTable(new QTableView),
      mHint(new QLabel),
      mCount(new QLabel),
      mStack(new QStackedWidget),
      mClear(makeButton(QStringLiteral("trash-white"), tr("Löschen"), tr("Leert die Liste"))),
      mCopy(
          makeButton(QStringLiteral("copy-white"), tr("Kopieren"), tr("Kopiert die ausgewählten Zeilen, sonst alle"))) {
  mModel.setHorizontalHeaderLabels(columns);
  mTable->setModel(&mModel);
  mTable->setAccessibleName(title);
  mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
  mTable->setAlternatingRowColors(true);
  mTable->setShowGrid(false);
  mTable->verticalHeader()->hide();
  mTable->horizontalHeader()->setStretchLastSection(true);
  mTable->horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  mTable->setColumnWidth(0, cFirstColumn);
  mHint->setWordWrap(true);
  mHint->setAlignment(Qt::AlignCenter);
  mHint->setMargin(cMargin);
  Theme::setTextRole(*mHint, Theme::Role::SecondaryText);
  Theme::setTextRole(*mCount, Theme::Role::SecondaryText);
  mStack->addWidget(mHint);
  mStack->addWidget(mTable);

  auto* const heading = new QLabel(title);
  QFont bold = heading->font();
  bold.setBold(true);
  heading->setFont(bold);
  auto* const head = new QHBoxLayout;
  head->addWidget(heading);
  head->addWidget(mCount, 1);
  head->addWidget(mClear);
  head->addWidget(mCopy);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(cMargin, 4, cMargin, cMargin);
  layout->setSpacing(4);
  layout->addLayout(head);
  layout->addWidget(mStack, 1);

  mShow.setSingleShot(true);
  mShow.setInterval(cGatherMs);
  connect(&mShow, &QTimer::timeout, this, &FB_Lua_Trace_View::showWaiting);
  connect(mClear, &QToolButton::clicked, this, &FB_Lua_Trace_View::clearRequested);
  connect(mCopy, &QToolButton::clicked, this, &FB_Lua_Trace_View::copyRequested);
  auto* const keys = new QShortcut(QKeySequence::Copy, mTable, nullptr, nullptr, Qt::WidgetShortcut);
  connect(keys, &QShortcut::activated, this, &FB_Lua_Trace_View::copyRequested);
  update();
}

void FB_Lua_Trace_View::setHint(const QString& text) {
  mHint->setText(text);
}

void FB_Lua_Trace_View::append(const QStringList& cells) {
  if (mWaiting.size() >= cMostRows) {
    mWaiting.removeFirst();
  }
  mWaiting.append(cells);
  if (!mShow.isActive()) {
    mShow.start();
  }
}

void FB_Lua_Trace_View::showWaiting() {
  const QScrollBar& bar = *mTable->verticalScrollBar();
  const bool isAtEnd = bar.value() == bar.maximum();
  const int tooMany = mModel.rowCount() + static_cast<int>(mWaiting.size()) - cMostRows;
  if (tooMany > 0) {
    mModel.removeRows(0, tooMany);
  }
  for (const QStringList& cells : std::as_const(mWaiting)) {
    mModel.appendRow(makeRow(cells));
  }
  mWaiting.clear();
  if (isAtEnd) {
    mTable->scrollToBottom();
  }
  update();
}

void FB_Lua_Trace_View::set(const QStringList& cells) {
  const QList<QStandardItem*> same = mModel.findItems(cells.value(0), Qt::MatchExactly | Qt::MatchCaseSensitive);
  if (same.isEmpty()) {
    mWaiting.append(cells);
    showWaiting();
    return;
  }
  for (int column = 1; column < cells.size(); ++column) {
    mModel.item(same.first()->row(), column)->setText(cells.at(column));
  }
}

void FB_Lua_Trace_View::clear() {
  mWaiting.clear();
  mModel.removeRows(0, mModel.rowCount());
  update();
}

void FB_Lua_Trace_View::copy() {
  showWaiting();
  QList<int> rows;
  for (const QModelIndex& index : mTable->selectionModel()->selectedRows()) {
    rows.append(index.row());
  }
  std::ranges::sort(rows);
  if (rows.isEmpty()) {
    rows.resize(mModel.rowCount());
    std::iota(rows.begin(), rows.end(), 0);
  }
  QStringList lines;
  for (const int row : rows) {
    QStringList cells;
    for (int column = 0; column < mModel.columnCount(); ++column) {
      cells.append(mModel.index(row, column).data().toString());
    }
    lines.append(cells.join(u'\t'));
  }
  QApplication::clipboard()->setText(lines.join(u'\n'));
}

void FB_Lua_Trace_View::update() {
  const int rows = mModel.rowCount();
  mStack->setCurrentIndex(rows == 0 ? 0 : 1);
  mCount->setText(rows == 0 ? QString() : tr("(%1)").arg(QLocale().toString(rows)));
  mClear->setEnabled(rows > 0);
  mCopy->setEnabled(rows > 0);
}
