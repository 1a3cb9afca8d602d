#include "net/dialogs/Dev_Compare_Project_Dlg.h"

#include "db/Model_Roles.h"
#include "ui/Project_Tree_View.h"
#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QStandardItemModel>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cSignSize = 24;
constexpr QSize cSize(760, 380);
constexpr qsizetype cMostCharacters = 200; // of a cell, whatever a controller says

QWidget* makeTable(const Project_Comparison& comparison, const Session_State& state, QObject* parent) {
  using Dialog = Dev_Compare_Project_Dlg;
  auto* const model = new QStandardItemModel(parent);
  model->setHorizontalHeaderLabels(
      {Dialog::tr("Angabe"), Dialog::tr("Lokal"), Dialog::tr("Steuerung"), Dialog::tr("Vergleich")});
  for (const Project_Comparison::Row& row : comparison.rows()) {
    QList<QStandardItem*> items;
    for (const QString& text :
         {row.mWhat, row.mLocal, row.mController, row.mIsSame ? Dialog::tr("gleich") : Dialog::tr("verschieden")}) {
      const QString shown = text.left(cMostCharacters).simplified();
      auto* const item = new QStandardItem(shown);
      item->setEditable(false);
      item->setToolTip(Model_Roles::toolTip(shown).toString());
      items.append(item);
    }
    // Time and generation differ between equal projects too.
    if (!row.mIsSame && comparison.verdict() != Project_Comparison::Verdict::Same) {
      items.last()->setIcon(Theme::icon(QStringLiteral("warning_white")));
    }
    model->appendRow(items);
  }
  auto* const table = new Project_Tree_View(state);
  table->setAccessibleName(Dialog::tr("Vergleich"));
  table->setRenameColumn(-1);
  table->setRootIsDecorated(false);
  table->setAllColumnsShowFocus(true);
  table->setModel(model);
  table->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
  table->header()->setStretchLastSection(true);
  table->setCurrentIndex(model->index(0, 0));
  return table;
}

} // namespace

Dev_Compare_Project_Dlg::Dev_Compare_Project_Dlg(const Project_Comparison& comparison, const Session_State& state,
                                                 QWidget* parent)
    : QDialog(parent) {
  const bool isSame = comparison.verdict() == Project_Comparison::Verdict::Same;
  setWindowTitle(tr("Projektvergleich"));
  setWindowModality(Qt::WindowModal);
  auto* const sign = new QLabel;
  sign->setPixmap(
      Theme::icon(isSame ? QStringLiteral("info_white") : QStringLiteral("warning_white")).pixmap(cSignSize));
  auto* const text = new QLabel(comparison.text());
  text->setTextFormat(Qt::PlainText);
  text->setWordWrap(true);

  auto* const buttons = new QDialogButtonBox;
  QPushButton* safe = nullptr;
  if (isSame) {
    safe = buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole);
  } else {
    auto* const load = buttons->addButton(tr("Projekt aus Steuerung &laden"), QDialogButtonBox::AcceptRole);
    load->setEnabled(comparison.verdict() == Project_Comparison::Verdict::Different);
    load->setAutoDefault(false);
    safe = buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  }
  safe->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const words = new QHBoxLayout;
  words->setSpacing(cGap);
  words->addWidget(sign);
  words->addWidget(text, 1);
  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  layout->addLayout(words);
  layout->addWidget(makeTable(comparison, state, this), 1);
  layout->addWidget(buttons);
  resize(cSize);
  safe->setFocus();
}
