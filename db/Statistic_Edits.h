#pragma once

#include "db/DB_Statistic.h"
#include "db/Edit_Result.h"

#include <QList>
#include <QString>

#include <vector>

class ProjectDatabase;
class Project_Session;

/// The edits of the project's recordings, each one undo step. They refuse in the operating mode, and what may not be in
/// a recording. Indexes count from 0; one that the list does not have is refused. Names become one line; a recording
/// without one gets its address for it.
namespace Statistic_Edits {

using Recording = DB_Statistic::Recording;

/// Longest name, in characters.
inline constexpr qsizetype cNameLimit = 255;
inline constexpr int cMostTab = 99;
/// Of the least change.
inline constexpr double cMostValue = 1e9;
/// Seconds between two records: one year of 365 days.
inline constexpr int cMostSeconds = 31'536'000;
/// Seconds, of a fresh recording.
inline constexpr int cUsualSeconds = 60;

enum class Field { Name, Address, Tab, Trigger, Value, Interval, Controller };

/// What may not be in a recording.
struct Fault {
  int mRow = 0;
  Field mField = Field::Name;
  QString mText; ///< German sentence: the value and what is allowed
};

/// What is wrong with one field; empty when nothing is. Threshold and interval count with the trigger that has them.
[[nodiscard]] QString faultOf(const ProjectDatabase& database, const Recording& recording, Field field);
/// In the order of the rows; an empty list is right.
[[nodiscard]] std::vector<Fault> faultsOf(const ProjectDatabase& database, const std::vector<Recording>& recordings);
/// Whether the project has a controller of that number; 0 is the main one and always there.
[[nodiscard]] bool hasController(const ProjectDatabase& database, int number);

/// Those that record the address of that key, in their order.
[[nodiscard]] QList<int> recordingsOf(const ProjectDatabase& database, const QUuid& address);

/// At the end of the list.
Edit_Result add(Project_Session& session, Recording recording);
/// What is wrong already may stay so.
Edit_Result change(Project_Session& session, int index, Recording recording);
Edit_Result remove(Project_Session& session, const QList<int>& indexes);
Edit_Result move(Project_Session& session, int from, int to);
/// Replaces the list; refuses with the first fault.
Edit_Result setRecordings(Project_Session& session, std::vector<Recording> recordings);

} // namespace Statistic_Edits
