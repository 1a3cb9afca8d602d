#pragma once

#include "fb/FB_Live_Value.h"

class Project_Session;
struct DB_Address_Binding;

/// The live values of the open project as a page shows them.
namespace FB_Session_Values {

[[nodiscard]] FB_Live_Value of(const Project_Session& session, const DB_Address_Binding& binding);

} // namespace FB_Session_Values
