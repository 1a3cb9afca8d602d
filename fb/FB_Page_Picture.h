#pragma once

#include <QImage>
#include <QList>
#include <QUuid>

class FB_Page;

/// Blocks of a page as a picture.
namespace FB_Page_Picture {

/// The blocks with the wires between them on the page's ground, as large as they are on the screen. Null when that
/// would be too large for a picture.
[[nodiscard]] QImage of(FB_Page& page, const QList<QUuid>& guids);

} // namespace FB_Page_Picture
