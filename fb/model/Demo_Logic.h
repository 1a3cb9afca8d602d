#pragma once

#include <QJsonObject>
#include <QString>

class ProjectDatabase;

/// The logic of the demo project, told readably: each of "logicPages" has "blocks" with names of their own, which are
/// unique in the whole text, and "wires" between them.
///
///     { "name": "evening", "class": "FB_AND", "at": [352, 96], "title": "Abend", "params": ["2"],
///       "in": ["", "0/0/1"], "out": ["4/0/0"] }
///     "evening.0 -> light.1"     output 0 to input 1, perhaps on another page, through a variable
namespace Demo_Logic {

/// Puts the blocks onto the database's logic pages, which are those of the text in its order. False with a German
/// `error` when the text names what is not there; then no block is made. No undo step: a project begins with it.
[[nodiscard]] bool build(ProjectDatabase& database, const QJsonObject& demo, QString& error);

} // namespace Demo_Logic
