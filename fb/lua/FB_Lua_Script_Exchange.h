#pragma once

#include "fb/model/FB_Lua_Script_File.h"

#include <optional>

class App_Settings;
class QWidget;

/// Asks for a script file and its password, reads or writes it, and tells what went wrong.
namespace FB_Lua_Script_Exchange {

/// Empty when the user cancels, or was told why not.
[[nodiscard]] std::optional<FB_Lua_Script_File::Script> importScript(QWidget* parent, App_Settings& settings);
/// The path of the file that was written; empty for none. `name` is the suggestion, without folder and ending.
QString exportScript(QWidget* parent, App_Settings& settings, const FB_Lua_Script_File::Script& script,
                     const QString& name);

/// The two labels are crossed on purpose: a file to import is one that was exported.
[[nodiscard]] QString importFilter();
[[nodiscard]] QString exportFilter();

} // namespace FB_Lua_Script_Exchange
