#include "app/Status_Progress.h"

#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QToolButton>

namespace {

constexpr int cGap = 8;
constexpr int cBarWidth = 160;

} // namespace

Status_Progress::Status_Progress(QWidget* parent) : QWidget(parent), mLabel(new QLabel), mBar(new QProgressBar) {
  auto* const cancel = new QToolButton;
  cancel->setText(tr("Abbrechen"));
  cancel->setToolTip(tr("Bricht die Übertragung ab; die Steuerung behält ihr Programm"));
  cancel->setAutoRaise(true);
  mBar->setFixedWidth(cBarWidth);
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mLabel);
  layout->addWidget(mBar);
  layout->addWidget(cancel);
  connect(cancel, &QToolButton::clicked, this, &Status_Progress::cancelled);
  hide();
}

void Status_Progress::showProgress(const QString& label, int value, int maximum) {
  mLabel->setText(label);
  mBar->setRange(0, maximum);
  mBar->setValue(value);
  show();
}
