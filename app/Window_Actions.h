#pragma once

#include "app/Action_Table.h"

#include <QHash>
#include <QList>
#include <QObject>

class App_Settings;
class QAction;
class QMainWindow;
class QMenu;

/// The actions of a main window, made from the action table, in its menus and tool bars, each connected to the window's
/// slot of its name. Menus, bars and actions belong to the window; the settings outlive it.
class Window_Actions : public QObject {
  Q_OBJECT

public:
  Window_Actions(QMainWindow& window, const App_Settings& settings);

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
  [[nodiscard]] bool isChecked(const Action_Row& row, const Action_State& state) const;

  const App_Settings& mSettings;
  QHash<QString, QAction*> mActions;
  QHash<Action_Menu, QMenu*> mMenus;
  QHash<Action_Menu, int> mLastGroups;
};
