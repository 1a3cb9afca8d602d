#pragma once

#include "db/Address_Import_Plan.h"
#include "db/Edit_Result.h"
#include "db/Ets_Groups.h"

class Project_Session;
class ProjectDatabase;

/// Brings the groups of an ETS export into the address tree: first a comparison, which changes nothing, then the rows
/// of it that are ticked.
///
/// Addresses are matched by their number. Keys and the attributes of the studio (read at start, read cyclically, write,
/// active) of what the project has always stay, so what is bound to an address stays bound to it.
namespace Address_Import {

/// What becomes of the addresses that an ESF names as connected to an address.
enum class Connected {
  Ignore = 0,
  Describe = 1, ///< told in the description of what is new or changes anyway
};

struct Options {
  bool mKeepType = false;    ///< of addresses that have one
  bool mKeepComment = false; ///< name and description of the addresses and groups that the project has
  bool mImportNewOnly = false;
  Connected mConnected = Connected::Ignore;
};

struct Result {
  int mNew = 0; ///< addresses, as the two below
  int mChanged = 0;
  int mDeleted = 0;
  int mGroupsNew = 0; ///< main and middle groups, also those that only an address needed
  int mGroupsChanged = 0;
  int mSkipped = 0; ///< ticked, but the project changed since the comparison

  /// "114 Adressen neu, 3 geändert, 6 Gruppen neu, …": German, in one line.
  [[nodiscard]] QString toString() const;
};

/// New and changed ones are ticked, vanished ones and conflicts are not. An incoming value that the file's format
/// cannot tell is no change, and neither is an empty name or description or a guessed type of the size of the present
/// one.
[[nodiscard]] Address_Import_Plan compare(const ProjectDatabase& database, const Ets_Groups& groups,
                                          const Options& options = {});

/// One undo step. Refuses in the operating mode. New addresses get the groups they need, ticked or not. A row that does
/// not fit any more is skipped.
Edit_Result apply(Project_Session& session, const Address_Import_Plan& plan, Result& result);

} // namespace Address_Import
