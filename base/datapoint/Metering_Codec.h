#pragma once

#include "base/Datapoint_Type.h"
#include "base/Datapoint_Value.h"

#include <QByteArray>

/// Readings of meters (229.001): a whole number of 32 bits, a byte that tells unit and power of ten, a byte of status.
///
/// Units: Wh, MWh, J, GJ, m³, kg, t, W, MW, J/h, GJ/h, m³/h, m³/min, m³/s, kg/h, "HCA" of heat cost allocators, and "1"
/// for plain counts. Payloads must have 6 bytes.
namespace Metering_Codec {

[[nodiscard]] std::optional<Datapoint_Value> decode(QByteArrayView payload, QString* error);
/// Of several codings of a unit the finest that can hold the value is taken, so that no digit is lost.
[[nodiscard]] std::optional<QByteArray> encode(const Datapoint_Value& value, QString* error);

} // namespace Metering_Codec
