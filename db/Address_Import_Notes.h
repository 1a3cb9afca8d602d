#pragma once

#include "db/Address_Import_Row.h"
#include "db/Ets_Groups.h"

#include <QString>

#include <vector>

/// What an import's comparison tells of a row beside its values, in German.
namespace Address_Import_Notes {

/// Puts a sentence behind those that are there.
void add(QString& note, const QString& further);

/// "In 3 Verknüpfungen verwendet."
[[nodiscard]] QString uses(int uses);
/// Where else the file names the address, with another content; `lines` are those of all of them.
[[nodiscard]] QString variant(const Ets_Groups::Address& entry, const std::vector<int>& lines);
/// Behind the last variant that is shown: how many there are beyond it.
[[nodiscard]] QString further(qsizetype count);
/// What differs and has no column of its own in the table.
[[nodiscard]] QString flags(const Address_Import_Row& row);

} // namespace Address_Import_Notes
