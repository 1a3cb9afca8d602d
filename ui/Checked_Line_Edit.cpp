#include "ui/Checked_Line_Edit.h"

#include <QEvent>
#include <QLabel>
#include <QStyle>

#include <algorithm>

namespace {
constexpr int cGap = 2;
constexpr int cMostWidth = 360;
} // namespace

Checked_Line_Edit::Checked_Line_Edit(Check check, QWidget* parent) : QLineEdit(parent), mCheck(std::move(check)) {
  connect(this, &QLineEdit::textChanged, this, &Checked_Line_Edit::recheck);
}

Checked_Line_Edit::~Checked_Line_Edit() {
  delete mLabel;
}

void Checked_Line_Edit::recheck() {
  const QString reason = mCheck(text());
  const bool isOther = reason.isEmpty() != mReason.isEmpty();
  mReason = reason;
  if (isOther) {
    setProperty("invalid", !isValid());
    style()->unpolish(this);
    style()->polish(this);
    emit validityChanged();
  }
  showReason();
}

bool Checked_Line_Edit::mayShowReason() const {
  return hasFocus();
}

void Checked_Line_Edit::showReason() {
  if (isValid() || !mayShowReason()) {
    delete mLabel;
    return;
  }
  if (!mLabel) {
    mLabel = new QLabel(window());
    mLabel->setObjectName(QStringLiteral("ui:mReason"));
    mLabel->setProperty("reason", true);
    mLabel->setTextFormat(Qt::PlainText);
    mLabel->setWordWrap(true);
    mLabel->setAttribute(Qt::WA_TransparentForMouseEvents);
  }
  mLabel->setText(mReason);
  const int most = std::min(cMostWidth, window()->width());
  mLabel->setFixedWidth(std::min(most, mLabel->fontMetrics().horizontalAdvance(mReason) + 24));
  mLabel->adjustSize();
  QPoint at = mapTo(window(), QPoint(0, height() + cGap));
  if (at.y() + mLabel->height() > window()->height()) {
    at.setY(mapTo(window(), QPoint(0, -cGap)).y() - mLabel->height());
  }
  at.setX(std::max(0, std::min(at.x(), window()->width() - mLabel->width())));
  mLabel->move(at);
  mLabel->raise();
  mLabel->show();
}

bool Checked_Line_Edit::event(QEvent* event) {
  const bool isHandled = QLineEdit::event(event);
  if (event->type() == QEvent::Move || event->type() == QEvent::Resize) {
    showReason();
  } else if (event->type() == QEvent::Hide) {
    delete mLabel;
  }
  return isHandled;
}

void Checked_Line_Edit::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  showReason();
}

void Checked_Line_Edit::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  showReason();
}
