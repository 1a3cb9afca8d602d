#pragma once

#include <QUuid>

class ProjectDatabase;

/// Pins and elements keep a copy of the address they are bound to, for drawing and for the controller. These bring the
/// copies up to date with the address tree; a binding whose address is gone keeps the copy it has.
namespace Binding_Refresh {

/// Every binding of the project.
void all(ProjectDatabase& database);
/// Those that are bound to the address of that key.
void one(ProjectDatabase& database, const QUuid& key);

} // namespace Binding_Refresh
