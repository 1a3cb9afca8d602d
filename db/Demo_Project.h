#pragma once

#include <QString>

class Project_Session;

/// The demo project, a two-storey house, built from the readable text ":/demo/demo.json".
namespace Demo_Project {

/// Where the studio keeps the user's demo project: in the application's own data folder.
[[nodiscard]] QString defaultPath();

/// Makes the project file at `path`, and its folder, and leaves the project open. False with a German `error`.
[[nodiscard]] bool build(Project_Session& session, const QString& path, QString& error);

} // namespace Demo_Project
