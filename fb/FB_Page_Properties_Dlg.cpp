#include "fb/FB_Page_Properties_Dlg.h"

#include "db/Project_Edits.h"
#include "db/Project_Session.h"
#include "ui/Checked_Line_Edit.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cFieldWidth = 320;
constexpr int cCommentHeight = 96;
constexpr int cSizeStep = 100;

} // namespace

FB_Page_Properties_Dlg::FB_Page_Properties_Dlg(const Project_Session& session, const QUuid& page, QWidget* parent)
    : QDialog(parent),
      mName(new Checked_Line_Edit([](const QString& text) { return Project_Edits::checkPageName(text).mError; })),
      mComment(new QPlainTextEdit),
      mIsActive(new QCheckBox(tr("Seite ist &aktiv"))),
      mController(new QComboBox) {
  const FB_Page_List_Edits::Properties now = FB_Page_List_Edits::properties(session, page);
  setWindowTitle(tr("Eigenschaften der Seite"));
  mName->setText(now.mCaption);
  mName->setToolTip(tr("Name der Seite, 1 bis 255 Zeichen"));
  mName->setMinimumWidth(cFieldWidth);
  mComment->setPlainText(now.mComment);
  mComment->setToolTip(tr("Bemerkung zur Seite"));
  mComment->setTabChangesFocus(true);
  mComment->setFixedHeight(cCommentHeight);
  mIsActive->setObjectName(QStringLiteral("checkBox_Active"));
  mIsActive->setChecked(now.mIsActive);
  mIsActive->setToolTip(tr("Von einer Seite, die nicht aktiv ist, wird kein Baustein ausgeführt."));
  mController->setToolTip(tr("Steuerung eines verteilten Projekts, die diese Seite ausführt"));
  addController(session, now.mController);
  mWidth = makeSize(now.mWidth, QStringLiteral("spinBox_Width"), tr("Breite der Seite, %1 bis %2 Pixel"));
  mHeight = makeSize(now.mHeight, QStringLiteral("spinBox_Height"), tr("Höhe der Seite, %1 bis %2 Pixel"));

  auto* const form = new QFormLayout;
  form->setSpacing(cGap);
  form->setLabelAlignment(Qt::AlignLeft);
  addRow(*form, tr("&Name"), mName);
  addRow(*form, tr("Be&merkung"), mComment);
  form->addRow(QString(), mIsActive);
  addRow(*form, tr("&Steuerung"), mController);
  addRow(*form, tr("&Breite"), mWidth);
  addRow(*form, tr("&Höhe"), mHeight);

  auto* const buttons = new QDialogButtonBox;
  mAccept = buttons->addButton(tr("&Übernehmen"), QDialogButtonBox::AcceptRole);
  mAccept->setDefault(true);
  buttons->addButton(tr("Abbre&chen"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
  connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
  connect(mName, &Checked_Line_Edit::validityChanged, this, [this] { mAccept->setEnabled(mName->isValid()); });

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  layout->addLayout(form);
  layout->addStretch();
  layout->addWidget(buttons);
  mName->selectAll();
}

void FB_Page_Properties_Dlg::addRow(QFormLayout& form, const QString& label, QWidget* field) {
  form.addRow(label, field);
  field->setAccessibleName(QString(label).remove(u'&'));
}

/// The number that the page has stays a choice when its controller is gone.
void FB_Page_Properties_Dlg::addController(const Project_Session& session, int present) {
  mController->setObjectName(QStringLiteral("comboBox_Controller"));
  mController->addItem(tr("Hauptsteuerung"), 0);
  for (const DB_Controller& controller : session.database().mProject.mControllers) {
    mController->addItem(tr("%1 (%2)").arg(controller.mNumber).arg(controller.mName), controller.mNumber);
  }
  if (mController->findData(present) < 0) {
    mController->addItem(tr("%1 (steht nicht mehr in der Liste)").arg(present), present);
  }
  mController->setCurrentIndex(mController->findData(present));
}

QSpinBox* FB_Page_Properties_Dlg::makeSize(int value, const QString& name, const QString& toolTip) {
  using namespace FB_Page_List_Edits;
  auto* const box = new QSpinBox;
  box->setObjectName(name);
  box->setRange(qMin(value, cSizeMinimum), qMax(value, cSizeMaximum));
  box->setSingleStep(cSizeStep);
  box->setSuffix(tr(" Pixel"));
  box->setValue(value);
  box->setToolTip(toolTip.arg(cSizeMinimum).arg(cSizeMaximum));
  return box;
}

FB_Page_List_Edits::Properties FB_Page_Properties_Dlg::properties() const {
  return {mName->text(),   mComment->toPlainText(), mIsActive->isChecked(), mController->currentData().toInt(),
          mWidth->value(), mHeight->value()};
}
