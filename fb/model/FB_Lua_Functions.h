#pragma once

#include <QList>
#include <QString>

#include <array>
#include <span>

/// A value that a function of the controller's scripts takes or gives. Texts are German and translated in the context
/// "FB_Lua_Functions".
struct FB_Lua_Value {
  const char* mName = ""; ///< as in the signature; empty: none
  const char* mText = "";
};

/// A function that the controller offers to scripts.
struct FB_Lua_Function {
  const char* mName = "";
  const char* mInserted = ""; ///< what the menu inserts
  const char* mText = "";     ///< one sentence without a point
  std::array<FB_Lua_Value, 9> mParameters = {};
  const char* mResult = "";  ///< what it returns; empty for nothing
  const char* mExample = ""; ///< lines of a script
};

/// Functions that belong together.
struct FB_Lua_Group {
  const char* mTitle = ""; ///< English, never translated, spelling included
  std::span<const FB_Lua_Function> mFunctions;
};

/// A function that a script may have and the controller calls.
struct FB_Lua_Callback {
  const char* mSignature = ""; ///< "onGlobalChanged(Id,Value)"
  const char* mOccasion = "";  ///< English, stands in the script as a comment
  const char* mText = "";      ///< German: when it is called
  const char* mLabel = "";     ///< signature in the menu where it is another one
};

/// The functions of the controller's scripts, once: menu, completion, tool tips, help and the assistant's reference
/// read them here.
namespace FB_Lua_Functions {

/// In the order of the menu.
[[nodiscard]] std::span<const FB_Lua_Group> groups();
[[nodiscard]] std::span<const FB_Lua_Callback> callbacks();
/// The title of their group, the last of the menu.
[[nodiscard]] QString callbackTitle();
/// Those that are highlighted in a script; not all of them.
[[nodiscard]] std::span<const char* const> highlighted();
/// The language's own words.
[[nodiscard]] std::span<const char* const> keywords();

/// Null for a name that is none.
[[nodiscard]] const FB_Lua_Function* find(const QString& name);
[[nodiscard]] const FB_Lua_Callback* findCallback(const QString& wanted);

/// "sys_timer_start(id,timeMs)"
[[nodiscard]] QString signature(const FB_Lua_Function& function);
/// "onCreate"
[[nodiscard]] QString name(const FB_Lua_Callback& callback);
[[nodiscard]] QString label(const FB_Lua_Callback& callback);
/// The empty function with its comment.
[[nodiscard]] QString inserted(const FB_Lua_Callback& callback);
/// Translates one of the texts.
[[nodiscard]] QString text(const char* germanText);

/// Rich text for a tool tip; empty for a name that is none.
[[nodiscard]] QString toolTip(const QString& name);
/// All of them, as a help page's HTML ("lua_functions.html", an anchor per name) and as plain text.
[[nodiscard]] QString html();
[[nodiscard]] QString plainText();

} // namespace FB_Lua_Functions
