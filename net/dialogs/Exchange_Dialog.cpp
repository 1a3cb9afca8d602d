#include "net/dialogs/Exchange_Dialog.h"

#include "ui/Theme.h"

#include <QDialogButtonBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace {

constexpr int cGap = 8;
constexpr int cGroupGap = 12;
constexpr int cWidth = 400;
constexpr int cSignSize = 24;
constexpr int cTextLines = 2;
constexpr qsizetype cMostCharacters = 400; // of what a controller gives as a reason

} // namespace

Exchange_Dialog::Exchange_Dialog(const QString& title, Make make, QWidget* parent)
    : QDialog(parent),
      mMake(std::move(make)),
      mSign(new QLabel),
      mText(new QLabel),
      mBar(new QProgressBar) {
  setWindowTitle(title);
  setWindowModality(Qt::WindowModal);
  mSign->setPixmap(Theme::icon(QStringLiteral("warning_white")).pixmap(cSignSize));
  mText->setTextFormat(Qt::PlainText);
  mText->setWordWrap(true);
  mText->setMinimumHeight(cTextLines * fontMetrics().lineSpacing());
  mText->setTextInteractionFlags(Qt::TextSelectableByMouse);
  mBar->setAccessibleName(tr("Fortschritt"));

  auto* const buttons = new QDialogButtonBox;
  mRetry = buttons->addButton(tr("&Erneut versuchen"), QDialogButtonBox::ActionRole);
  mClose = buttons->addButton(tr("&Schließen"), QDialogButtonBox::RejectRole);
  mCancel = buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  connect(buttons, &QDialogButtonBox::rejected, this, &Exchange_Dialog::reject);
  connect(mRetry, &QPushButton::clicked, this, &Exchange_Dialog::start);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGroupGap);
  auto* const words = new QHBoxLayout;
  words->setSpacing(cGap);
  words->addWidget(mSign, 0, Qt::AlignTop);
  words->addWidget(mText, 1);
  layout->addLayout(words);
  layout->addWidget(mBar);
  layout->addStretch();
  layout->addWidget(buttons);
  setMinimumWidth(cWidth);

  mDelay.setSingleShot(true);
  mDelay.setInterval(cDelayMs);
  connect(&mDelay, &QTimer::timeout, this, &QWidget::show);
}

/// The exchange may have something to undo at the controller, which its destructor cannot do.
Exchange_Dialog::~Exchange_Dialog() {
  if (mExchange) {
    mExchange->disconnect(this);
    mExchange->cancel();
  }
}

void Exchange_Dialog::start() {
  if (mExchange && !mIsEnded) {
    return;
  }
  showFailure(false);
  mBar->setRange(0, 0);
  mIsEnded = false;
  if (mExchange) {
    mExchange.release()->deleteLater(); // it may be telling its end
  }
  mExchange = mMake();
  connect(mExchange.get(), &Controller_Exchange::progress, this, &Exchange_Dialog::onProgress);
  connect(mExchange.get(), &Controller_Exchange::finished, this, &Exchange_Dialog::onFinished);
  if (!isVisible()) {
    mDelay.start();
  }
  mExchange->start();
}

void Exchange_Dialog::reject() {
  if (mExchange && !mIsEnded) {
    mExchange->cancel();
    return;
  }
  QDialog::reject();
}

void Exchange_Dialog::onProgress(const QString& label, int value, int maximum) {
  mText->setText(label);
  mBar->setRange(0, maximum);
  mBar->setValue(value);
}

void Exchange_Dialog::onFinished(Controller_Exchange::End end) {
  mIsEnded = true;
  mDelay.stop();
  switch (end) {
  case Controller_Exchange::End::Done:
    onSucceeded();
    return;
  case Controller_Exchange::End::Cancelled:
    onCancelled();
    return;
  default:
    mText->setText(mExchange->errorText().isEmpty() ? tr("Die Steuerung lehnt es ab und nennt keinen Grund.")
                                                    : mExchange->errorText().left(cMostCharacters));
    showFailure(true);
    // This window is in front of what dials again.
    mRetry->setVisible(end != Controller_Exchange::End::NoLink);
    show();
  }
}

void Exchange_Dialog::showFailure(bool isFailed) {
  Theme::setTextRole(*mText, isFailed ? Theme::Role::ErrorText : Theme::Role::Text);
  mSign->setVisible(isFailed);
  mBar->setVisible(!isFailed);
  mRetry->setVisible(isFailed);
  mClose->setVisible(isFailed);
  mCancel->setVisible(!isFailed);
  QPushButton* const safe = isFailed ? mClose : mCancel;
  safe->setDefault(true);
  safe->setFocus();
}
