#pragma once

#include <QPixmap>

/// What is seen under the pointer while a block type is dragged from the catalogue.
namespace FB_Catalogue_Picture {

/// The block as it will stand on a page that is not zoomed, slightly transparent.
[[nodiscard]] QPixmap of(int type, qreal devicePixelRatio);

} // namespace FB_Catalogue_Picture
