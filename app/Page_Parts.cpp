#include "app/Page_Parts.h"

#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

namespace {
constexpr int cHeadingPoints = 12;
constexpr int cGap = 8;

/// Without the action's access key, which belongs to its menu.
QPushButton* makeButton(QAction* action) {
  auto* const button = new QPushButton(action->icon(), action->iconText());
  button->setAutoDefault(true); // so that Enter presses it
  const auto follow = [button, action] {
    button->setEnabled(action->isEnabled());
    button->setToolTip(action->toolTip());
    button->setStatusTip(action->statusTip());
  };
  follow();
  QObject::connect(action, &QAction::changed, button, follow);
  QObject::connect(button, &QPushButton::clicked, action, &QAction::trigger);
  return button;
}

} // namespace

QLabel* Page_Parts::makeHeading(const QString& text) {
  auto* const label = new QLabel(text);
  setHeadingFont(*label);
  return label;
}

void Page_Parts::setHeadingFont(QLabel& label) {
  QFont font = label.font();
  font.setBold(true);
  font.setPointSize(cHeadingPoints);
  label.setFont(font);
}

QHBoxLayout* Page_Parts::makeButtons(const QList<QAction*>& actions) {
  auto* const row = new QHBoxLayout;
  row->setSpacing(cGap);
  for (QAction* const action : actions) {
    row->addWidget(makeButton(action));
  }
  row->addStretch();
  return row;
}

void Page_Parts::setContent(QWidget& page, QWidget* content) {
  auto* const area = new QScrollArea;
  area->setFrameShape(QFrame::NoFrame);
  area->setWidgetResizable(true);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidget(content);
  auto* const layout = new QVBoxLayout(&page);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(area);
}
