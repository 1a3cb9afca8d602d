#pragma once

#include <QString>

class Project_Session;

/// Brings the addresses of an ETS export file into the project: reads, imports, and tells in words what came of it.
namespace Ets_Import {

struct Outcome {
  bool mIsDone = false;
  QString mText; ///< German, several lines: what was imported and what was not, or why nothing was
};

/// One undo step.
[[nodiscard]] Outcome run(Project_Session& session, const QString& path);

} // namespace Ets_Import
