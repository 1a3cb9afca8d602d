#pragma once

#include <QStringList>

/// The names of main and middle group in an ESF export, which writes them as "Main.Middle" and lets both hold points.
namespace Ets_Esf_Names {

struct Split {
  QString mMain;
  QStringList mMiddle; ///< one for each text
};

/// Splits the texts of one main group, one of each of its middle groups.
///
/// The main group's name is what all texts have in common in front of a point, as long as it can be: the more middle
/// groups, the surer. Of a single text it is what stands in front of the last point. A point beside a blank ("1. OG")
/// divides only where there is no other, and one that leaves a name empty only after those that do not. Where the texts
/// have no beginning in common, the first one's main name counts.
[[nodiscard]] Split split(const QStringList& texts);

} // namespace Ets_Esf_Names
