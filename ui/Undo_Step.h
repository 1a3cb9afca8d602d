#pragma once

#include <QString>

class History;

/// Undo and redo as the user is told of them.
namespace Undo_Step {

/// Takes the last step back; what was done, or why nothing was, as a German sentence for the status bar.
[[nodiscard]] QString undo(History& history);
/// Does the step that was taken back again.
[[nodiscard]] QString redo(History& history);

} // namespace Undo_Step
