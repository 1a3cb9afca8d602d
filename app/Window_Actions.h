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
  [[nodiscard]] QMenu* submenu(const QString& name) const;

  /// Enables, disables and explains every action.
  void update(const Action_State& state);

private:
  void addTo(QMainWindow& window, const Action_Row& row, QAction* action);
  [[nodiscard]] QMenu* menu(QMainWindow& window, Action_Menu id);

  QHash<QString, QAction*> mActions;
  QHash<int, QMenu*> mMenus;
  QHash<int, int> mLastGroups; ///< of each menu
};
