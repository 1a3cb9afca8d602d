#pragma once

#include "base/Datapoint_Id.h"
#include "base/Datapoint_Type.h"
#include "db/Address_Values.h"

#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <optional>

/// Live values of group addresses as people read and type them. Pure functions.
namespace Address_Value_Text {

/// The type that values of this number are read by. Where only the main number is known and all of it have the same
/// layout: a number without unit, on and off. Empty when nothing can be read from the payload.
[[nodiscard]] std::optional<Datapoint_Type> typeOf(const Datapoint_Id& id);

/// Empty without a type, and for a payload that is none of it.
[[nodiscard]] std::optional<Datapoint_Value> decode(const Datapoint_Id& id, QByteArrayView payload);

/// "21,5 °C"; the payload as "0C 1A" when it could not be decoded.
[[nodiscard]] QString text(const Datapoint_Id& id, const Address_Value& value);
/// "0C 1A"
[[nodiscard]] QString hex(const QByteArray& payload);
/// "14:03:27", with the date in front of it when it is of another day than `now`; "veraltet" behind what is stale.
[[nodiscard]] QString time(const Address_Value& value, const QDateTime& now = QDateTime::currentDateTime());
/// All that is known, in sentences.
[[nodiscard]] QString toolTip(const Datapoint_Id& id, const Address_Value& value);

/// How the value of an address is typed.
enum class Input {
  Choice, ///< one of few values, each with a text
  Number, ///< in the type's unit
  Text,   ///< as Datapoint_Codec::fromText reads it
  Bytes,  ///< hexadecimal: there is no type
};
[[nodiscard]] Input inputOf(const Datapoint_Id& id);

/// What stands in the field for the value; empty when there is none to type.
[[nodiscard]] QString typed(const Datapoint_Id& id, const Address_Value& value);
/// The payload for what was typed; numbers with the decimal sign of the language or a point. On failure it is empty and
/// `error`, if given, tells in German what is wrong and what is allowed.
[[nodiscard]] std::optional<QByteArray> parse(const Datapoint_Id& id, const QString& typed, QString* error = nullptr);

} // namespace Address_Value_Text
