#pragma once

#include "base/Datapoint_Id.h"
#include "fb/model/FB_Pin_Ref.h"

#include <QString>

class DB_FB_Control;

/// Which type of data a pin usually takes or sends, and whether that of an address fits.
namespace FB_Pin_Types {

/// The declared group that the pin belongs to; null for a pin that no type declares.
[[nodiscard]] const FB_Pin_Group* group(const DB_FB_Control& block, FB_Side side, int index);
/// None for a pin that takes any.
[[nodiscard]] Datapoint_Id usual(const DB_FB_Control& block, FB_Side side, int index);

/// "Typ 9.001 (2 Byte) statt 1.001 (1 Bit)" where format or size differ; empty when they do not, or when one of them is
/// not known. Types of one main number fit each other.
[[nodiscard]] QString mismatch(const Datapoint_Id& usual, const Datapoint_Id& bound);

} // namespace FB_Pin_Types
