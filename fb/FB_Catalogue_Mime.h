#pragma once

#include <QString>

#include <optional>

class QDropEvent;
class QMimeData;

/// A block type that is dragged from the catalogue onto a logic page.
namespace FB_Catalogue_Mime {

[[nodiscard]] QString mimeType();

/// Writes the type id.
void fill(QMimeData& data, int type);

/// Checked, as it may come from outside; nothing when it is no id of a known block type.
[[nodiscard]] std::optional<int> typeOf(const QMimeData* data);

/// What is dragged over or dropped on a page: the current entry of the catalogue's tree where that is the source, else
/// what the data say. Nothing when it is no block type.
[[nodiscard]] std::optional<int> typeOf(const QDropEvent& event);

} // namespace FB_Catalogue_Mime
