#pragma once

#include <QKeySequence>
#include <QString>

#include <span>

enum class Action_Menu { File, Edit, View, Extras, Help };
enum class Action_Bar { None, Project, Edit };

/// When an action can be used.
enum class Action_When {
  Always,   ///< also on a kiosk, which has no other way out
  Window,   ///< with menus, project or not
  Open,     ///< a project is open
  Editable, ///< a project is open and may be edited
  Undo,
  Redo,
};

/// One command of the main window.
struct Action_Row {
  const char* mSlot = ""; ///< the window's slot, also the action's object name; a submenu's name when `mIsSubmenu`
  const char* mText = ""; ///< German, with the access key
  const char* mIcon = ""; ///< ":/icons/NAME.png"
  const char* mKeys = ""; ///< portable form; empty for none
  const char* mTip = "";  ///< German, one sentence without a point
  Action_Menu mMenu = Action_Menu::File;
  int mGroup = 0; ///< a line stands between the groups of a menu
  Action_Bar mBar = Action_Bar::None;
  Action_When mWhen = Action_When::Always;
  bool mIsSubmenu = false; ///< the window fills it
};

/// What the window's state is, as far as actions depend on it.
struct Action_State {
  bool mIsKiosk = false;
  bool mIsOpen = false;
  bool mIsOperating = false; ///< the operating mode is on
  bool mCanUndo = false;
  bool mCanRedo = false;
  QString mUndoText; ///< names of the steps
  QString mRedoText;
};

/// Every command of the main window, once: menus, tool bars, tips and shortcuts are made from these rows, in this
/// order.
namespace Action_Table {

[[nodiscard]] std::span<const Action_Row> rows();

[[nodiscard]] QString menuTitle(Action_Menu menu);
[[nodiscard]] QString barTitle(Action_Bar bar);
[[nodiscard]] QString text(const Action_Row& row);
/// For the tool bar and the status line; undo and redo name their step. Tells the reason when the action is disabled.
[[nodiscard]] QString tip(const Action_Row& row, const Action_State& state);
/// Why the action cannot be used now (German); empty when it can.
[[nodiscard]] QString whyDisabled(const Action_Row& row, const Action_State& state);

} // namespace Action_Table
