#pragma once

#include "db/DB_FB_Page.h"
#include "db/DB_Page_List.h"

#include <QStringList>

/// What loading corrects in the records of the logic pages, once for all pages when a project opens, so that the saved
/// file does not depend on which pages were looked at. No undo step and no modified mark.
///
/// A block of a type that this studio does not know becomes a comment that keeps its original type and title; a studio
/// that knows the type gives them back. Parameters and pins become as the type declares them (`FB_Pins::rebuild`).
/// Positions and sizes of pages that no edit would accept become the nearest that one would.
namespace FB_Normaliser {

struct Result {
  int mUnknown = 0;         ///< blocks that are comments now, or still are
  int mRestored = 0;        ///< blocks that got their own type back
  int mRebuilt = 0;         ///< blocks whose parameters or pins were not those of their type
  QStringList mMissingPins; ///< German, a line for each block that has fewer pins than its count says
};

/// Makes a block of an unknown type a comment that keeps its original type and title.
void makeStandIn(DB_FB_Control& block);

Result normalise(const DB_Page_List<DB_FB_Page>& pages);
/// One block, as pasting does with what comes from outside.
void normalise(DB_FB_Control& block, Result& result);

} // namespace FB_Normaliser
