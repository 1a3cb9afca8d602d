#pragma once

#include "db/Project_Search.h"

/// What hits of a search are called, in the words of the user.
namespace Project_Search_Labels {

/// "Adresse", "Baustein", ...
[[nodiscard]] QString kind(Project_Search::Kind kind);
/// Name of the icon.
[[nodiscard]] QString icon(const ProjectDatabase& database, const Project_Search::Hit& hit);
/// "1/2/3 Licht", "Programm 1 / Und", "Visu"; of a variable the first place where it is used. A name that is the hit's
/// own text is left out where something else is left. Empty for what is gone.
[[nodiscard]] QString place(const ProjectDatabase& database, const Project_Search::Result& result,
                            const Project_Search::Hit& hit, const Address_Usage::Type_Name& typeName);
/// "Name", "Parameter 2", ...
[[nodiscard]] QString field(const Project_Search::Hit& hit);

} // namespace Project_Search_Labels
