#include "ui/Dev_Statistic_Dlg.h"

#include "db/Project_Session.h"
#include "ui/Dev_Statistic_Dlg_Delegate.h"
#include "ui/Dev_Statistic_Dlg_Model.h"
#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <utility>

namespace {

using Model = Dev_Statistic_Dlg_Model;

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cReasonLines = 2;
constexpr int cListFrame = 48; ///< what a drop-down list needs beside its text
constexpr int cMostListWidth = 220;
constexpr int cNameWidth = 150;
constexpr int cAddressWidth = 230;
constexpr QSize cSize(1100, 440);

} // namespace

Dev_Statistic_Dlg::Dev_Statistic_Dlg(Project_Session& session, QWidget* parent)
    : QDialog(parent),
      mSession(session),
      mModel(new Model(session.database(), this)),
      mTable(new QTreeView),
      mNote(new QLabel),
      mReason(new QLabel) {
  setWindowTitle(tr("Aufzeichnung"));
  mNote->setWordWrap(true);
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

  makeTable();
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  row->addWidget(mTable);
  row->addLayout(makeCommands());
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  layout->addWidget(mNote);
  layout->addLayout(row);
  layout->addWidget(mReason);
  layout->addWidget(buttons);
  resize(cSize.boundedTo(screen()->availableSize()));
  follow();
  select(0);
  mTable->setFocus();
  updateState();
}

void Dev_Statistic_Dlg::makeTable() {
  mTable->setModel(mModel);
  mTable->setItemDelegate(new Dev_Statistic_Dlg_Delegate(mTable));
  mTable->setAccessibleName(tr("Aufzeichnungen"));
  mTable->setRootIsDecorated(false);
  mTable->setUniformRowHeights(true);
  mTable->setAlternatingRowColors(true);
  mTable->setAllColumnsShowFocus(false);
  mTable->setSelectionBehavior(QAbstractItemView::SelectItems); // so that the arrow keys go from cell to cell
  mTable->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::EditKeyPressed |
                          QAbstractItemView::AnyKeyPressed | QAbstractItemView::SelectedClicked);
  mTable->setColumnHidden(Model::cController, mSession.database().mProject.mControllers.empty());
  QHeaderView& header = *mTable->header();
  header.setStretchLastSection(false);
  header.setSectionResizeMode(QHeaderView::ResizeToContents);
  // Not what the others leave, which may be nothing: rather the table scrolls.
  for (const auto& [column, width] : {std::pair(Model::cName, cNameWidth), std::pair(Model::cAddress, cAddressWidth)}) {
    header.setSectionResizeMode(column, QHeaderView::Interactive);
    header.resizeSection(column, width);
  }
  for (const int column : {Model::cTrigger, Model::cController}) {
    int width = 0;
    for (const Model::Choice& choice : mModel->choices(column)) {
      width = std::max(width, fontMetrics().horizontalAdvance(choice.second));
    }
    header.setSectionResizeMode(column, QHeaderView::Interactive);
    header.resizeSection(column, std::min(width + cListFrame, cMostListWidth));
  }
}

QPushButton* Dev_Statistic_Dlg::makeCommand(const QString& text, const QString& icon, QVBoxLayout& layout,
                                            void (Dev_Statistic_Dlg::*slot)()) {
  auto* const button = new QPushButton(text);
  if (!icon.isEmpty()) {
    button->setIcon(Theme::icon(icon));
  }
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, slot);
  layout.addWidget(button);
  return button;
}

QVBoxLayout* Dev_Statistic_Dlg::makeCommands() {
  auto* const layout = new QVBoxLayout;
  layout->setSpacing(cGap);
  makeCommand(tr("&Hinzufügen"), QStringLiteral("plus_white"), *layout, &Dev_Statistic_Dlg::onAdd);
  mDuplicate =
      makeCommand(tr("&Duplizieren"), QStringLiteral("duplicate_white"), *layout, &Dev_Statistic_Dlg::onDuplicate);
  mRemove = makeCommand(tr("&Löschen"), QStringLiteral("trash-white"), *layout, &Dev_Statistic_Dlg::onRemove);
  mUp = makeCommand(tr("Nach &oben"), {}, *layout, &Dev_Statistic_Dlg::onUp);
  mDown = makeCommand(tr("Nach &unten"), {}, *layout, &Dev_Statistic_Dlg::onDown);
  layout->addStretch();
  return layout;
}

/// An assistant's tools go on while the dialog is open: they may take addresses away, and close the project.
void Dev_Statistic_Dlg::follow() {
  connect(new QShortcut(QKeySequence::Delete, mTable, nullptr, nullptr, Qt::WidgetShortcut), &QShortcut::activated,
          this, &Dev_Statistic_Dlg::onRemove);
  connect(mModel, &Model::edited, this, &Dev_Statistic_Dlg::updateState);
  connect(mTable->selectionModel(), &QItemSelectionModel::currentChanged, this, &Dev_Statistic_Dlg::updateState);
  connect(&mSession, &Project_Session::aboutToClose, this, &QDialog::reject);
  const Address_Tree& tree = mSession.database().mAddresses;
  connect(&tree, &Address_Tree::recordChanged, mModel, &Model::update);
  connect(&tree, &Address_Tree::structureChanged, mModel, &Model::update);
  connect(&mSession.database(), &ProjectDatabase::recordChanged, mModel, &Model::update);
}

void Dev_Statistic_Dlg::select(int row) {
  mTable->setCurrentIndex(mModel->index(row, Model::cName));
}

/// An address is the one thing that cannot be proposed, so it is asked for at once.
void Dev_Statistic_Dlg::onAdd() {
  const QModelIndex address = mModel->index(mModel->add(), Model::cAddress);
  mTable->setCurrentIndex(address);
  mTable->setFocus();
  mTable->edit(address);
}

void Dev_Statistic_Dlg::onDuplicate() {
  select(mModel->duplicate(mTable->currentIndex().row()));
}

void Dev_Statistic_Dlg::onRemove() {
  mModel->remove(mTable->currentIndex().row());
}

void Dev_Statistic_Dlg::onUp() {
  select(mModel->move(mTable->currentIndex().row(), -1));
}

void Dev_Statistic_Dlg::onDown() {
  select(mModel->move(mTable->currentIndex().row(), 1));
}

void Dev_Statistic_Dlg::updateState() {
  const auto& faults = mModel->faults();
  const QModelIndex current = mTable->currentIndex();
  const QString ofCurrent = mModel->faultOf(current);
  const auto first = [&faults] {
    return faults.empty() ? QString()
                          : tr("Zeile %1: %2").arg(QString::number(faults.front().mRow + 1), faults.front().mText);
  };
  mNote->setText(mModel->rowCount() == 0
                     ? tr("Noch wird nichts aufgezeichnet. \"Hinzufügen\" legt eine Aufzeichnung an, eine "
                          "Gruppenadresse genügt dafür.")
                     : tr("Werte von Gruppenadressen, die die Steuerung über die Zeit aufzeichnet. Wirkt, sobald das "
                          "Projekt auf die Steuerung geschrieben ist."));
  mReason->setText(ofCurrent.isEmpty() ? first() : ofCurrent);
  mAccept->setEnabled(faults.empty());
  mDuplicate->setEnabled(current.isValid());
  mRemove->setEnabled(current.isValid());
  mUp->setEnabled(current.isValid() && current.row() > 0);
  mDown->setEnabled(current.isValid() && current.row() + 1 < mModel->rowCount());
}

void Dev_Statistic_Dlg::accept() {
  mTable->setFocus(); // what is being typed counts too
  const Edit_Result result = mModel->faults().empty() ? Statistic_Edits::setRecordings(mSession, mModel->recordings())
                                                      : Edit_Result::refused(mModel->faults().front().mText);
  if (result) {
    QDialog::accept();
  } else {
    mReason->setText(result.mError);
  }
}
