#pragma once

#include "db/Ets_Write_Result.h"

class Address_Tree;
class QIODevice;

/// Writes the group addresses as the XML that ETS5 and ETS6 write and read: every group a range, also an empty one.
///
/// The type is written as the import told it while that still names the same type, a guessed type not at all. Read
/// again, the file says what the tree says, but for guesses and for the attributes that ETS does not know.
namespace Ets_Xml_Writer {

[[nodiscard]] Ets_Write_Result write(const Address_Tree& tree, QIODevice& device);

} // namespace Ets_Xml_Writer
