#pragma once

#include "db/DB_FB_Page.h"
#include "db/DB_Page_List.h"

/// What loading corrects in the records of the logic pages, once for all pages when a project opens, so that the saved
/// file does not depend on which pages were looked at. No undo step and no modified mark.
///
/// A block of a type that this studio does not know becomes a comment that keeps its original type and title; a studio
/// that knows the type gives them back.
namespace FB_Normaliser {

struct Result {
  int mUnknown = 0;  ///< blocks that are comments now, or still are
  int mRestored = 0; ///< blocks that got their own type back
};

Result normalise(const DB_Page_List<DB_FB_Page>& pages);

} // namespace FB_Normaliser
