#pragma once

#include <QString>

#include <functional>

class QMenu;

/// The menu with the controller's functions and callbacks; choosing an entry hands its text over.
namespace FB_Lua_Command_Menu {

void fill(QMenu& menu, const std::function<void(const QString&)>& insert);

} // namespace FB_Lua_Command_Menu
