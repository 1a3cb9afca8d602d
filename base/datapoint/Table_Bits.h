#pragma once

#include "base/Datapoint_Type.h"

/// The rows of the table of types for single bits, controls with two bits and steps: main numbers 1 to 3.
/// Columns as in `Datapoint_Type`.
namespace Datapoint_Table {

using F = Datapoint_Format;

// clang-format off
inline constexpr Datapoint_Type cBits[] = {
    {{1, 1}, "Schalten", F::Bool, 1, "", 0, 1, 1, "0=Aus|1=Ein"},
    {{1, 2}, "Boolescher Wert", F::Bool, 1, "", 0, 1, 1, "0=Falsch|1=Wahr"},
    {{1, 3}, "Freigabe", F::Bool, 1, "", 0, 1, 1, "0=Gesperrt|1=Freigegeben"},
    {{1, 4}, "Rampe", F::Bool, 1, "", 0, 1, 1, "0=Keine Rampe|1=Rampe"},
    {{1, 5}, "Alarm", F::Bool, 1, "", 0, 1, 1, "0=Kein Alarm|1=Alarm"},
    {{1, 6}, "Binärwert", F::Bool, 1, "", 0, 1, 1, "0=Niedrig|1=Hoch"},
    {{1, 7}, "Schritt", F::Bool, 1, "", 0, 1, 1, "0=Verringern|1=Erhöhen"},
    {{1, 8}, "Auf/Ab", F::Bool, 1, "", 0, 1, 1, "0=Auf|1=Ab"},
    {{1, 9}, "Öffnen/Schließen", F::Bool, 1, "", 0, 1, 1, "0=Öffnen|1=Schließen"},
    {{1, 10}, "Start/Stopp", F::Bool, 1, "", 0, 1, 1, "0=Stopp|1=Start"},
    {{1, 11}, "Zustand", F::Bool, 1, "", 0, 1, 1, "0=Inaktiv|1=Aktiv"},
    {{1, 12}, "Invertierung", F::Bool, 1, "", 0, 1, 1, "0=Nicht invertiert|1=Invertiert"},
    {{1, 13}, "Sendeart beim Dimmen", F::Bool, 1, "", 0, 1, 1, "0=Start/Stopp|1=Zyklisch"},
    {{1, 14}, "Eingangsquelle", F::Bool, 1, "", 0, 1, 1, "0=Fest|1=Berechnet"},
    {{1, 15}, "Zurücksetzen", F::Bool, 1, "", 0, 1, 1, "0=Keine Aktion|1=Zurücksetzen"},
    {{1, 16}, "Quittierung", F::Bool, 1, "", 0, 1, 1, "0=Keine Aktion|1=Quittieren"},
    {{1, 17}, "Auslöser", F::Bool, 1, "", 0, 1, 1, "0=Auslösen|1=Auslösen"},
    {{1, 18}, "Belegung", F::Bool, 1, "", 0, 1, 1, "0=Nicht belegt|1=Belegt"},
    {{1, 19}, "Fenster/Tür", F::Bool, 1, "", 0, 1, 1, "0=Geschlossen|1=Offen"},
    {{1, 21}, "Logische Funktion", F::Bool, 1, "", 0, 1, 1, "0=ODER|1=UND"},
    {{1, 22}, "Szene A/B", F::Bool, 1, "", 0, 1, 1, "0=Szene A|1=Szene B"},
    {{1, 23}, "Betriebsart Rollladen/Jalousie", F::Bool, 1, "", 0, 1, 1,
     "0=Nur Auf/Ab (Rollladen)|1=Auf/Ab und Lamellenschritt (Jalousie)"},
    {{1, 24}, "Tag/Nacht", F::Bool, 1, "", 0, 1, 1, "0=Tag|1=Nacht"},
    {{1, 100}, "Kühlen/Heizen", F::Bool, 1, "", 0, 1, 1, "0=Kühlen|1=Heizen"},
    {{1, 1200}, "Verbraucher/Erzeuger", F::Bool, 1, "", 0, 1, 1, "0=Verbraucher|1=Erzeuger"},
    {{1, 1201}, "Energierichtung", F::Bool, 1, "", 0, 1, 1, "0=Positiv|1=Negativ"},
    {{2, 1}, "Schalten mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Aus|3=Zwang: Ein"},
    {{2, 2}, "Boolescher Wert mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Falsch|3=Zwang: Wahr"},
    {{2, 3}, "Freigabe mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Gesperrt|3=Zwang: Freigegeben"},
    {{2, 4}, "Rampe mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Keine Rampe|3=Zwang: Rampe"},
    {{2, 5}, "Alarm mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Kein Alarm|3=Zwang: Alarm"},
    {{2, 6}, "Binärwert mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Niedrig|3=Zwang: Hoch"},
    {{2, 7}, "Schritt mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Verringern|3=Zwang: Erhöhen"},
    {{2, 8}, "Richtung 1 mit Zwangsführung (Auf/Ab)", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Auf|3=Zwang: Ab"},
    {{2, 9}, "Richtung 2 mit Zwangsführung (Öffnen/Schließen)", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Öffnen|3=Zwang: Schließen"},
    {{2, 10}, "Start/Stopp mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Stopp|3=Zwang: Start"},
    {{2, 11}, "Zustand mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Inaktiv|3=Zwang: Aktiv"},
    {{2, 12}, "Invertierung mit Zwangsführung", F::Control, 2, "", 0, 3, 1,
     "0=Keine Zwangsführung|1=Keine Zwangsführung|2=Zwang: Nicht invertiert|3=Zwang: Invertiert"},
    {{3, 7}, "Relatives Dimmen", F::Step, 4, "", 0, 15, 1, "0=Dunkler|1=Heller"},
    {{3, 8}, "Relative Jalousiesteuerung", F::Step, 4, "", 0, 15, 1, "0=Auf|1=Ab"},
};
// clang-format on

} // namespace Datapoint_Table
