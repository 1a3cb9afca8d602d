#include "ui/Address_Field_Dialog.h"

#include "ui/Datapoint_Edit.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int cFieldWidth = 320;
constexpr int cGap = 12;
} // namespace

Address_Field_Dialog::Address_Field_Dialog(Address_Edits::Field field, QWidget* parent)
    : QDialog(parent),
      mEdit(field == Address_Edits::Field::Type ? new Datapoint_Edit
                                                : new Checked_Line_Edit([field](const QString& text) {
                                                    return Address_Edits::check(field, text).mError;
                                                  })) {
  setWindowTitle(tr("Für alle ausgewählten setzen"));
  mEdit->setMinimumWidth(cFieldWidth);
  auto* const form = new QFormLayout;
  form->addRow(field == Address_Edits::Field::Type ? tr("&Datenpunkttyp:") : tr("&Beschreibung:"), mEdit);

  auto* const buttons = new QDialogButtonBox;
  QPushButton* const accept = buttons->addButton(tr("&Setzen"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  accept->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(mEdit, &Checked_Line_Edit::validityChanged, accept, [this, accept] { accept->setEnabled(mEdit->isValid()); });

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  layout->addLayout(form);
  layout->addStretch();
  layout->addWidget(buttons);
}

void Address_Field_Dialog::setText(const QString& text) {
  mEdit->setText(text);
  mEdit->selectAll();
}

QString Address_Field_Dialog::text() const {
  const auto* const type = qobject_cast<const Datapoint_Edit*>(mEdit);
  return type ? type->type().toString() : mEdit->text();
}
