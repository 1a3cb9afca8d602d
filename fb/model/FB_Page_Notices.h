#pragma once

#include <QStringList>

#include <optional>

class DB_FB_Page;
class DB_Project;

/// What one has to know about a logic page while looking at it.
namespace FB_Page_Notices {

/// German sentences: that the page is switched off, where it runs when that is not where one would expect, and that
/// blocks have fewer pins than they count.
/// `connected` is the number of the controller to which the studio is connected.
[[nodiscard]] QStringList of(const DB_FB_Page& page, const DB_Project& project, std::optional<int> connected);

} // namespace FB_Page_Notices
