#pragma once

#include "fb/model/FB_Type.h"

#include <QString>

/// The help page of a block type: its fragment, with what the declaration says between the purpose and the rest.
namespace FB_Help_Page {

/// What stands before the first <h2> of a fragment.
[[nodiscard]] QString purpose(const QString& fragment);
/// Paragraphs of the class "note" are remarks beside the matter.
[[nodiscard]] QString html(const FB_Type& type, const QString& fragment);

} // namespace FB_Help_Page
