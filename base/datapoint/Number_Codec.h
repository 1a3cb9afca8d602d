#pragma once

#include "base/Datapoint_Type.h"
#include "base/Datapoint_Value.h"

#include <QByteArray>

/// The types that are one number: bits, whole and scaled numbers, floating point numbers, enumerations, sets of 8 bits,
/// scenes. Payloads must have the type's length already.
namespace Number_Codec {

/// Only the listed values are allowed.
[[nodiscard]] bool isEnumerated(Datapoint_Format format);
/// One byte stands for a fraction of the range, as in 5.001.
[[nodiscard]] bool isFractionOfByte(const Datapoint_Type& type);

[[nodiscard]] std::optional<Datapoint_Value> decode(const Datapoint_Type& type, QByteArrayView payload, QString* error);
[[nodiscard]] std::optional<QByteArray> encode(const Datapoint_Type& type, const Datapoint_Value& value,
                                               QString* error);
/// The number of this type as a text with a decimal point.
[[nodiscard]] QString toText(const Datapoint_Type& type, const Datapoint_Value::Scalar& number);

} // namespace Number_Codec
