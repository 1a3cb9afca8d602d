#pragma once

#include <QString>

#include <optional>

/// The titles that columns of tables with group addresses have, in files of ETS and in tables copied from elsewhere.
namespace Table_Titles {

enum class Column {
  Name,
  Main, ///< of a name or a number, as the two below
  Middle,
  Sub,
  Address,
  Description,
  Type,
  Central,
  Unfiltered,
  Security,
  ReadAtStart,
  ReadCyclic,
  Write,
  Active,
};

/// German or English, whatever its case, blanks and hyphens; empty when the text is no title.
[[nodiscard]] std::optional<Column> columnOf(const QString& title);

} // namespace Table_Titles
