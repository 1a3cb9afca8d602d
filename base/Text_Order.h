#pragma once

#include <QCollator>

/// How lists for the user are sorted by texts: as the language of the studio does, in any case, numbers by value ("Raum
/// 2" before "Raum 10").
namespace Text_Order {

/// A collator is costly; keep it for a whole sorting.
[[nodiscard]] QCollator collator();

} // namespace Text_Order
