#include "net/dialogs/Dev_Connect_Progress_Dlg.h"

#include "ui/Theme.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {
constexpr int cGap = 8;
constexpr int cWidth = 420;
constexpr int cLines = 3;
constexpr int cTickMs = 250;
constexpr int cSecond = 1000;
} // namespace

Dev_Connect_Progress_Dlg::Dev_Connect_Progress_Dlg(Controller_Link& link, QWidget* parent)
    : QDialog(parent),
      mLink(link),
      mTarget(link.connectionText()),
      mTitle(new QLabel),
      mDetail(new QLabel),
      mProgress(new QProgressBar) {
  setWindowTitle(tr("Verbinden"));
  setMinimumWidth(cWidth);
  for (QLabel* const label : {mTitle, mDetail}) {
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
  }
  mDetail->setMinimumHeight(cLines * fontMetrics().lineSpacing());
  mDetail->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  mProgress->setRange(0, 0);
  mProgress->setTextVisible(false);
  auto* const buttons = new QDialogButtonBox;
  mButton = buttons->addButton(tr("&Abbrechen"), QDialogButtonBox::RejectRole);
  mButton->setDefault(true);
  connect(buttons, &QDialogButtonBox::rejected, this, &Dev_Connect_Progress_Dlg::reject);

  auto* const layout = new QVBoxLayout(this);
  layout->setSpacing(cGap);
  layout->addWidget(mTitle);
  layout->addWidget(mProgress);
  layout->addWidget(mDetail);
  layout->addStretch();
  layout->addWidget(buttons);

  mClock.start();
  mTimer.setInterval(cTickMs);
  connect(&mTimer, &QTimer::timeout, this, &Dev_Connect_Progress_Dlg::updateText);
  connect(&link, &Controller_Link::stateChanged, this, &Dev_Connect_Progress_Dlg::onState);
  connect(&link, &Controller_Link::refused, this, &Dev_Connect_Progress_Dlg::onRefused);
  connect(&link, &Controller_Link::dialFailed, this, &Dev_Connect_Progress_Dlg::updateText);
  mTimer.start();
  updateText();
}

void Dev_Connect_Progress_Dlg::follow(Controller_Link& link, QWidget* parent) {
  using State = Controller_Link::State;
  if (isShown() || (link.state() != State::Dialling && link.state() != State::LoggingOn)) {
    return;
  }
  auto* const dialog = new Dev_Connect_Progress_Dlg(link, parent);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  if (parent) {
    dialog->addActions(parent->actions()); // the window's keys work on beside it
  }
  dialog->show();
}

bool Dev_Connect_Progress_Dlg::isShown() {
  const QWidgetList windows = QApplication::topLevelWidgets();
  return std::any_of(windows.begin(), windows.end(), [](const QWidget* window) {
    return window->isVisible() && qobject_cast<const Dev_Connect_Progress_Dlg*>(window);
  });
}

void Dev_Connect_Progress_Dlg::onState(Controller_Link::State state) {
  if (mIsOver) {
    return;
  }
  if (state == Controller_Link::State::Online) {
    mIsOver = true;
    done(QDialog::Accepted);
  } else if (state == Controller_Link::State::Dialling) {
    // Told to connect anew, perhaps to another controller.
    mClock.start();
    mTarget = mLink.connectionText();
  } else if (state == Controller_Link::State::Offline) {
    // The next tick closes it, unless a refusal is told until then.
    mTimer.start();
    return;
  }
  updateText();
}

void Dev_Connect_Progress_Dlg::onRefused(const QString& text) {
  mIsOver = true;
  mTimer.stop();
  mProgress->hide();
  mTitle->setText(tr("Keine Verbindung zu %1").arg(mTarget));
  mDetail->setText(text);
  Theme::setTextRole(*mDetail, Theme::Role::ErrorText);
  mButton->setText(tr("&Schließen"));
}

void Dev_Connect_Progress_Dlg::updateText() {
  if (mIsOver) {
    return;
  }
  switch (mLink.state()) {
  case Controller_Link::State::Dialling: {
    const qint64 left = Main_Network_Client::cRedialMs - mClock.elapsed() % Main_Network_Client::cRedialMs;
    const qint64 seconds = std::max<qint64>(1, left / cSecond);
    const QString name = mLink.connectionText();
    mTarget = name.isEmpty() ? mTarget : name;
    mTitle->setText(tr("Verbinde mit %1 ...").arg(mTarget));
    const int failed = mLink.failedAttempts();
    mDetail->setText(failed == 0 ? tr("Versuch 1; meldet sich niemand, folgt der nächste in %1 s.").arg(seconds)
                                 : tr("Versuch %1 ist fehlgeschlagen: %2\nDer nächste folgt in %3 s.")
                                       .arg(QString::number(failed), mLink.lastDialError(), QString::number(seconds)));
    break;
  }
  case Controller_Link::State::LoggingOn:
    mTitle->setText(tr("Anmelden bei %1 ...").arg(mTarget));
    mDetail->setText(tr("Die Steuerung prüft Benutzer und Passwort."));
    break;
  case Controller_Link::State::Offline:
    close(); // somebody else has ended the attempt
    break;
  case Controller_Link::State::Online:
    break;
  }
}

void Dev_Connect_Progress_Dlg::reject() {
  using State = Controller_Link::State;
  const bool isUnderWay = mLink.state() == State::Dialling || mLink.state() == State::LoggingOn;
  if (!std::exchange(mIsOver, true) && isUnderWay) {
    mLink.disconnectLink();
  }
  QDialog::reject();
}
