#pragma once

#include <QString>

class ProjectDatabase;

/// What a new project holds: a first logic page, a visualisation page each in portrait and landscape, a default
/// connection.
namespace New_Project {

struct Options {
  QString mFbPageCaption;  ///< empty: "Programm 1"
  QString mConnectionIp;   ///< empty: 172.31.1.100
  QString mConnectionName; ///< empty: "Steuerung"
};

/// Fills an empty open store. No undo step: a project begins with it.
void fill(ProjectDatabase& database, const Options& options);

} // namespace New_Project
