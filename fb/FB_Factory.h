#pragma once

#include <QList>

class DB_FB_Control;
class FB_Base;
class FB_Block_Host;
class QWidget;

/// Makes the block widgets of a page from their records, each of its type's own class.
namespace FB_Factory {

/// Owned by the canvas. A record of a type that no class serves gets a comment that stands in for it. The addresses
/// cached at its pins are up to date.
[[nodiscard]] FB_Base* create(const DB_FB_Control& record, FB_Block_Host& host, QWidget* canvas);

/// The types that a class serves.
[[nodiscard]] QList<int> types();

} // namespace FB_Factory
