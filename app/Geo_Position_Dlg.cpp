#include "app/Geo_Position_Dlg.h"

#include "base/Decimal_Text.h"
#include "db/DB_Project.h"
#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

#include <cmath>

namespace {

constexpr int cFieldWidth = 220;

} // namespace

Geo_Position_Dlg::Field Geo_Position_Dlg::makeField(double value, double maximum, const QString& toolTip) {
  const Field field{maximum, new QLineEdit(Decimal_Text::print(value)), new QLabel};
  field.mEdit->setMinimumWidth(cFieldWidth);
  field.mEdit->setToolTip(toolTip);
  Theme::setTextRole(*field.mReason, Theme::Role::ErrorText);
  connect(field.mEdit, &QLineEdit::textChanged, this, &Geo_Position_Dlg::checkAll);
  return field;
}

Geo_Position_Dlg::Geo_Position_Dlg(double latitude, double longitude, QWidget* parent)
    : QDialog(parent),
      mLatitude(makeField(latitude, DB_Project::cLatitudeMax, tr("-90 bis 90 Grad, Norden positiv"))),
      mLongitude(makeField(longitude, DB_Project::cLongitudeMax, tr("-180 bis 180 Grad, Osten positiv"))) {
  setWindowTitle(tr("Geographische Position"));

  auto* const form = new QFormLayout;
  form->addRow(tr("&Breite in Grad (Norden positiv):"), mLatitude.mEdit);
  form->addRow(QString(), mLatitude.mReason);
  form->addRow(tr("&Länge in Grad (Osten positiv):"), mLongitude.mEdit);
  form->addRow(QString(), mLongitude.mReason);

  auto* const buttons = new QDialogButtonBox;
  mAccept = buttons->addButton(tr("&Übernehmen"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  mAccept->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(12);
  layout->addWidget(new QLabel(tr("Aus dem Standort des Gebäudes folgen Sonnenstand und Dämmerung.")));
  layout->addLayout(form);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
  mLatitude.mEdit->selectAll();
  checkAll();
}

bool Geo_Position_Dlg::check(const Field& field) {
  const std::optional<double> value = Decimal_Text::parse(field.mEdit->text());
  const bool isOk = value && std::abs(*value) <= field.mMaximum;
  field.mReason->setText(isOk ? QString() : tr("Erlaubt ist eine Zahl von -%1 bis %1.").arg(field.mMaximum));
  return isOk;
}

void Geo_Position_Dlg::checkAll() {
  const bool isLatitudeOk = check(mLatitude);
  mAccept->setEnabled(check(mLongitude) && isLatitudeOk);
}

double Geo_Position_Dlg::latitude() const {
  return Decimal_Text::parse(mLatitude.mEdit->text()).value_or(0);
}

double Geo_Position_Dlg::longitude() const {
  return Decimal_Text::parse(mLongitude.mEdit->text()).value_or(0);
}
