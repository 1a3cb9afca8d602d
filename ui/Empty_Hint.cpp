#include "ui/Empty_Hint.h"

#include "ui/Theme.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int cMargin = 16;
constexpr int cGap = 12;
} // namespace

Empty_Hint::Empty_Hint(QWidget* parent) : QWidget(parent), mLabel(new QLabel), mStep(new QPushButton) {
  mLabel->setTextFormat(Qt::PlainText);
  mLabel->setWordWrap(true);
  mLabel->setAlignment(Qt::AlignCenter);
  Theme::setTextRole(*mLabel, Theme::Role::SecondaryText);
  mStep->hide();
  mStep->setAutoDefault(true);
  connect(mStep, &QPushButton::clicked, this, &Empty_Hint::stepRequested);

  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  setContentsMargins(cMargin, cMargin, cMargin, cMargin);
  layout->setSpacing(cGap);
  layout->addStretch(1);
  layout->addWidget(mLabel);
  layout->addWidget(mStep, 0, Qt::AlignHCenter);
  layout->addStretch(2);
}

void Empty_Hint::setText(const QString& text) {
  mLabel->setText(text);
}

void Empty_Hint::setStep(const QString& text) {
  mStep->setText(text);
  mStep->setVisible(!text.isEmpty());
}

void Empty_Hint::setStepEnabled(bool isEnabled, const QString& toolTip) {
  mStep->setEnabled(isEnabled);
  mStep->setToolTip(toolTip);
}
