#pragma once

#include "db/Working_Copy.h"

#include <QDateTime>
#include <QString>

/// What the user is told of a working state that a crash left of a project.
namespace Recovery_Text {

/// Names the project, and time, age and size of the working state beside those of the project file.
[[nodiscard]] QString question(const QString& projectPath, const Working_Copy::Left_Behind& found,
                               const QDateTime& now);
/// Another project is about to take the place of this one, of which a working state is left.
[[nodiscard]] QString overwriting(const QString& projectPath, const Working_Copy::Left_Behind& found,
                                  const QDateTime& now);
/// The working state cannot be opened; asks whether to open the project file without it.
[[nodiscard]] QString unreadable(const QString& workingPath, const QString& error);
/// Another studio has taken the working state meanwhile, or it was deleted.
[[nodiscard]] QString gone();

} // namespace Recovery_Text
