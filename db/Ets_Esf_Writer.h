#pragma once

#include "db/Ets_Write_Result.h"

#include <QString>

class Address_Tree;
class QIODevice;

/// Writes the group addresses as an ESF ("OPC export") with English type texts.
///
/// The format tells names, addresses and the sizes of types. What it does not know is told: descriptions, the
/// attributes of ETS, exact types, groups without addresses. Tabs and line breaks in names become blanks.
namespace Ets_Esf_Writer {

[[nodiscard]] Ets_Write_Result write(const Address_Tree& tree, const QString& projectName, QIODevice& device);

} // namespace Ets_Esf_Writer
