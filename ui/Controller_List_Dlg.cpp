#include "ui/Controller_List_Dlg.h"

#include "ui/Controller_List_Model.h"
#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTreeView>
#include <QVBoxLayout>

#include <limits>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cReasonLines = 2;
constexpr QSize cSize(640, 360);

/// Numbers are typed as numbers; the toolkit's own editor goes below zero.
class Number_Delegate : public QStyledItemDelegate {
public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex&) const override {
    auto* const box = new QSpinBox(parent);
    box->setFrame(false);
    box->setRange(1, std::numeric_limits<int>::max());
    return box;
  }
};

} // namespace

Controller_List_Dlg::Controller_List_Dlg(std::vector<DB_Controller> controllers, QWidget* parent)
    : QDialog(parent),
      mModel(new Controller_List_Model(std::move(controllers), this)),
      mTable(new QTreeView),
      mReason(new QLabel) {
  setWindowTitle(tr("Verteiltes Projekt"));
  auto* const note =
      new QLabel(tr("Steuerungen, die dieses Projekt gemeinsam ausführen. Ohne Eintrag läuft das Projekt "
                    "auf einer Steuerung."));
  note->setWordWrap(true);
  mReason->setWordWrap(true);
  mReason->setTextFormat(Qt::PlainText);
  mReason->setMinimumHeight(cReasonLines * fontMetrics().lineSpacing());
  mReason->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  Theme::setTextRole(*mReason, Theme::Role::ErrorText);

  auto* const buttons = new QDialogButtonBox;
  mAccept = buttons->addButton(tr("&Übernehmen"), QDialogButtonBox::AcceptRole);
  mAccept->setDefault(true);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  layout->addWidget(note);
  layout->addWidget(makeTable());
  layout->addWidget(mReason);
  layout->addWidget(buttons);
  resize(cSize);
  connect(mModel, &Controller_List_Model::edited, this, &Controller_List_Dlg::updateState);
  connect(mTable->selectionModel(), &QItemSelectionModel::currentChanged, this, &Controller_List_Dlg::updateState);
  mTable->setCurrentIndex(mModel->index(0, Controller_List_Model::cName));
  updateState();
}

QWidget* Controller_List_Dlg::makeTable() {
  mTable->setModel(mModel);
  mTable->setAccessibleName(tr("Steuerungen"));
  mTable->setRootIsDecorated(false);
  mTable->setUniformRowHeights(true);
  mTable->setAlternatingRowColors(true);
  mTable->setAllColumnsShowFocus(false);
  mTable->setSelectionBehavior(QAbstractItemView::SelectRows);
  mTable->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
  mTable->setItemDelegateForColumn(Controller_List_Model::cNumber, new Number_Delegate(mTable));
  QHeaderView& header = *mTable->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  header.setSectionResizeMode(Controller_List_Model::cName, QHeaderView::Stretch);
  header.setSectionResizeMode(Controller_List_Model::cAddress, QHeaderView::Stretch);

  auto* const add = new QPushButton(tr("&Hinzufügen"));
  add->setIcon(Theme::icon(QStringLiteral("plus_white")));
  mRemove = new QPushButton(tr("&Entfernen"));
  mRemove->setIcon(Theme::icon(QStringLiteral("trash-white")));
  add->setAutoDefault(false);
  mRemove->setAutoDefault(false);
  connect(add, &QPushButton::clicked, this, &Controller_List_Dlg::onAdd);
  connect(mRemove, &QPushButton::clicked, this, &Controller_List_Dlg::onRemove);

  auto* const group = new QWidget;
  auto* const row = new QHBoxLayout(group);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(cGap);
  row->addWidget(mTable);
  auto* const commands = new QVBoxLayout;
  commands->setSpacing(cGap);
  commands->addWidget(add);
  commands->addWidget(mRemove);
  commands->addStretch();
  row->addLayout(commands);
  return group;
}

std::vector<DB_Controller> Controller_List_Dlg::controllers() const {
  return mModel->controllers();
}

/// An address is the one thing that cannot be proposed, so it is asked for at once.
void Controller_List_Dlg::onAdd() {
  const QModelIndex address = mModel->index(mModel->add(), Controller_List_Model::cAddress);
  mTable->setCurrentIndex(address);
  mTable->edit(address);
}

void Controller_List_Dlg::onRemove() {
  mModel->remove(mTable->currentIndex().row());
}

void Controller_List_Dlg::updateState() {
  const auto& faults = mModel->faults();
  const QString ofCurrent = mModel->faultOf(mTable->currentIndex());
  const auto first = [&faults] {
    return faults.empty() ? QString()
                          : tr("Zeile %1: %2").arg(QString::number(faults.front().mRow + 1), faults.front().mText);
  };
  mReason->setText(ofCurrent.isEmpty() ? first() : ofCurrent);
  mAccept->setEnabled(faults.empty());
  mRemove->setEnabled(mTable->currentIndex().isValid());
}
