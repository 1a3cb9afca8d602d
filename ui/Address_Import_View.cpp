#include "ui/Address_Import_View.h"

#include "db/Address_Import_Model.h"
#include "ui/Address_Import_Delegate.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QStyle>

#include <algorithm>

namespace {

constexpr int cGap = 4;
constexpr int cNameWidth = 150;
constexpr int cDescriptionWidth = 142;
constexpr int cNoteWidth = 160;

} // namespace

Address_Import_View::Address_Import_View(Address_Import_Model& model, const Session_State& state, QWidget* parent)
    : Project_Tree_View(state, parent),
      mModel(model) {
  setObjectName(QStringLiteral("mImportRows"));
  setAccessibleName(tr("Was der Import ändern würde"));
  setItemDelegate(new Address_Import_Delegate(this));
  setRootIsDecorated(false);
  setAllColumnsShowFocus(true);
  setModel(&model);
  setRenameColumn(-1);

  header()->setObjectName(QStringLiteral("ui:mImportHeader"));
  header()->setSectionsMovable(true);
  header()->setFirstSectionMovable(false);
  header()->setSortIndicator(Address_Import_Model::cAddress, Qt::AscendingOrder);
  setSortingEnabled(true);
  const int icon = style()->pixelMetric(QStyle::PM_SmallIconSize);
  const int tick = style()->pixelMetric(QStyle::PM_IndicatorWidth);
  const auto widthOf = [this](const QString& text) { return fontMetrics().horizontalAdvance(text) + 6 * cGap; };
  header()->resizeSection(Address_Import_Model::cAddress, widthOf(QStringLiteral("31/7/255")) + icon + tick);
  header()->resizeSection(Address_Import_Model::cKind, widthOf(tr("Geändert")));
  for (const int column : {Address_Import_Model::cTypePresent, Address_Import_Model::cTypeIncoming}) {
    header()->resizeSection(column, widthOf(tr("9.001 (vermutet)")));
  }
  for (const int column : {Address_Import_Model::cNamePresent, Address_Import_Model::cNameIncoming}) {
    header()->resizeSection(column, cNameWidth);
  }
  for (const int column : {Address_Import_Model::cDescriptionPresent, Address_Import_Model::cDescriptionIncoming}) {
    header()->resizeSection(column, cDescriptionWidth);
  }
  header()->resizeSection(Address_Import_Model::cNote, cNoteWidth);
}

void Address_Import_View::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
  case Qt::Key_Space:
  case Qt::Key_Return:
  case Qt::Key_Enter: // Return must not reach the dialog's default button
    turnTicks();
    break;
  default:
    Project_Tree_View::keyPressEvent(event);
  }
}

/// All become ticked, or none when all are.
void Address_Import_View::turnTicks() {
  QList<int> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) {
    rows.append(index.row());
  }
  std::sort(rows.begin(), rows.end());
  const auto isTicked = [this](int row) { return mModel.isTicked(row); };
  if (!rows.isEmpty()) {
    mModel.setTicked(rows, !std::all_of(rows.begin(), rows.end(), isTicked));
  }
}
