#pragma once

#include "base/Datapoint_Type.h"
#include "base/Datapoint_Value.h"

#include <QByteArray>

/// The compounds whose parts are fields of bits, as `Part_Layout` declares them. Bits that no part has must be 0; the
/// bits of a part that is marked as not valid do not matter and are written as 0. Payloads must have the type's length.
namespace Bit_Codec {

[[nodiscard]] std::optional<Datapoint_Value> decode(const Datapoint_Type& type, QByteArrayView payload, QString* error);
[[nodiscard]] std::optional<QByteArray> encode(const Datapoint_Type& type, const Datapoint_Value& value,
                                               QString* error);

} // namespace Bit_Codec
