#pragma once

#include <QString>

#include <optional>
#include <span>

enum class Action_Menu {
  File,
  Edit,
  View,
  Program,
  Visu,
  Online,
  Extras,
  Help,
  // Submenus, below the row that opens them.
  LastProjects, ///< the window fills it, as `Language`
  Language,
  ProjectSetup,
  ProgramAlign,
  DesignerAlign,
  UnusedElements,
  Backup,
  Controller,
  Bars, ///< the window fills it
};

enum class Action_Bar { None, Project, Edit, View, Program, Visu, Online };

/// When an action can be used.
enum class Action_When {
  Always,   ///< also on a kiosk, which has no other way out
  Window,   ///< with menus, project or not
  Open,     ///< a project is open
  Editable, ///< a project is open and may be edited
  Undo,
  Redo,
  Page,   ///< a page is shown in a tab
  Pages,  ///< there is more than one tab
  Online, ///< the link to the controller stands
  // Of the logic page that is shown; those behind the first two only while it may be edited.
  Logic, ///< there is one
  Block, ///< a block is selected
  LogicEdit,
  TwoBlocks,    ///< at least two are selected
  ThreeBlocks,  ///< at least three
  BlocksOnGrid, ///< one is selected, and the grid is shown
  // What has the keyboard focus can do it.
  Cut,
  Copy,
  Paste,
  Delete,
  Duplicate,
  SelectAll,
};

/// Whether an action shows a check mark, and for what.
enum class Action_Check {
  None,
  Operating, ///< the operating mode is on
  Grid,      ///< the grid is shown
  Values,    ///< the values at the pins are shown
  KeepOutputs,
  Order, ///< the order of execution is shown
  Link,  ///< a link to the controller stands or is dialled
};

/// What an action that can be used changes.
enum class Action_Effect {
  None,       ///< it cannot be used yet
  Project,    ///< which project is open, what it holds or whether it is saved
  View,       ///< what the window shows, or who has the keyboard focus
  Edit,       ///< text, selection or clipboard of who has the keyboard focus
  Dialog,     ///< a window opens
  Menu,       ///< a submenu opens
  Mode,       ///< the operating mode
  Zoom,       ///< of the page that is shown
  Setting,    ///< a setting of the studio
  Window,     ///< the window closes
  Link,       ///< the link to the controller
  Controller, ///< what the controller holds or does
};

/// One command of the main window.
struct Action_Row {
  const char* mSlot = "";  ///< the window's slot, also the action's object name; a name of its own for a submenu
  const char* mText = "";  ///< German
  char16_t mAccessKey = 0; ///< a letter of the text, alone in its menu
  const char* mIcon = "";  ///< a resource
  const char* mTip = "";   ///< German, one sentence without a point
  Action_Menu mMenu = Action_Menu::File;
  int mGroup = 0;         ///< a line stands between the groups of a menu
  const char* mKeys = ""; ///< portable form; empty for none
  Action_Bar mBar = Action_Bar::None;
  const char* mBarText = ""; ///< German, when it is not the menu's text
  const char* mToolTip = ""; ///< German, when it is not made from tip and keys
  Action_When mWhen = Action_When::Always;
  Action_Effect mEffect = Action_Effect::None;
  std::optional<Action_Menu> mSubmenu; ///< the menu that the row opens
  Action_Check mCheck = Action_Check::None;
  const char* mMissing = ""; ///< German reason why the action cannot be used yet; it has no slot then
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
  bool mIsPageShown = false;
  int mTabCount = 0;
  bool mIsLogicShown = false; ///< a logic page is shown in a tab
  qsizetype mSelectedBlocks = 0;
  bool mIsGridShown = false;
  bool mAreValuesShown = false;
  bool mIsOrderShown = false;
  bool mKeepsOutputs = false;      ///< copied blocks keep the bindings of their outputs
  bool mIsLinkWanted = false;      ///< from dialling until the link is ended
  bool mIsOnline = false;          ///< the link to the controller stands
  bool mIsProgramOnItsWay = false; ///< to the controller
  QString mLinkText;               ///< how it stands, with the connection's name
  // Of what has the keyboard focus.
  bool mCanCut = false;
  bool mCanCopy = false;
  bool mCanPaste = false;
  bool mCanDelete = false;
  bool mCanDuplicate = false;
  bool mCanSelectAll = false;
};

/// Every command of the main window, once: menus, tool bars, tips and shortcuts are made from these rows, in this
/// order.
namespace Action_Table {

[[nodiscard]] std::span<const Action_Row> rows();

[[nodiscard]] QString menuTitle(Action_Menu menu); ///< of the menus of the menu bar
[[nodiscard]] QString barTitle(Action_Bar bar);
/// As the theme knows it.
[[nodiscard]] QString iconName(const Action_Row& row, const Action_State& state = {});
[[nodiscard]] QString text(const Action_Row& row);
/// With "&" before the access key; "Verbinden" with how the link stands behind its key.
[[nodiscard]] QString menuText(const Action_Row& row, const Action_State& state = {});
[[nodiscard]] QString barText(const Action_Row& row);
/// For the status line; undo and redo name their step. Tells the reason when the action is disabled.
[[nodiscard]] QString statusTip(const Action_Row& row, const Action_State& state);
[[nodiscard]] QString toolTip(const Action_Row& row, const Action_State& state);
/// True when it is a field or list with the keyboard focus that carries the action out, with a project or without.
[[nodiscard]] bool isOfFocus(const Action_Row& row);
[[nodiscard]] bool isChecked(const Action_Row& row, const Action_State& state);
/// Why the action cannot be used now (German); empty when it can.
[[nodiscard]] QString whyDisabled(const Action_Row& row, const Action_State& state);

} // namespace Action_Table
