#include "app/Geo_Position_Dlg.h"

#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr double cLatitudeMax = 90;
constexpr double cLongitudeMax = 180;
/// Six places are a tenth of a metre.
constexpr int cDecimals = 6;
constexpr double cStep = 0.01;

QDoubleSpinBox* makeField(double value, double maximum, const QString& toolTip) {
  auto* const field = new QDoubleSpinBox;
  field->setRange(-maximum, maximum);
  field->setDecimals(cDecimals);
  field->setSingleStep(cStep);
  field->setValue(value);
  field->setSuffix(QStringLiteral(" °"));
  field->setToolTip(toolTip);
  return field;
}

} // namespace

Geo_Position_Dlg::Geo_Position_Dlg(double latitude, double longitude, QWidget* parent)
    : QDialog(parent),
      mLatitude(makeField(latitude, cLatitudeMax, tr("-90 bis 90 Grad, Norden positiv"))),
      mLongitude(makeField(longitude, cLongitudeMax, tr("-180 bis 180 Grad, Osten positiv"))) {
  setWindowTitle(tr("Geographische Position"));

  auto* const form = new QFormLayout;
  form->addRow(tr("&Breite (Norden positiv):"), mLatitude);
  form->addRow(tr("&Länge (Osten positiv):"), mLongitude);

  auto* const buttons = new QDialogButtonBox;
  QPushButton* const accept = buttons->addButton(tr("&Übernehmen"), QDialogButtonBox::AcceptRole);
  buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  accept->setDefault(true);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(12);
  layout->addWidget(new QLabel(tr("Aus dem Standort des Gebäudes folgen Sonnenstand und Dämmerung.")));
  layout->addLayout(form);
  layout->addWidget(buttons);
  layout->setSizeConstraint(QLayout::SetFixedSize);
}

double Geo_Position_Dlg::latitude() const {
  return mLatitude->value();
}

double Geo_Position_Dlg::longitude() const {
  return mLongitude->value();
}
