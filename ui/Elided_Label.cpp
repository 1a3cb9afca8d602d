#include "ui/Elided_Label.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QHelpEvent>
#include <QPainter>
#include <QStyle>
#include <QToolTip>

Elided_Label::Elided_Label(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  auto* const copy = new QAction(tr("&Kopieren"), this);
  connect(copy, &QAction::triggered, this, [this] { QGuiApplication::clipboard()->setText(text()); });
  addAction(copy);
  setContextMenuPolicy(Qt::ActionsContextMenu);
}

QSize Elided_Label::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth(), QLabel::minimumSizeHint().height()};
}

QString Elided_Label::shownText() const {
  return fontMetrics().elidedText(text(), Qt::ElideMiddle, contentsRect().width());
}

bool Elided_Label::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QLabel::event(event);
  }
  const QString shown = shownText();
  QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shown == text() ? QString() : text(), this);
  return true;
}

void Elided_Label::paintEvent(QPaintEvent* event) {
  Q_UNUSED(event)
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shownText(),
                        foregroundRole());
}
