#include "fb/properties/FB_Property_Row.h"

#include "ui/Elided_Label.h"
#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QStyle>
#include <QToolButton>
#include <QVBoxLayout>

namespace {
constexpr int cGap = 4;
constexpr int cMargin = 1;
} // namespace

FB_Property_Row::FB_Property_Row(QWidget& editor, QWidget* parent)
    : QWidget(parent),
      mLines(new QVBoxLayout(this)),
      mFirst(new QHBoxLayout) {
  mLines->setContentsMargins(0, 0, 0, 0);
  setContentsMargins(0, cMargin, cGap, cMargin);
  mLines->setSpacing(0);
  mFirst->setSpacing(cGap);
  mFirst->addWidget(&editor, 1);
  mLines->addLayout(mFirst);
}

QToolButton& FB_Property_Row::addButton(const QString& icon, const QString& text, const QString& toolTip) {
  auto* const button = new QToolButton;
  button->setIcon(Theme::icon(icon));
  button->setText(text);
  button->setAccessibleName(text);
  button->setToolTip(toolTip);
  button->setToolButtonStyle(Qt::ToolButtonIconOnly);
  button->setFocusPolicy(Qt::TabFocus);
  mFirst->addWidget(button);
  return *button;
}

/// Most values are the default: the button is made when it is needed.
void FB_Property_Row::setReset(const QString& text) {
  if (!mReset && text.isEmpty()) {
    return;
  }
  if (!mReset) {
    mReset = &addButton(QStringLiteral("undo_white"), {}, {});
    connect(mReset, &QToolButton::clicked, this, &FB_Property_Row::resetRequested);
  }
  mReset->setText(text);
  mReset->setAccessibleName(text);
  mReset->setToolTip(text);
  mReset->setVisible(!text.isEmpty());
}

void FB_Property_Row::setFault(const QString& text) {
  if (text == mFaultText) {
    return;
  }
  const bool wasShown = !mFaultText.isEmpty();
  mFaultText = text;
  if (!mFault) {
    mFault = new Elided_Label;
    mFault->setTextFormat(Qt::PlainText);
    Theme::setTextRole(*mFault, Theme::Role::ErrorText);
    mLines->addWidget(mFault);
  }
  // The word tells what the colour does not.
  mFault->setText(text.isEmpty() ? QString() : QStringLiteral("⚠ ") + text);
  mFault->setVisible(!text.isEmpty());
  if (wasShown == text.isEmpty()) {
    emit heightChanged();
  }
}
