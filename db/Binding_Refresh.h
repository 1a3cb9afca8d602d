#pragma once

#include <QUuid>

class Address_Tree;
class DB_FB_Control;
class ProjectDatabase;

/// Pins and elements keep a copy of the address they are bound to, for drawing and for the controller. These bring the
/// copies up to date with the address tree; a binding whose address is gone keeps the copy it has.
namespace Binding_Refresh {

/// Every binding of the project.
void all(ProjectDatabase& database);
/// Those that are bound to the address of that key.
void one(ProjectDatabase& database, const QUuid& key);
/// Those of one block: its inputs, then its outputs, then the address that disables it.
void block(const Address_Tree& tree, DB_FB_Control& block);

} // namespace Binding_Refresh
