#pragma once

#include "db/Edit_Result.h"

#include <QString>
#include <QUuid>

class Project_Session;

/// The edits of a project that are no page's own and no address's (`Address_Edits`), each one undo step (or part of the
/// one that is open). Menu, view, assistant and test call these; all of them refuse in the operating mode. Texts lose
/// the bytes 0x02 and 0x03.
namespace Project_Edits {

/// Longest name of a page, in characters.
inline constexpr qsizetype cNameLimit = 255;

/// A name of 1 to 255 characters in one line.
[[nodiscard]] Edit_Result checkPageName(const QString& caption);
/// Renames a logic or visualisation page.
Edit_Result renamePage(Project_Session& session, const QUuid& guid, const QString& caption);

/// Where the building stands: latitude -90..90 and longitude -180..180 in degrees, north and east positive.
Edit_Result setGeoposition(Project_Session& session, double latitude, double longitude);

} // namespace Project_Edits
