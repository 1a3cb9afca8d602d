#pragma once

#include "db/DB_Project.h"
#include "db/Edit_Result.h"

#include <QString>

#include <vector>

class Project_Session;

/// The edit of the controllers of a group that runs the project together. Refuses in the operating mode.
namespace Controller_Edits {

/// Longest name, in characters.
inline constexpr qsizetype cNameLimit = 255;
/// Longest host name, in characters (RFC 1123).
inline constexpr qsizetype cHostLimit = 253;

enum class Field { Number, Name, Address, Main };

/// What may not be in a list of controllers.
struct Fault {
  int mRow = 0;
  Field mField = Field::Number;
  QString mText; ///< German sentence: the value and what is allowed
};

/// In the order of the rows. Numbers from 1 up that occur once, names in one line, addresses, exactly one main
/// controller; an empty list is right.
[[nodiscard]] std::vector<Fault> faultsOf(const std::vector<DB_Controller>& controllers);
/// An IPv4 address, an IPv6 address in brackets or a host name, optionally with ":" and a port 1 to 65535.
[[nodiscard]] bool isAddress(const QString& address);

/// Replaces the list, as one undo step; refuses with the first fault. Pages keep the number of the controller that
/// executes them, also when it is no longer there.
Edit_Result setControllers(Project_Session& session, std::vector<DB_Controller> controllers);

} // namespace Controller_Edits
