#pragma once

#include "app/Action_Table.h"

#include <QHash>
#include <QList>
#include <QObject>

class QAction;
class QMainWindow;
class QMenu;

/// The actions of a main window, made from the action table, in its menus and tool bars, each connected to the window's
/// slot of its name. Menus, bars and actions belong to the window.
class Window_Actions : public QObject {
  Q_OBJECT

public:
  explicit Window_Actions(QMainWindow& window);

  /// By slot name, such as "onMenuFileNew"; must be one of the table.
  [[nodiscard]] QAction* action(const QString& slot) const { return mActions.value(slot); }
  /// Of a menu bar's menu, or one that a row opens.
  [[nodiscard]] QMenu& menu(Action_Menu id) const { return *mMenus.value(id); }

  /// Enables, disables, checks and explains every action.
  void update(const Action_State& state);

signals:
  /// A menu is about to be seen, so everything in it must be up to date.
  void updateWanted();

private:
  [[nodiscard]] QAction* makeAction(QMainWindow& window, const Action_Row& row);
  [[nodiscard]] QMenu* makeSubmenu(QMainWindow& window, const Action_Row& row);
  [[nodiscard]] QMenu* menuOf(QMainWindow& window, Action_Menu id);
  void addTo(QMainWindow& window, const Action_Row& row, QAction* action);
  void showIcon(QAction& action, const QString& name);

  QHash<QString, QAction*> mActions;
  QHash<Action_Menu, QMenu*> mMenus;
  QHash<Action_Menu, int> mLastGroups;
  QHash<const QAction*, QString> mIconNames; ///< as they are shown
};
