#pragma once

#include <QString>

class DB_Sqlite;

/// Files of the older layout: tables with plain names, DATA texts in clear, version text "0.000".
namespace DB_Legacy_Import {

/// The extension of older project files, with its point. A file of that name is brought over to ".zpro" first.
inline constexpr QStringView cExtension = u".zprj";

/// True when the older project table's record carries the version "0.000".
[[nodiscard]] bool isOlderLayout(DB_Sqlite& database);

/// Copies the file at `path` beside itself with the suffix ".import", then brings every table to its present name and
/// form. Nothing is undone when it fails half-way: the copy is the backup.
bool convert(DB_Sqlite& database, const QString& path);

} // namespace DB_Legacy_Import
