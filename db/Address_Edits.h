#pragma once

#include "base/Datapoint_Id.h"
#include "base/Group_Address.h"
#include "db/Edit_Result.h"

#include <QList>
#include <QString>
#include <QUuid>
#include <QVariant>

class Address_Usage;
class Project_Session;

/// The edits of the project's group addresses, each one undo step (or part of the one that is open). Menu, view,
/// import, assistant and test call these; all of them refuse in the operating mode. Groups are named by their key.
namespace Address_Edits {

/// Longest name and description, in characters.
inline constexpr qsizetype cNameLimit = 255;
inline constexpr qsizetype cDescriptionLimit = 4000;

enum class Field {
  Name,        ///< of any group; text in one line
  Description, ///< of any group; text
  Type,        ///< of an address; text as `Datapoint_Id::parse` reads it, empty for none
  ReadAtStart, ///< of an address; bool, as the three below
  ReadCyclic,
  Write,
  Active,
};

/// What a group or address is made with.
struct Contents {
  QString mName;
  QString mDescription;
  Datapoint_Id mDpt;
};

/// Whether `set` would take the value, for telling it while it is typed.
[[nodiscard]] Edit_Result check(Field field, const QVariant& value);

/// Sets one field of all of them. Of a main or middle group a field that only addresses have is set for every address
/// below it.
Edit_Result set(Project_Session& session, const QList<QUuid>& keys, Field field, const QVariant& value);

/// Makes a group address, and the groups it needs. Refuses a number that is taken or that no bus can carry.
Edit_Result add(Project_Session& session, const Group_Address& address, const Contents& contents,
                QUuid* added = nullptr);
Edit_Result addMainGroup(Project_Session& session, int main, const Contents& contents, QUuid* added = nullptr);
Edit_Result addMiddleGroup(Project_Session& session, int main, int middle, const Contents& contents,
                           QUuid* added = nullptr);

/// The first free number at or after `from`, else the first free one at all: of a main group, of a middle group in a
/// main group, of an address in a middle group (0/0/0 is never offered). -1 when all are taken.
[[nodiscard]] int freeMain(Project_Session& session, int from = 0);
[[nodiscard]] int freeMiddle(Project_Session& session, int main, int from = 0);
[[nodiscard]] int freeSub(Project_Session& session, int main, int middle, int from = 0);

/// How many numbers are free: of addresses in a middle group (without 0/0/0), of middle groups in a main group, of main
/// groups for a null key.
[[nodiscard]] int freeCount(Project_Session& session, const QUuid& group);

/// What `remove` would delete.
struct Deletion {
  qsizetype mAddresses = 0;
  qsizetype mUses = 0;       ///< bindings to these addresses
  qsizetype mRecordings = 0; ///< recordings of them
};
[[nodiscard]] Deletion whatRemoves(Project_Session& session, const QList<QUuid>& keys, const Address_Usage& usage);

/// Deletes them with everything below. Bindings keep their copy and point to nothing then, as recordings do.
Edit_Result remove(Project_Session& session, const QList<QUuid>& keys);

/// Gives an address another number, also in another group, which is made when it is missing; a group is renumbered with
/// everything below. `text` is "1/2/3" for an address, "1/2/*" or "1/2" for a middle group, "1/*" or "1" for a main
/// group. The key stays, so bindings follow.
Edit_Result renumber(Project_Session& session, const QUuid& key, const QString& text);
/// Whether `renumber` would do it.
[[nodiscard]] Edit_Result checkNumber(Project_Session& session, const QUuid& key, const QString& text);

/// Moves addresses into a middle group and middle groups into a main group. They keep their number where it is free
/// there, else get the next free one.
Edit_Result move(Project_Session& session, const QList<QUuid>& keys, const QUuid& target);

} // namespace Address_Edits
