#include "fb/FB_Variable_Name_Dialog.h"

#include "db/Variable_Edits.h"
#include "ui/Checked_Line_Edit.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr int cFieldWidth = 320;
constexpr int cGap = 12;

} // namespace

FB_Variable_Name_Dialog::FB_Variable_Name_Dialog(const QString& name, QWidget* parent)
    : QDialog(parent),
      mName(new Checked_Line_Edit([](const QString& text) { return Variable_Edits::checkName(text).mError; })) {
  setWindowTitle(tr("Variable umbenennen"));
  mName->setText(name);
  mName->selectAll();
  mName->setToolTip(tr("Name der Variable, 1 bis 255 Zeichen. Er gilt an allen Anschlüssen."));
  mName->setMinimumWidth(cFieldWidth);
  auto* const form = new QFormLayout;
  form->addRow(tr("&Name:"), mName);

  auto* const buttons = new QDialogButtonBox;
  QPushButton* const accept = buttons->addButton(tr("&Umbenennen"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  accept->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(mName, &Checked_Line_Edit::validityChanged, accept, [this, accept] { accept->setEnabled(mName->isValid()); });

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  layout->addLayout(form);
  layout->addStretch();
  layout->addWidget(buttons);
}

QString FB_Variable_Name_Dialog::name() const {
  return mName->text();
}
