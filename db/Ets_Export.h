#pragma once

#include "db/Edit_Result.h"
#include "db/Ets_Write_Result.h"

#include <QString>

class Project_Session;

/// Writes the project's group addresses into a file that ETS and other tools read: as ESF when the name ends in ".esf",
/// else as XML. The file is at every moment the whole old or the whole new one.
namespace Ets_Export {

[[nodiscard]] Edit_Result write(Project_Session& session, const QString& path, Ets_Write_Result& result);

} // namespace Ets_Export
