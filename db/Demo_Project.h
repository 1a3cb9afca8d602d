#pragma once

#include <QString>

#include <functional>

class ProjectDatabase;
class Project_Session;
class QJsonObject;

/// The demo project, a two-storey house, built from the readable text ":/demo/demo.json".
namespace Demo_Project {

/// Where the studio keeps the user's demo project: in the application's own data folder.
[[nodiscard]] QString defaultPath();

/// Puts the blocks onto the logic pages, as the room can that knows them. False with a German error.
using Fill = std::function<bool(ProjectDatabase& database, const QJsonObject& demo, QString& error)>;

/// Makes the project file at `path`, and its folder, and leaves the project open. False with a German `error`.
[[nodiscard]] bool build(Project_Session& session, const QString& path, const Fill& logic, QString& error);

/// A demo project of an older studio has a connection without password, with which its stand-in lets nobody in: gives
/// it the one of a new project. A password that the user has set stays.
void completeConnection(ProjectDatabase& database);

} // namespace Demo_Project
