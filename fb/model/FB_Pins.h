#pragma once

#include "db/DB_FB_Control.h"
#include "fb/model/FB_Type.h"

#include <QPointF>

#include <memory>

/// Parameters and pins of a block's record, as its type declares them.
namespace FB_Pins {

/// Pins that a block has on a side at most, and that a parameter makes at most on both, whatever a record says. Far
/// above the range of any editor, which only limits what is typed.
inline constexpr int cMostPins = 1024;
/// How far that lets a parameter count: it may make several groups of pins, and others stand beside them.
[[nodiscard]] int mostPins(const FB_Type& type, int parameter);
/// Pins of a side that no parameter and no register makes.
[[nodiscard]] size_t fixedPins(const FB_Type& type, FB_Side side);

/// A fresh record of that type: default parameters, unbound pins, an identifier of its own. Null for an unknown type.
[[nodiscard]] std::unique_ptr<DB_FB_Control> makeBlock(int type, const QPointF& position);

/// Completes missing parameters with their defaults, corrects an impossible count (no 32-bit integer, fewer than the
/// type has at least) and makes the lists of pins anew. A count above `mostPins` is kept and makes that many. Pins
/// that stay keep their binding. A block whose type declares no pins keeps what its record holds, and so does one that
/// stands in for an unknown type.
void rebuild(DB_FB_Control& block);
/// True when `rebuild` has nothing to add, to correct or to take away; quick. The words of the pins may be those of
/// another language.
[[nodiscard]] bool isBuilt(const DB_FB_Control& block);

/// German sentence about a count above `mostPins`, or registers with too many values; empty when the block has all the
/// pins that its parameters and registers count.
[[nodiscard]] QString missingPins(const DB_FB_Control& block);
/// Long names of the bound pins that the block would lose with that value of the parameter, inputs first.
[[nodiscard]] QStringList lostBindings(const DB_FB_Control& block, int index, const QString& value);

[[nodiscard]] std::vector<DB_FB_Pin>& pins(DB_FB_Control& block, FB_Side side);
[[nodiscard]] const std::vector<DB_FB_Pin>& pins(const DB_FB_Control& block, FB_Side side);

} // namespace FB_Pins
