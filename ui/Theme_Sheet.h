#pragma once

#include <QString>

/// The application's style sheet: what the style and its palette leave open. It names no colour, only roles.
namespace Theme_Sheet {

[[nodiscard]] QString text();

} // namespace Theme_Sheet
