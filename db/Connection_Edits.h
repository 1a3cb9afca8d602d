#pragma once

#include "db/DB_Connections.h"
#include "db/Edit_Result.h"

#include <QList>
#include <QString>

#include <vector>

class Project_Session;

/// The edits of the project's list of connections, each one undo step. They refuse in the operating mode, and what may
/// not be in a connection. Indexes count from 0; one that the list does not have is refused. The selected connection
/// stays selected wherever it goes.
namespace Connection_Edits {

/// Longest text, in characters.
inline constexpr qsizetype cTextLimit = 255;

enum class Field { Name, Address, RelayMail, RelayDns, RelayHost };

/// What may not be in a connection.
struct Fault {
  Field mField = Field::Name;
  QString mText; ///< German sentence: the value and what is allowed
};

/// A name in one line; of a direct connection an address with or without port, of one through the relay service the
/// controller's DNS name there or the account, and the host as far as it is given.
[[nodiscard]] std::vector<Fault> faultsOf(const DB_Connections::ITEM& item);
/// What is wrong with one field; empty when nothing is.
[[nodiscard]] QString faultOf(const DB_Connections::ITEM& item, Field field);
/// A direct connection with the user that controllers have when they leave the factory, and a name that is free.
[[nodiscard]] DB_Connections::ITEM proposal(const DB_Connections& connections);

/// At the end of the list. The first one is selected, others when `isSelected`.
Edit_Result add(Project_Session& session, DB_Connections::ITEM item, bool isSelected = false);
Edit_Result change(Project_Session& session, int index, DB_Connections::ITEM item);
/// A copy with a name of its own, right behind.
Edit_Result duplicate(Project_Session& session, int index);
/// When the selected one goes, the one at its place is selected, or the last.
Edit_Result remove(Project_Session& session, const QList<int>& indexes);
Edit_Result move(Project_Session& session, int from, int to);
/// Which connection "connect" uses.
Edit_Result select(Project_Session& session, int index);

} // namespace Connection_Edits
