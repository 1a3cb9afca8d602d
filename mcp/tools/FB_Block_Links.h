#pragma once

#include "fb/model/FB_Pin_Ref.h"

#include <QJsonArray>
#include <QJsonObject>

#include <vector>

class Address_Usage;
class DB_FB_Control;
struct DB_Address_Binding;
class ProjectDatabase;

/// What a block hangs on, as tools answer it.
namespace FB_Block_Links {

/// The bound pins, inputs first, each with its binding and what else is bound to it.
[[nodiscard]] QJsonArray boundPins(const ProjectDatabase& database, const Address_Usage& usage,
                                   const DB_FB_Control& block);
/// Uses that an answer lists in all: a block may have a thousand pins on one address. Each pin's count stays right.
inline constexpr qsizetype cMostInAll = 1000;
/// Adds to a pin's object what else is bound to the same, with the count. `room` is how many the answer has still room
/// for; it shrinks.
void addOthers(QJsonObject& object, const ProjectDatabase& database, const Address_Usage& usage, const FB_Pin_Ref& pin,
               qsizetype& room);

/// Pins of other blocks that share an internal variable with the block: those that an edit of it may release.
[[nodiscard]] std::vector<FB_Pin_Ref> sharingVariables(const Address_Usage& usage, const DB_FB_Control& block);
/// Pins that are bound to that internal variable; none for another binding.
[[nodiscard]] std::vector<FB_Pin_Ref> sharingVariable(const ProjectDatabase& database,
                                                      const DB_Address_Binding& binding);
/// Those of the pins that are bound to nothing now.
[[nodiscard]] QJsonArray released(const ProjectDatabase& database, const std::vector<FB_Pin_Ref>& pins);
/// Adds them to what is answered, when there are some.
void addReleased(QJsonObject& object, const ProjectDatabase& database, const std::vector<FB_Pin_Ref>& pins);

/// Elements of visualisation pages with a parameter that names the block.
[[nodiscard]] QJsonArray elementsOf(const ProjectDatabase& database, const QUuid& block);

} // namespace FB_Block_Links
