#pragma once

#include "base/Datapoint_Type.h"
#include "base/Datapoint_Value.h"

#include <QByteArray>

/// Between the payload of a telegram, a value and texts (KNX Standard, 3/7/2 "Datapoint Types"). Pure functions.
///
/// Payload: types under 8 bits are one byte, right-aligned; all others their bytes, most significant first.
/// Numbers are in the type's unit and are rounded to the nearest step. Nothing is clamped: a value out of the type's
/// range is refused in both directions, so are NaN and infinities, a payload of another length, values that an
/// enumeration lacks, reserved bits that are set, dates that do not exist. On failure the result is empty and `error`,
/// if given, tells in German what is wrong and what is allowed.
///
/// Simple types: a whole number where the step is whole, else a double (5.001: percent, exactly the byte's fraction).
/// 17.001: the number on the bus, 0..63. 21.x: the byte of bits. Texts: 4.x (one character), 16.x (up to 14, filled up
/// with NUL; what stands behind the first NUL is not looked at), 24.001 and 28.001 (their one NUL is the last byte),
/// 11.001 "2026-11-20" (1990..2089), 221.001 twelve hexadecimal digits, 231.001 "de-DE", 234.x two letters.
///
/// Compounds, with the parts that a mark in the payload can declare not valid in brackets; all numbers whole unless
/// said:
/// - 2.x control value; 3.x direction, step (0 stop, else 1..7); 6.020 A..E (as the bits stand), mode (0..2)
/// - 10.001 day (0 none, 1 Monday..7), time "23:59:59"
/// - 15.000 code (six decimal digits as text), E, P, D, C, index; 18.001 learn, scene; 26.001 inactive, scene
/// - 19.001 date "1900-01-01", time up to "24:00:00", day, flags (text: those set of
/// F,WD,NWD,NY,ND,NDoW,NT,SUTI,CLQ,SRC
///   with commas, "-" for none). The date is not checked against the calendar under ND, the time under NT.
/// - 27.001 mask, state (text: four hexadecimal digits); 217.001 magic, version, revision
/// - 225.001 and .002 time_ms, percent (a fraction); 225.003 time_min, tariff (0..254)
/// - 229.001 value (in the unit, a double), unit (text as in Metering_Codec.h), status (text: two hexadecimal digits)
/// - 232.600 r, g, b; 251.600 [r], [g], [b], [w]: raw 0..255; 235.001 [energy] in Wh, [tariff] (0..254)
/// - 238.001 inactive, no_storage, scene; 238.600 ballast_failure, lamp_failure, address; 239.001 [percent]
/// - 240.800 [height], [slats] in percent; 241.800 the same and one part of 0 or 1 for each state
/// - 242.600 [x, y], [brightness]: raw; 243.600 the same behind time_ms; 249.600 [time_ms], [kelvin], [brightness] raw
/// - 250.600 [ct_direction, ct_step], [b_direction, b_step]; 252.600 [r_direction, r_step] and so on for g, b, w;
///   253.600 for x, y, b; 254.600 for r, g, b without marks
namespace Datapoint_Codec {

[[nodiscard]] std::optional<Datapoint_Value> decode(const Datapoint_Type& type, QByteArrayView payload,
                                                    QString* error = nullptr);
[[nodiscard]] std::optional<QByteArray> encode(const Datapoint_Type& type, const Datapoint_Value& value,
                                               QString* error = nullptr);

/// The text for files and scripts, the same everywhere: decimal point, no unit, compounds as "key=value key=value" with
/// "-" for what is not valid. Fractions of a byte are rounded to four decimals.
[[nodiscard]] QString toText(const Datapoint_Type& type, const Datapoint_Value& value);
/// Reads that text; numbers may also be written as their German value text ("Ein"), parts in any order. What it returns
/// can be encoded.
[[nodiscard]] std::optional<Datapoint_Value> fromText(const Datapoint_Type& type, QStringView text,
                                                      QString* error = nullptr);

/// For people, in the chosen language's way to write numbers and dates: "21,5 °C", "Ein", "Speichern, Szene: 31".
/// Scenes are counted from 1.
[[nodiscard]] QString display(const Datapoint_Type& type, const Datapoint_Value& value);

} // namespace Datapoint_Codec
