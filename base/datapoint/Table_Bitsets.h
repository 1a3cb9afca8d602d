#pragma once

#include "base/Datapoint_Type.h"

/// The rows of the table of types for sets of eight bits: main number 21.
/// Columns as in `Datapoint_Type`.
namespace Datapoint_Table {

using F = Datapoint_Format;

// clang-format off
inline constexpr Datapoint_Type cBitsets[] = {
    {{21, 1}, "Allgemeiner Status", F::Bitset8, 8, "", 0, 31, 1,
     "0=Außer Betrieb|1=Fehler|2=Überschrieben|3=In Alarm|4=Alarm nicht quittiert"},
    {{21, 2}, "Gerätesteuerung", F::Bitset8, 8, "", 0, 7, 1,
     "0=Anwendung gestoppt|1=Eigene physikalische Adresse empfangen|2=Prüfmodus ein"},
    {{21, 100}, "Zwangssignal", F::Bitset8, 8, "", 0, 255, 1,
     "0=Zwangsanforderung|1=Schutz|2=Überversorgung|3=Nachlauf|4=Warmwasser normal|5=Warmwasser Legionellen|"
     "6=Raumheizung Komfort|7=Raumheizung Maximum"},
    {{21, 101}, "Zwangssignal Kühlen", F::Bitset8, 8, "", 0, 1, 1, "0=Zwangsanforderung"},
    {{21, 102}, "Status Raumheizungsregler", F::Bitset8, 8, "", 0, 255, 1,
     "0=Fehler|1=Sparbetrieb|2=Vorlauftemperatur begrenzt|3=Rücklauftemperatur begrenzt|4=Schnellaufheizung|"
     "5=Einschaltoptimierung|6=Ausschaltoptimierung|7=Sommerbetrieb"},
    {{21, 103}, "Status Solar-Warmwasserregler", F::Bitset8, 8, "", 0, 7, 1,
     "0=Fehler|1=Solarladung aktiv|2=Solarladung ausreichend"},
    {{21, 104}, "Brennstoffarten", F::Bitset8, 8, "", 0, 7, 1, "0=Öl|1=Gas|2=Festbrennstoff"},
    {{21, 105}, "Status Raumkühlregler", F::Bitset8, 8, "", 0, 1, 1, "0=Fehler"},
    {{21, 106}, "Status Lüftungsregler", F::Bitset8, 8, "", 0, 15, 1, "0=Fehler|1=Lüfter aktiv|2=Heizen|3=Kühlen"},
    {{21, 601}, "Fehlerinformation Lichtaktor", F::Bitset8, 8, "", 0, 127, 1,
     "0=Lasterkennung fehlgeschlagen|1=Unterspannung|2=Überstrom|3=Unterlast|4=Last defekt|5=Lampenausfall|"
     "6=Übertemperatur"},
    {{21, 1000}, "RF-Kommunikationsarten", F::Bitset8, 8, "", 0, 7, 1, "0=Asynchron|1=BiBat-Master|2=BiBat-Slave"},
    {{21, 1001}, "RF-Filterarten", F::Bitset8, 8, "", 0, 7, 1,
     "0=Domänenadresse|1=KNX-Seriennummer|2=Domänenadresse und Seriennummer"},
    {{21, 1002}, "Sicherheitsmeldung", F::Bitset8, 8, "", 0, 1, 1, "0=Sicherheitsfehler"},
    {{21, 1010}, "Kanalaktivierung (8 Kanäle)", F::Bitset8, 8, "", 0, 255, 1,
     "0=Kanal 1|1=Kanal 2|2=Kanal 3|3=Kanal 4|4=Kanal 5|5=Kanal 6|6=Kanal 7|7=Kanal 8"},
    {{21, 1200}, "Virtueller Kontakt", F::Bitset8, 8, "", 0, 255, 1,
     "0=Kontakt 1|1=Kontakt 2|2=Kontakt 3|3=Kontakt 4|4=Kontakt 5|5=Kontakt 6|6=Kontakt 7|7=Kontakt 8"},
    {{21, 1201}, "Phasenstatus", F::Bitset8, 8, "", 0, 7, 1, "0=Phase 1|1=Phase 2|2=Phase 3"},
};
// clang-format on

} // namespace Datapoint_Table
