#pragma once

#include "base/Datapoint_Type.h"

/// The rows of the table of types for access data, texts, scenes, date and time: main numbers 15 to 19.
/// Columns as in `Datapoint_Type`.
namespace Datapoint_Table {

using F = Datapoint_Format;

// clang-format off
inline constexpr Datapoint_Type cTexts[] = {
    {{15, 0}, "Zugangsdaten", F::Access, 32, ""},
    {{16, 0}, "Text, 14 Zeichen (ASCII)", F::String_Ascii, 112, ""},
    {{16, 1}, "Text, 14 Zeichen (ISO 8859-1)", F::String_Latin1, 112, ""},
    {{17, 1}, "Szenennummer", F::Scene, 8, "", 0, 63, 1},
    {{18, 1}, "Szenensteuerung", F::Scene_Control, 8, "", 0, 63, 1, "0=Abrufen|1=Speichern"},
    {{19, 1}, "Datum und Uhrzeit", F::Date_Time, 64, "", 0, 0, 0,
     "0=Beliebiger Tag|1=Montag|2=Dienstag|3=Mittwoch|4=Donnerstag|5=Freitag|6=Samstag|7=Sonntag"},
};
// clang-format on

} // namespace Datapoint_Table
