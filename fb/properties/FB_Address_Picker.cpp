#include "fb/properties/FB_Address_Picker.h"

#include "db/Address_Tree_Model.h"
#include "fb/model/FB_Types.h"
#include "ui/Filter_Edit.h"
#include "ui/Named_Icon_Delegate.h"

#include <QDialogButtonBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr QSize cDefaultSize(600, 480);
constexpr int cAddressWidth = 160;
constexpr int cNameWidth = 290;

} // namespace

FB_Address_Picker::FB_Address_Picker(Project_Session& session, const QString& pin, const QUuid& current,
                                     QWidget* parent)
    : QDialog(parent),
      mModel(new Address_Tree_Model(session, this)),
      mTree(new QTreeView),
      mFilter(new Filter_Edit(0)) {
  setWindowTitle(tr("Adresse auswählen: %1").arg(pin));
  mModel->setBlockTypeName(FB_Types::name);
  setUpTree();
  mFilter->setAccessibleName(tr("Suchen"));
  mFilter->setToolTip(tr("Zeigt die Zeilen, in denen jedes Wort vorkommt."));

  auto* const buttons = new QDialogButtonBox;
  mAccept = buttons->addButton(tr("&Verknüpfen"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  mAccept->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(mFilter, &Filter_Edit::filterChanged, this, &FB_Address_Picker::onFilter);
  connect(mFilter, &Filter_Edit::listWanted, mTree, qOverload<>(&QWidget::setFocus));
  connect(mTree, &QTreeView::activated, this, &FB_Address_Picker::onActivated);
  const auto update = [this] { mAccept->setEnabled(canBeChosen(this->current())); };
  connect(mTree->selectionModel(), &QItemSelectionModel::currentChanged, this, update);
  connect(mModel, &QAbstractItemModel::modelReset, this, update);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  layout->addWidget(mFilter);
  layout->addWidget(mTree);
  layout->addWidget(buttons);
  resize(cDefaultSize);
  if (const QModelIndex index = mModel->indexOf(current); index.isValid()) {
    mTree->setCurrentIndex(index);
    mTree->scrollTo(index, QAbstractItemView::PositionAtCenter);
  }
  update();
  mFilter->setFocus();
}

void FB_Address_Picker::setUpTree() {
  mTree->setModel(mModel);
  mTree->setItemDelegate(new Named_Icon_Delegate(mTree));
  mTree->setEditTriggers(QAbstractItemView::NoEditTriggers);
  mTree->setUniformRowHeights(true);
  mTree->setAllColumnsShowFocus(true);
  mTree->setAccessibleName(tr("Gruppenadressen und Variablen"));
  for (int column = 0; column < mModel->columnCount(); ++column) {
    const bool isShown =
        column == Address_Rows::cAddress || column == Address_Rows::cName || column == Address_Rows::cType;
    mTree->setColumnHidden(column, !isShown);
  }
  mTree->setColumnWidth(Address_Rows::cAddress, cAddressWidth);
  mTree->setColumnWidth(Address_Rows::cName, cNameWidth);
}

QModelIndex FB_Address_Picker::current() const {
  return mTree->currentIndex().siblingAtColumn(0);
}

bool FB_Address_Picker::canBeChosen(const QModelIndex& index) const {
  const auto kind = index.isValid() ? mModel->kindOf(index) : Address_Tree_Model::Kind::Main;
  return kind == Address_Tree_Model::Kind::Sub || kind == Address_Tree_Model::Kind::Variable;
}

QUuid FB_Address_Picker::key() const {
  return canBeChosen(current()) ? mModel->keyOf(current()) : QUuid();
}

bool FB_Address_Picker::isVariable() const {
  return canBeChosen(current()) && mModel->kindOf(current()) == Address_Tree_Model::Kind::Variable;
}

QModelIndex FB_Address_Picker::firstBelow(const QModelIndex& parent) const {
  for (int row = 0; row < mModel->rowCount(parent); ++row) {
    const QModelIndex index = mModel->index(row, 0, parent);
    if (canBeChosen(index)) {
      return index;
    }
    if (const QModelIndex below = firstBelow(index); below.isValid()) {
      return below;
    }
  }
  return {};
}

/// The first hit is chosen already, so that Enter takes it.
void FB_Address_Picker::onFilter(const QString& text) {
  mModel->setFilter(text);
  if (mModel->isFiltered()) {
    mTree->expandToDepth(1);
    mTree->setCurrentIndex(firstBelow({}));
  }
}

void FB_Address_Picker::onActivated(const QModelIndex& index) {
  if (canBeChosen(index.siblingAtColumn(0))) {
    accept();
  }
}
