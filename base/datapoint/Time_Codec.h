#pragma once

#include "base/Datapoint_Type.h"
#include "base/Datapoint_Value.h"

#include <QByteArray>

/// Time of day, date, and both together (10.001, 11.001, 19.001). Payloads must have the type's length already.
namespace Time_Codec {

/// The flags of 19.001 as its value names them, from the highest bit on.
constexpr const char* cFlags[] = {"F", "WD", "NWD", "NY", "ND", "NDoW", "NT", "SUTI", "CLQ", "SRC"};

[[nodiscard]] std::optional<Datapoint_Value> decode(const Datapoint_Type& type, QByteArrayView payload, QString* error);
[[nodiscard]] std::optional<QByteArray> encode(const Datapoint_Type& type, const Datapoint_Value& value,
                                               QString* error);

} // namespace Time_Codec
