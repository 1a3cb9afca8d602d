#include "fb/properties/FB_Property_Row.h"

#include "ui/Theme.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int cGap = 4;
constexpr int cMargin = 1;
} // namespace

FB_Property_Row::FB_Property_Row(QWidget& editor, QWidget* parent)
    : QWidget(parent),
      mLines(new QVBoxLayout(this)),
      mFirst(new QHBoxLayout),
      mLast(&editor) {
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
  button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Ignored); // the row is as high as without it
  mFirst->addWidget(button);
  setTabOrder(mLast, button);
  mLast = button;
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

void FB_Property_Row::setRemark(const QString& fault, const QString& warning) {
  if (fault == mFault && warning == mWarning) {
    return;
  }
  mFault = fault;
  mWarning = warning;
  if (!mRemark) {
    mRemark = new QLabel;
    mRemark->setTextFormat(Qt::PlainText);
    mRemark->setWordWrap(true);
    mLines->addWidget(mRemark);
  }
  // The sign tells what the colour does not.
  QStringList lines{fault, warning};
  lines.removeAll(QString());
  mRemark->setText(lines.isEmpty() ? QString() : QStringLiteral("⚠ ") + lines.join(QStringLiteral("\n⚠ ")));
  Theme::setTextRole(*mRemark, fault.isEmpty() ? Theme::Role::Warning : Theme::Role::ErrorText);
  mRemark->setVisible(!lines.isEmpty());
  fitRemark();
}

/// The tree takes the height that the row asks for, which for text of several lines follows from its width.
void FB_Property_Row::fitRemark() {
  const int room = std::max(1, contentsRect().width());
  const int height = mFault.isEmpty() && mWarning.isEmpty() ? 0 : mRemark->heightForWidth(room);
  if (height != mRemarkHeight) {
    mRemarkHeight = height;
    mRemark->setFixedHeight(height);
    emit heightChanged();
  }
}

void FB_Property_Row::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  if (mRemarkHeight > 0) {
    QMetaObject::invokeMethod(this, &FB_Property_Row::fitRemark, Qt::QueuedConnection); // not while the tree lays out
  }
}
