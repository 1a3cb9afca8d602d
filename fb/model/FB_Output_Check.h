#pragma once

#include "db/Address_Use_Model.h"

/// Finds group addresses and internal variables that more than one output of the logic pages writes: whichever block
/// is executed last wins.
namespace FB_Output_Check {

/// The outputs of all logic pages whose address or variable another output writes too, those of one beside each other:
/// in the order in which they are first met.
[[nodiscard]] Address_Use_Model::Rows rows(const ProjectDatabase& database);
/// How many different addresses and variables the rows are about.
[[nodiscard]] int subjects(const Address_Use_Model::Rows& rows);

} // namespace FB_Output_Check
