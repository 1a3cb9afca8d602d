#pragma once

#include "base/Datapoint_Type.h"
#include "base/Datapoint_Value.h"

#include <QByteArray>

/// The types that are one text: characters, strings, codes of languages and regions, serial numbers. Payloads must have
/// the type's length already, if it has one.
namespace Text_Codec {

[[nodiscard]] std::optional<Datapoint_Value> decode(const Datapoint_Type& type, QByteArrayView payload, QString* error);
[[nodiscard]] std::optional<QByteArray> encode(const Datapoint_Type& type, const Datapoint_Value& value,
                                               QString* error);
/// Every character counts, also blanks at the ends; of codes and numbers blanks there do not matter.
[[nodiscard]] bool isFreeText(Datapoint_Format format);

} // namespace Text_Codec
