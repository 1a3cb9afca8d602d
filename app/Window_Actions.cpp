#include "app/Window_Actions.h"

#include "ui/Theme.h"

#include <QAction>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMetaMethod>
#include <QToolBar>

namespace {

void connectSlot(QAction* action, QMainWindow& window, const char* slot) {
  const QMetaObject* const meta = window.metaObject();
  const int index = meta->indexOfSlot(QByteArray(slot) + "()");
  Q_ASSERT_X(index >= 0, "Window_Actions", slot);
  QObject::connect(action, QMetaMethod::fromSignal(&QAction::triggered), &window, meta->method(index));
}

QToolBar* bar(QMainWindow& window, Action_Bar id) {
  const QString name = QStringLiteral("ui:mToolBar%1").arg(static_cast<int>(id));
  auto* bar = window.findChild<QToolBar*>(name, Qt::FindDirectChildrenOnly);
  if (!bar) {
    bar = window.addToolBar(Action_Table::barTitle(id));
    bar->setObjectName(name);
  }
  return bar;
}

} // namespace

Window_Actions::Window_Actions(QMainWindow& window) : QObject(&window) {
  for (const Action_Row& row : Action_Table::rows()) {
    QAction* action = nullptr;
    if (row.mIsSubmenu) {
      auto* const submenu = new QMenu(Action_Table::text(row), &window);
      submenu->setToolTipsVisible(true);
      action = submenu->menuAction();
    } else {
      action = new QAction(Action_Table::text(row), &window);
      connectSlot(action, window, row.mSlot);
    }
    action->setObjectName(QString::fromLatin1(row.mSlot));
    action->setIcon(Theme::icon(QString::fromLatin1(row.mIcon)));
    action->setShortcut(QKeySequence(QString::fromLatin1(row.mKeys), QKeySequence::PortableText));
    addTo(window, row, action);
    mActions.insert(action->objectName(), action);
  }
}

QMenu* Window_Actions::submenu(const QString& name) const {
  return action(name)->menu();
}

QMenu* Window_Actions::menu(QMainWindow& window, Action_Menu id) {
  QMenu*& menu = mMenus[static_cast<int>(id)];
  if (!menu) {
    menu = window.menuBar()->addMenu(Action_Table::menuTitle(id));
  }
  return menu;
}

void Window_Actions::addTo(QMainWindow& window, const Action_Row& row, QAction* action) {
  // Kept by the window as well: its shortcut works while the menu bar is hidden.
  window.addAction(action);
  QMenu* const target = menu(window, row.mMenu);
  int& lastGroup = mLastGroups[static_cast<int>(row.mMenu)];
  if (row.mGroup != lastGroup) {
    target->addSeparator();
    lastGroup = row.mGroup;
  }
  target->addAction(action);
  if (row.mBar != Action_Bar::None) {
    bar(window, row.mBar)->addAction(action);
  }
}

void Window_Actions::update(const Action_State& state) {
  for (const Action_Row& row : Action_Table::rows()) {
    QAction* const action = mActions.value(QString::fromLatin1(row.mSlot));
    action->setEnabled(Action_Table::whyDisabled(row, state).isEmpty());
    const QString tip = Action_Table::tip(row, state);
    const QString keys = action->shortcut().toString(QKeySequence::NativeText);
    action->setStatusTip(tip);
    action->setToolTip(keys.isEmpty() ? tip : QStringLiteral("%1 (%2)").arg(tip, keys));
  }
}
