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
    QAction* const action = row.mSubmenu ? makeSubmenu(window, row)->menuAction() : makeAction(window, row);
    action->setObjectName(QString::fromLatin1(row.mSlot));
    action->setText(Action_Table::menuText(row));
    action->setIconText(Action_Table::barText(row));
    showIcon(*action, Action_Table::iconName(row));
    action->setShortcut(QKeySequence(QString::fromLatin1(row.mKeys), QKeySequence::PortableText));
    if (Action_Table::isOfFocus(row)) {
      // Only told here: who has the focus takes these keys itself, and two takers would leave both without effect.
      action->setShortcutContext(Qt::WidgetShortcut);
    }
    action->setCheckable(row.mCheck != Action_Check::None);
    // Only macOS would move some of them to a menu of its own by their text.
    action->setMenuRole(QAction::NoRole);
    addTo(window, row, action);
    mActions.insert(action->objectName(), action);
  }
}

QAction* Window_Actions::makeAction(QMainWindow& window, const Action_Row& row) {
  auto* const action = new QAction(&window);
  if (!*row.mMissing) {
    connectSlot(action, window, row.mSlot);
  }
  return action;
}

QMenu* Window_Actions::makeSubmenu(QMainWindow& window, const Action_Row& row) {
  auto* const submenu = new QMenu(&window);
  submenu->setToolTipsVisible(true);
  mMenus.insert(*row.mSubmenu, submenu);
  return submenu;
}

QMenu* Window_Actions::menuOf(QMainWindow& window, Action_Menu id) {
  QMenu*& menu = mMenus[id];
  if (!menu) {
    menu = window.menuBar()->addMenu(Action_Table::menuTitle(id));
    connect(menu, &QMenu::aboutToShow, this, &Window_Actions::updateWanted);
  }
  return menu;
}

void Window_Actions::addTo(QMainWindow& window, const Action_Row& row, QAction* action) {
  // Kept by the window as well: its shortcut works while the menu bar is hidden.
  window.addAction(action);
  QMenu* const target = menuOf(window, row.mMenu);
  int& lastGroup = mLastGroups[row.mMenu];
  if (row.mGroup != lastGroup) {
    target->addSeparator();
    lastGroup = row.mGroup;
  }
  target->addAction(action);
  if (row.mBar != Action_Bar::None) {
    bar(window, row.mBar)->addAction(action);
  }
}

void Window_Actions::showIcon(QAction& action, const QString& name) {
  if (mIconNames.value(&action) != name) {
    mIconNames.insert(&action, name);
    action.setIcon(Theme::icon(name));
  }
}

void Window_Actions::update(const Action_State& state) {
  for (const Action_Row& row : Action_Table::rows()) {
    QAction* const action = mActions.value(QString::fromLatin1(row.mSlot));
    action->setEnabled(Action_Table::whyDisabled(row, state).isEmpty());
    action->setText(Action_Table::menuText(row, state));
    action->setIconText(Action_Table::barText(row)); // else it would follow the text
    showIcon(*action, Action_Table::iconName(row, state));
    action->setStatusTip(Action_Table::statusTip(row, state));
    action->setToolTip(Action_Table::toolTip(row, state));
    action->setChecked(Action_Table::isChecked(row, state));
  }
}
