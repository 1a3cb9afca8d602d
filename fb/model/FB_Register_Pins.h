#pragma once

#include "db/DB_FB_Control.h"
#include "fb/model/FB_Type.h"

#include <span>
#include <vector>

/// The pins that the Modbus registers of a block make, behind those that its type declares: what is read is an output,
/// what is written an input, each value of a register one pin, active or not.
namespace FB_Register_Pins {

/// How many of a side, at most `limit`.
[[nodiscard]] size_t count(const DB_FB_Control& block, FB_Side side, size_t limit);
/// Of one side, in the order of the registers, at most `limit`; they take the bindings of `old` over in their order.
[[nodiscard]] std::vector<DB_FB_Pin> build(const DB_FB_Control& block, FB_Side side, std::span<const DB_FB_Pin> old,
                                           size_t limit);
[[nodiscard]] FB_Side sideOf(const DB_Modbus_Register& item);

} // namespace FB_Register_Pins
