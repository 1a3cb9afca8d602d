#include "app/Link_Status.h"

#include "ui/Theme.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr int cIconSize = 16;
constexpr int cGap = 4;
constexpr int cMostCharacters = 64; ///< of a name that would push out the other texts of the status bar

using State = Controller_Link::State;

QString textOf(State state, const QString& connection, bool isLost) {
  switch (state) {
  case State::Dialling:
    return Link_Status::tr("Verbindet: %1").arg(connection);
  case State::LoggingOn:
    return Link_Status::tr("Meldet sich an: %1").arg(connection);
  case State::Online:
    return Link_Status::tr("Verbunden: %1").arg(connection);
  case State::Offline:
    break;
  }
  return isLost ? Link_Status::tr("Verbindung verloren: %1").arg(connection) : Link_Status::tr("Nicht verbunden");
}

} // namespace

Link_Status::Link_Status(QWidget* parent) : QWidget(parent), mIcon(new QLabel), mText(new QLabel) {
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(cGap);
  layout->addWidget(mIcon);
  layout->addWidget(mText);
  mText->setTextFormat(Qt::PlainText); // a connection's name is the user's
  showState(State::Offline, {}, false);
}

void Link_Status::showState(Controller_Link::State state, const QString& connection, bool isLost) {
  const bool isOnline = state == State::Online;
  const char* const icon = isOnline ? "control_online" : isLost ? "warning_white" : "control_offline";
  mIcon->setPixmap(Theme::icon(QString::fromLatin1(icon)).pixmap(cIconSize));
  Theme::setTextRole(*mText, isOnline ? Theme::Role::Ok : isLost ? Theme::Role::ErrorText : Theme::Role::SecondaryText);
  mFull = textOf(state, connection, isLost);
  setToolTip((isLost ? tr("Gezeigte Werte sind veraltet.") + u'\n' : QString()) +
             (state == State::Offline ? tr("F11 verbindet mit der Steuerung.") : tr("F11 trennt die Verbindung.")));
  setAccessibleName(mFull);
  showText();
}

void Link_Status::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange) {
    showText();
  }
}

void Link_Status::showText() {
  mText->setText(fontMetrics().elidedText(mFull, Qt::ElideMiddle, cMostCharacters * fontMetrics().averageCharWidth()));
}
