#pragma once

#include <QString>

#include <span>

/// One of the application's settings that a user sets in a dialog.
enum class Setting {
  AutosaveProject,
  ShowGrid,
  GridSize,
  FBWireStyle,
  FBCopyPasteKeepIO,
  FBDebugToolTip,
  ShowHsBlocks,
  LanguageUsr,
  AppDefaultConnection,
  DiscoveryAddresses,
  AskBeforeWriteBootProject,
  McpPort,
  McpDebug,
  McpCheckOrigin,
};

/// What the settings dialog shows together.
enum class Setting_Group { Project, Pages, Controller, Assistant };

/// One setting: everything that store, dialog and menus need to know of it.
struct Setting_Row {
  enum class Kind {
    Switch, ///< 0 or 1
    Number, ///< from minimum to maximum
    Choice, ///< number of one of the choices
    Text,   ///< empty by default
  };

  Setting mSetting = Setting::AutosaveProject;
  const char* mKey = ""; ///< in the settings store, below "Settings"
  Setting_Group mGroup = Setting_Group::Project;
  Kind mKind = Kind::Switch;
  int mDefault = 0;
  int mMinimum = 0;
  int mMaximum = 1;
  char16_t mAccessKey = 0;   ///< a letter of the label, alone among the settings
  const char* mLabel = "";   ///< German; of a switch a whole phrase
  const char* mTip = "";     ///< German: what it does, with unit and range
  const char* mUnit = "";    ///< behind a number
  const char* mChoices = ""; ///< German, separated by "|"
  const char* mUnread = "";  ///< German reason why nothing reads it yet; empty when something does
};

/// Every setting of the dialog, once, in its order.
namespace Setting_Table {

[[nodiscard]] std::span<const Setting_Row> rows();
[[nodiscard]] const Setting_Row& row(Setting setting);
[[nodiscard]] QString groupTitle(Setting_Group group);
/// Translates one of a row's texts.
[[nodiscard]] QString text(const char* germanText);
/// The value itself when the setting may have it, else the default.
[[nodiscard]] int valid(Setting setting, int value);

} // namespace Setting_Table
