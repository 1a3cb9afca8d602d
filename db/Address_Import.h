#pragma once

#include "db/Edit_Result.h"
#include "db/Ets_Groups.h"

class Project_Session;

/// Brings the groups of an ETS export into the address tree.
///
/// Addresses are matched by their number. What the project already has stays as it is, key, name and attributes; new
/// addresses and the groups they need are made. A main or middle group takes the name of the range that covers it and
/// no more, else of the innermost range around it that is no larger group's own; ranges without addresses make their
/// groups.
namespace Address_Import {

struct Result {
  int mAdded = 0;    ///< new group addresses
  int mExisting = 0; ///< already there, left as they were
  int mRepeated = 0; ///< the export names the address again; its first entry counts
};

/// One undo step. Refuses in the operating mode.
Edit_Result addNew(Project_Session& session, const Ets_Groups& groups, Result& result);

} // namespace Address_Import
