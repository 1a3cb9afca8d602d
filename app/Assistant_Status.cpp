#include "app/Assistant_Status.h"

#include "base/Session_State.h"
#include "ui/Theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

using namespace std::chrono_literals;

namespace {

constexpr int cIconSize = 16;
constexpr int cGap = 4;
constexpr auto cHold = 1500ms;

QString working() {
  return Assistant_Status::tr("KI-Assistent arbeitet");
}

} // namespace

Assistant_Status::Assistant_Status(const Session_State& state, QWidget* parent)
    : QWidget(parent),
      mState(state),
      mIcon(new QLabel),
      mText(new QLabel) {
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mIcon);
  layout->addWidget(mText);
  mHold.setSingleShot(true);
  mHold.setInterval(cHold);
  connect(&mHold, &QTimer::timeout, this, &Assistant_Status::showState);
  connect(&state, &Session_State::toolCallRunningChanged, this, &Assistant_Status::onToolCall);
  hide();
}

QString Assistant_Status::text() const {
  return mText->text();
}

void Assistant_Status::showListening(int port) {
  mIsListening = true;
  mIdle = tr("KI-Assistent: Port %1").arg(port);
  mIdleTip = tr("Ein KI-Assistent auf diesem Rechner bedient das Studio über\n"
                "http://127.0.0.1:%1/mcp (ältere über http://127.0.0.1:%1/sse).")
                 .arg(port);
  showState();
  keepWidth();
  show();
}

void Assistant_Status::showFailed(int port, bool isTaken, const QString& error) {
  mIsListening = false;
  mIdle = isTaken ? tr("KI-Assistent: Port %1 ist belegt").arg(port)
                  : tr("KI-Assistent: Port %1 nicht verfügbar").arg(port);
  mIdleTip =
      (isTaken ? tr("Ein anderes Programm oder ein anderes Studio hat den Port.") : error) + u'\n' +
      tr("KI-Assistenten erreichen dieses Studio nicht. Ein anderer Port in \"Extras\", \"Einstellungen\" gilt ab "
         "dem nächsten Start.");
  showState();
  show();
}

void Assistant_Status::onToolCall(bool isRunning) {
  if (isRunning) {
    mHold.stop();
  } else {
    mHold.start();
  }
  showState();
}

void Assistant_Status::showState() {
  const bool isWorking = mIsListening && (mState.toolCallRunning() || mHold.isActive());
  const QString text = isWorking ? working() : mIdle;
  if (text == mText->text()) {
    return;
  }
  const char* const icon = mIsListening ? "assistant_white" : "warning_white";
  mIcon->setPixmap(Theme::icon(QString::fromLatin1(icon)).pixmap(cIconSize));
  Theme::setTextRole(*mText, !mIsListening ? Theme::Role::ErrorText
                             : isWorking   ? Theme::Role::Ok
                                           : Theme::Role::SecondaryText);
  mText->setText(text);
  setToolTip(isWorking ? tr("Jeder Schritt des Assistenten ist ein Schritt, den Strg+Z zurücknimmt.") : mIdleTip);
  setAccessibleName(text);
}

/// The texts beside it stay where they are when an assistant begins to work.
void Assistant_Status::keepWidth() {
  const QFontMetrics metrics = mText->fontMetrics();
  mText->setMinimumWidth(qMax(metrics.horizontalAdvance(mIdle), metrics.horizontalAdvance(working())));
}

void Assistant_Status::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange && mIsListening) {
    keepWidth();
  }
}
