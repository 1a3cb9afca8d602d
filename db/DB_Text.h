#pragma once

#include <QString>

/// Texts that come from outside (typed, pasted, imported) on their way into a record.
namespace DB_Text {

/// Without the marker bytes 0x02 and 0x03 and other control characters but tab and line break.
[[nodiscard]] QString clean(const QString& text);

/// As `clean`, with a blank for each line break and tab, and no white space at the ends.
[[nodiscard]] QString singleLine(const QString& text);

/// As rich text that shows the same: mark-up is none, lines stay lines, and two blanks do not become one.
[[nodiscard]] QString rich(const QString& text);

/// True when both are the same but for the kind and number of white space.
[[nodiscard]] bool isSameLine(const QString& a, const QString& b);

} // namespace DB_Text
