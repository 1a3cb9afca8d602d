#pragma once

#include "base/Datapoint_Type.h"

/// The rows of the table of types for everything from main number 23 on, mostly compounds of several fields.
/// Columns as in `Datapoint_Type`.
namespace Datapoint_Table {

using F = Datapoint_Format;

inline constexpr double cInt64Min = -9223372036854775808.0;
inline constexpr double cInt64Max = 9223372036854775808.0; // the nearest double

// clang-format off
inline constexpr Datapoint_Type cCompounds[] = {
    {{23, 1}, "Ein-/Aus-Aktion", F::Enum2, 2, "", 0, 3, 1, "0=Aus|1=Ein|2=Aus/Ein|3=Ein/Aus"},
    {{23, 2}, "Alarmreaktion", F::Enum2, 2, "", 0, 2, 1, "0=Kein Alarm|1=Alarmposition oben|2=Alarmposition unten"},
    {{23, 3}, "Auf-/Ab-Aktion", F::Enum2, 2, "", 0, 3, 1, "0=Auf|1=Ab|2=Auf/Ab|3=Ab/Auf"},
    {{23, 102}, "HLK-Tasteraktion", F::Enum2, 2, "", 0, 3, 1,
     "0=Komfort/Absenkung|1=Komfort/Nichts|2=Absenkung/Nichts|3=Gebäudeschutz/Automatik"},
    {{24, 1}, "Text variabler Länge (ISO 8859-1)", F::String_Latin1, 0, ""},
    {{26, 1}, "Szeneninformation", F::Scene_Info, 8, "", 0, 63, 1, "0=Szene aktiv|1=Szene inaktiv"},
    {{27, 1}, "Sammelstatus Ein/Aus (16 Ausgänge)", F::Bitset32, 32, ""},
    {{28, 1}, "Text variabler Länge (UTF-8)", F::String_Utf8, 0, ""},
    {{29, 10}, "Wirkenergie 64 Bit (Wh)", F::Signed, 64, "Wh", cInt64Min, cInt64Max, 1},
    {{29, 11}, "Scheinenergie 64 Bit (VAh)", F::Signed, 64, "VAh", cInt64Min, cInt64Max, 1},
    {{29, 12}, "Blindenergie 64 Bit (VARh)", F::Signed, 64, "VARh", cInt64Min, cInt64Max, 1},
    {{217, 1}, "DPT-Version", F::Version, 16, ""},
    {{221, 1}, "Seriennummer", F::Serial, 48, ""},
    {{225, 1}, "Geschwindigkeit der Wertänderung", F::Scaling_Speed, 24, "100 ms"},
    {{225, 2}, "Schrittzeit der Wertänderung", F::Scaling_Speed, 24, "ms"},
    {{225, 3}, "Nächster Tarif", F::Tariff_Next, 24, "min"},
    {{229, 1}, "Zählerwert mit Einheit und Status", F::Metering, 48, ""},
    {{231, 1}, "Sprache und Region (ASCII)", F::Locale, 32, ""},
    {{232, 600}, "RGB-Farbe", F::Rgb, 24, "", 0, 255, 1},
    {{234, 1}, "Sprachcode (ISO 639-1)", F::Language, 16, ""},
    {{234, 2}, "Regionscode (ISO 3166-1)", F::Language, 16, ""},
    {{235, 1}, "Wirkenergie mit Tarif", F::Tariff_Energy, 48, "Wh", -2147483648.0, 2147483647.0, 1},
    {{238, 1}, "Szenenkonfiguration", F::Scene_Config, 8, "", 0, 63, 1},
    {{238, 600}, "DALI-Diagnose", F::Dali, 8, "", 0, 63, 1},
    {{239, 1}, "Prozentwert mit Gültigkeit", F::Flagged_Scaling, 16, "%", 0, 100, 100.0 / 255},
    {{240, 800}, "Kombinierte Position (Höhe und Lamelle)", F::Positions, 24, "%", 0, 100, 100.0 / 255},
    {{241, 800}, "Status Jalousie-/Rollladenaktor", F::Sab_Status, 32, "%", 0, 100, 100.0 / 255},
    {{242, 600}, "Farbe xyY", F::Xyy, 48, ""},
    {{243, 600}, "Farbübergang xyY", F::Xyy_Transition, 64, ""},
    {{249, 600}, "Übergang Helligkeit und Farbtemperatur", F::Brightness_Ct_Transition, 48, ""},
    {{250, 600}, "Relatives Dimmen von Helligkeit und Farbtemperatur", F::Brightness_Ct_Control, 24, ""},
    {{251, 600}, "RGBW-Farbe", F::Rgbw, 48, "", 0, 255, 1},
    {{252, 600}, "Relatives Dimmen RGBW", F::Rgbw_Control, 40, ""},
    {{253, 600}, "Relatives Dimmen xyY", F::Xyy_Control, 32, ""},
    {{254, 600}, "Relatives Dimmen RGB", F::Rgb_Control, 24, ""},
};
// clang-format on

} // namespace Datapoint_Table
