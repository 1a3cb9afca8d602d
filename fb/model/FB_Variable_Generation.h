#pragma once

#include "db/Edit_Result.h"

#include <QList>
#include <QStringList>
#include <QUuid>

class DB_FB_Control;
class Project_Session;

/// Makes group addresses for the pins of blocks and binds them: in a main group that is called like the page, in a
/// middle group that is called like the block, one address for each pin that is called like block and pin and has the
/// pin's usual type. Pins that are connected stay so: where an internal variable was, the address takes its place at
/// all ends, and the inputs that an output leads to by an address follow it.
namespace FB_Variable_Generation {

/// What becomes of a pin that is bound, and of an address of that name that is there.
enum class Conflict {
  Overwrite, ///< the pin is bound anew, to the address that is there or to a new one
  Append,    ///< the pin stays as it is
  Fail,      ///< nothing is done at all
};

/// Whether variables can be made for pins of blocks of that type.
[[nodiscard]] bool offers(int type);

/// What is in the way at a block: "Eingang 1: 1/2/3 Licht".
struct Existing {
  QUuid mBlock;
  QStringList mVariables; ///< inputs first; empty for none
};
/// For each of the blocks, in their order.
[[nodiscard]] QList<Existing> existing(const Project_Session& session, const QList<QUuid>& blocks);

struct Request {
  QUuid mBlock;
  Conflict mConflict = Conflict::Fail;
};

struct Result : Edit_Result {
  int mBlocks = 0;    ///< that have variables now for which they were asked
  int mAddresses = 0; ///< new ones
};

/// In the order of the requests, one undo step. Types that offer none are left out. Refuses before the first change
/// what is not there, what may not be overwritten ("Variable bereits vorhanden"), and what the tree has no room for.
Result generate(Project_Session& session, const QList<Request>& requests);

} // namespace FB_Variable_Generation
