#include "ui/Filter_Edit.h"

#include "ui/Theme.h"

#include <QAction>
#include <QKeyEvent>

Filter_Edit::Filter_Edit(int delay, QWidget* parent) : QLineEdit(parent) {
  setPlaceholderText(tr("Suchen"));
  addAction(Theme::icon(QStringLiteral("search-white")), LeadingPosition);
  setClearButtonEnabled(true);
  mDelay.setSingleShot(true);
  mDelay.setInterval(delay);
  connect(&mDelay, &QTimer::timeout, this, [this] { emit filterChanged(text()); });
  connect(this, &QLineEdit::textChanged, &mDelay, qOverload<>(&QTimer::start));
}

void Filter_Edit::apply() {
  if (mDelay.isActive()) {
    mDelay.stop();
    emit filterChanged(text());
  }
}

bool Filter_Edit::isClearing(const QKeyEvent& event) const {
  return event.key() == Qt::Key_Escape && !text().isEmpty();
}

bool Filter_Edit::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride && isClearing(static_cast<QKeyEvent&>(*event))) {
    event->accept(); // before whoever closes something with Escape
    return true;
  }
  return QLineEdit::event(event);
}

void Filter_Edit::keyPressEvent(QKeyEvent* event) {
  if (isClearing(*event)) {
    clear();
    apply();
    return;
  }
  switch (event->key()) {
  case Qt::Key_Down:
  case Qt::Key_Return:
  case Qt::Key_Enter:
    apply();
    emit listWanted();
    return;
  default:
    QLineEdit::keyPressEvent(event);
  }
}
