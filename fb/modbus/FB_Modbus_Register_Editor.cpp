#include "fb/modbus/FB_Modbus_Register_Editor.h"

#include "base/App_Settings.h"
#include "base/Decimal_Text.h"
#include "db/Edit_Result.h"
#include "db/Project_Session.h"
#include "fb/modbus/FB_Modbus_Delegate.h"
#include "fb/modbus/FB_Modbus_Model.h"
#include "ui/Empty_Hint.h"
#include "ui/Filter_Edit.h"
#include "ui/Theme.h"

#include <QAction>
#include <QHeaderView>
#include <QLabel>
#include <QSortFilterProxyModel>
#include <QStackedWidget>
#include <QTableView>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int cGap = 8;
constexpr int cMessageLines = 3;
constexpr QSize cSize(1180, 560);
/// Of the columns, in their order.
constexpr int cWidths[] = {50, 150, 180, 70, 140, 120, 60, 70, 70, 100, 130, 120};
const QString cGeometryName = QStringLiteral("fb:FB_Modbus_Register_Editor");
const QString cHeaderName = QStringLiteral("fb:FB_Modbus_Register_Editor::mHeader");

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
  if (record()) {
    showTitle(tr("Modbus Register"));
    QList<int> rows = selected();
    mModel->refresh();
    if (selected().isEmpty()) {
      for (int& row : rows) {
        row = std::min(row, mModel->rowCount() - 1); // the selected one may be gone
      }
      select(rows);
    }
    update();
  }
}

bool FB_Modbus_Register_Editor::finish() {
  mTable->setFocus(); // what is being typed in a cell is handed over
  return true;
}
