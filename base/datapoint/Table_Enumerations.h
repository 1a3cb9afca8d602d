#pragma once

#include "base/Datapoint_Type.h"

/// The rows of the table of types for enumerations of one byte: main number 20.
/// Columns as in `Datapoint_Type`.
namespace Datapoint_Table {

using F = Datapoint_Format;

// clang-format off
inline constexpr Datapoint_Type cEnumerations[] = {
    {{20, 1}, "Uhrbetriebsart (Master/Slave)", F::Enum8, 8, "", 0, 2, 1, "0=Autonom|1=Slave|2=Master"},
    {{20, 2}, "Gebäudebetriebsart", F::Enum8, 8, "", 0, 2, 1,
     "0=Gebäude in Nutzung|1=Gebäude nicht genutzt|2=Gebäudeschutz"},
    {{20, 3}, "Belegungsart", F::Enum8, 8, "", 0, 2, 1, "0=Belegt|1=Bereitschaft|2=Nicht belegt"},
    {{20, 4}, "Priorität", F::Enum8, 8, "", 0, 3, 1, "0=Hoch|1=Mittel|2=Niedrig|3=Ohne"},
    {{20, 5}, "Betriebsart Beleuchtung", F::Enum8, 8, "", 0, 2, 1,
     "0=Normal|1=Anwesenheitssimulation|2=Nachtrundgang"},
    {{20, 6}, "Anwendungsbereich", F::Enum8, 8, "", 0, 50, 1,
     "0=Kein Fehler|1=System und allgemeine Funktionen|10=HLK allgemein|11=HLK Warmwasserheizung|"
     "12=HLK elektrische Direktheizung|13=HLK Endgeräte|14=HLK Lüftung und Klima|20=Beleuchtung|30=Sicherheit|"
     "40=Lastmanagement|50=Rollläden und Jalousien"},
    {{20, 7}, "Alarmklasse", F::Enum8, 8, "", 1, 3, 1, "1=Einfacher Alarm|2=Basisalarm|3=Erweiterter Alarm"},
    {{20, 8}, "Betriebsart Spannungsversorgung", F::Enum8, 8, "", 0, 2, 1,
     "0=Gesperrt (dauerhaft aus)|1=Freigegeben (dauerhaft ein)|2=Automatisch"},
    {{20, 11}, "Fehlerklasse System", F::Enum8, 8, "", 0, 18, 1,
     "0=Kein Fehler|1=Allgemeiner Gerätefehler|2=Kommunikationsfehler|3=Konfigurationsfehler|4=Hardwarefehler|"
     "5=Softwarefehler|6=Zu wenig nichtflüchtiger Speicher|7=Zu wenig flüchtiger Speicher|"
     "8=Speicheranforderung mit Größe 0|9=CRC-Fehler|10=Watchdog-Neustart erkannt|11=Ungültiger Opcode erkannt|"
     "12=Allgemeine Schutzverletzung|13=Maximale Tabellenlänge überschritten|14=Unbekannter Ladebefehl empfangen|"
     "15=Gruppenadresstabelle nicht sortiert|16=Ungültige Verbindungsnummer (TSAP)|"
     "17=Ungültige Gruppenobjektnummer (ASAP)|18=Typ des Gruppenobjekts zu lang"},
    {{20, 12}, "Fehlerklasse HLK", F::Enum8, 8, "", 0, 4, 1,
     "0=Kein Fehler|1=Fühlerfehler|2=Prozess- oder Reglerfehler|3=Aktorfehler|4=Sonstiger Fehler"},
    {{20, 13}, "Zeitverzögerung", F::Enum8, 8, "", 0, 25, 1,
     "0=Nicht aktiv|1=1 s|2=2 s|3=3 s|4=5 s|5=10 s|6=15 s|7=20 s|8=30 s|9=45 s|10=1 min|11=1,25 min|12=1,5 min|"
     "13=2 min|14=2,5 min|15=3 min|16=5 min|17=15 min|18=20 min|19=30 min|20=1 h|21=2 h|22=3 h|23=5 h|24=12 h|"
     "25=24 h"},
    {{20, 14}, "Windstärke (Beaufort)", F::Enum8, 8, "", 0, 12, 1,
     "0=Windstille|1=Leiser Zug|2=Leichte Brise|3=Schwache Brise|4=Mäßige Brise|5=Frische Brise|6=Starker Wind|"
     "7=Steifer Wind|8=Stürmischer Wind|9=Sturm|10=Schwerer Sturm|11=Orkanartiger Sturm|12=Orkan"},
    {{20, 17}, "Sensorauswahl", F::Enum8, 8, "", 0, 4, 1,
     "0=Inaktiv|1=Digitaleingang nicht invertiert|2=Digitaleingang invertiert|3=Analogeingang 0..100 %|"
     "4=Temperaturfühlereingang"},
    {{20, 20}, "Anschlussart des Aktors", F::Enum8, 8, "", 1, 2, 1, "1=Sensoranschluss|2=Regleranschluss"},
    {{20, 21}, "Bewölkung", F::Enum8, 8, "", 0, 9, 1,
     "0=Wolkenlos|1=Sonnig|2=Heiter|3=Leicht bewölkt|4=Wolkig|5=Bewölkt|6=Stark bewölkt|7=Fast bedeckt|8=Bedeckt|"
     "9=Himmel nicht erkennbar"},
    {{20, 22}, "Verhalten bei Spannungswiederkehr", F::Enum8, 8, "", 0, 2, 1,
     "0=Nicht senden|1=Immer senden|2=Senden bei Wertänderung während des Ausfalls"},
    {{20, 100}, "Brennstoffart", F::Enum8, 8, "", 0, 3, 1, "0=Automatik|1=Öl|2=Gas|3=Festbrennstoff"},
    {{20, 101}, "Brennerart", F::Enum8, 8, "", 0, 3, 1, "0=Reserviert|1=Einstufig|2=Zweistufig|3=Modulierend"},
    {{20, 102}, "HLK-Betriebsart", F::Enum8, 8, "", 0, 4, 1,
     "0=Automatik|1=Komfort|2=Standby|3=Nacht/Absenkung|4=Gebäudeschutz"},
    {{20, 103}, "Warmwasser-Betriebsart", F::Enum8, 8, "", 0, 4, 1,
     "0=Automatik|1=Legionellenschutz|2=Normal|3=Reduziert|4=Aus/Frostschutz"},
    {{20, 104}, "Lastpriorität", F::Enum8, 8, "", 0, 2, 1, "0=Keine|1=Gleitender Vorrang|2=Absoluter Vorrang"},
    {{20, 105}, "HLK-Reglerbetriebsart", F::Enum8, 8, "", 0, 20, 1,
     "0=Automatik|1=Heizen|2=Morgendliches Aufheizen|3=Kühlen|4=Nachtlüftung|5=Vorkühlen|6=Aus|7=Test|"
     "8=Notheizen|9=Nur Lüfter|10=Freie Kühlung|11=Eis|12=Maximales Heizen|13=Sparsames Heizen/Kühlen|"
     "14=Entfeuchten|15=Kalibrieren|16=Notkühlen|17=Notdampf|20=Keine Anforderung"},
    {{20, 106}, "HLK-Notbetrieb", F::Enum8, 8, "", 0, 5, 1,
     "0=Normal|1=Notfall Überdruck|2=Notfall Unterdruck|3=Notfall Spülen|4=Notabschaltung|5=Notfall Brand"},
    {{20, 107}, "Umschaltart Heizen/Kühlen", F::Enum8, 8, "", 0, 2, 1, "0=Automatik|1=Nur Kühlen|2=Nur Heizen"},
    {{20, 108}, "Ventilbetriebsart", F::Enum8, 8, "", 1, 5, 1,
     "1=Heizstufe A, normales Heizen|2=Heizstufe B, zweistufiges Heizen (A + B)|3=Kühlstufe A, normales Kühlen|"
     "4=Kühlstufe B, zweistufiges Kühlen (A + B)|5=Heizen/Kühlen mit Umschaltung"},
    {{20, 109}, "Klappenbetriebsart", F::Enum8, 8, "", 1, 4, 1, "1=Außenluft|2=Zuluft|3=Abluft|4=Abluft 2"},
    {{20, 110}, "Betriebsart Heizregister", F::Enum8, 8, "", 1, 3, 1,
     "1=Heizstufe A Ein/Aus|2=Heizstufe A stetig|3=Heizstufe B stetig"},
    {{20, 111}, "Lüfterbetriebsart", F::Enum8, 8, "", 0, 2, 1, "0=Steht|1=Dauerlauf|2=Intervallbetrieb"},
    {{20, 112}, "Master-/Slave-Betrieb", F::Enum8, 8, "", 0, 2, 1, "0=Autonom|1=Master|2=Slave"},
    {{20, 113}, "Status Raumsollwert", F::Enum8, 8, "", 0, 2, 1,
     "0=Normaler Sollwert|1=Alternativer Sollwert|2=Sollwert Gebäudeschutz"},
    {{20, 114}, "Zählerart", F::Enum8, 8, "", 0, 255, 1,
     "0=Sonstiges Gerät|1=Ölzähler|2=Stromzähler|3=Gaszähler|4=Wärmezähler|5=Dampfzähler|6=Warmwasserzähler|"
     "7=Wasserzähler|8=Heizkostenverteiler|10=Kältezähler (Rücklauf)|11=Kältezähler (Vorlauf)|"
     "12=Wärmezähler (Vorlauf)|13=Wärme- und Kältezähler|32=Trennschalter (Strom)|"
     "33=Absperrventil (Gas oder Wasser)|40=Abwasserzähler|41=Abfall|255=Keine Geräteart"},
    {{20, 115}, "Be-/Entfeuchtungsbetrieb", F::Enum8, 8, "", 0, 2, 1, "0=Inaktiv|1=Befeuchten|2=Entfeuchten"},
    {{20, 120}, "Art des Luftklappenantriebs", F::Enum8, 8, "", 1, 2, 1, "1=Luftklappe|2=VAV"},
    {{20, 121}, "Notbetriebsart", F::Enum8, 8, "", 0, 1, 1, "0=Ersatzwert|1=Letzten Zustand halten"},
    {{20, 122}, "Synchronisation beim Start", F::Enum8, 8, "", 0, 2, 1,
     "0=Position unverändert|1=Einmal schließen|2=Einmal öffnen"},
    {{20, 600}, "Verhalten bei Sperren/Entsperren", F::Enum8, 8, "", 0, 6, 1,
     "0=Aus|1=Ein|2=Keine Änderung|3=Wert laut Parameter|4=Gespeicherter Wert|5=Aktualisierter Wert|"
     "6=Wert vor dem Sperren"},
    {{20, 601}, "Verhalten bei Busspannungsausfall/-wiederkehr", F::Enum8, 8, "", 0, 4, 1,
     "0=Aus|1=Ein|2=Keine Änderung|3=Wert laut Parameter|4=Letzter Wert vor Busspannungsausfall"},
    {{20, 602}, "DALI-Überblendzeit", F::Enum8, 8, "", 0, 15, 1,
     "0=0 s (ohne)|1=0,7 s|2=1,0 s|3=1,4 s|4=2,0 s|5=2,8 s|6=4,0 s|7=5,7 s|8=8,0 s|9=11,3 s|10=16,0 s|11=22,6 s|"
     "12=32,0 s|13=45,3 s|14=64,0 s|15=90,5 s"},
    {{20, 603}, "Blinkbetrieb", F::Enum8, 8, "", 0, 2, 1, "0=Blinken gesperrt|1=Ohne Quittierung|2=Mit Quittierung"},
    {{20, 604}, "Lichtsteuerung", F::Enum8, 8, "", 0, 1, 1, "0=Automatisch|1=Manuell"},
    {{20, 605}, "Tastermodell Schalten", F::Enum8, 8, "", 1, 2, 1,
     "1=Ein Taster/Binäreingang|2=Zwei Taster/Binäreingänge"},
    {{20, 606}, "Tasteraktion", F::Enum8, 8, "", 0, 3, 1,
     "0=Inaktiv (nichts senden)|1=Aus senden|2=Ein senden|3=Invertierten Schaltstatus senden"},
    {{20, 607}, "Tastermodell Dimmen", F::Enum8, 8, "", 1, 4, 1,
     "1=Ein Taster, Ein/Aus wechselnd|2=Ein Taster, Ein/Heller|3=Ein Taster, Aus/Dunkler|4=Zwei Taster"},
    {{20, 608}, "Einschaltverhalten", F::Enum8, 8, "", 0, 2, 1,
     "0=Letzter Istwert|1=Wert laut Parameter|2=Letzter absoluter Sollwert"},
    {{20, 609}, "Lasttyp (Einstellung)", F::Enum8, 8, "", 0, 8, 1,
     "0=Automatisch|1=Phasenanschnitt (induktiv)|2=Phasenabschnitt (kapazitiv)|3=Nur Schalten (nicht dimmbar)|"
     "4=Einmalig automatisch|5=Kompaktleuchtstofflampe, Anschnitt|6=Kompaktleuchtstofflampe, Abschnitt|"
     "7=LED, Anschnitt|8=LED, Abschnitt"},
    {{20, 610}, "Lasttyp (erkannt)", F::Enum8, 8, "", 0, 8, 1,
     "0=Unbestimmt|1=Phasenanschnitt (induktiv)|2=Phasenabschnitt (kapazitiv)|"
     "3=Erkennung nicht möglich oder Fehler|4=Kalibrierung steht aus|5=Kompaktleuchtstofflampe, Anschnitt|"
     "6=Kompaktleuchtstofflampe, Abschnitt|7=LED, Anschnitt|8=LED, Abschnitt"},
    {{20, 611}, "Teststeuerung Notlicht-Konverter", F::Enum8, 8, "", 0, 6, 1,
     "0=Reserviert (ohne Wirkung)|1=Funktionstest starten|2=Dauertest starten|3=Teil-Dauertest starten|"
     "4=Test stoppen|5=Merker Funktionstest zurücksetzen|6=Merker Dauertest zurücksetzen"},
    {{20, 612}, "Steuerung Notlicht-Konverter", F::Enum8, 8, "", 0, 4, 1,
     "0=Werkseinstellungen herstellen|1=In Ruhezustand gehen|2=In Sperrzustand gehen|"
     "3=Wieder einschalten/Sperre aufheben|4=Lampenzeit zurücksetzen"},
    {{20, 613}, "Datenanforderung Notlicht-Konverter", F::Enum8, 8, "", 0, 8, 1,
     "0=Reserviert (ohne Wirkung)|1=Konverterstatus anfordern|2=Testergebnis anfordern|3=Batterieinfo anfordern|"
     "4=Info Funktionstest anfordern|5=Info Dauertest anfordern|6=Info Teil-Dauertest anfordern|"
     "7=Konverterinfo anfordern|8=Feste Konverterinfo anfordern"},
    {{20, 801}, "Jalousieaktor: Ausnahmeverhalten", F::Enum8, 8, "", 0, 4, 1,
     "0=Auf|1=Ab|2=Keine Änderung|3=Wert laut Parameter|4=Stopp"},
    {{20, 802}, "Jalousieaktor: Verhalten bei Sperren/Entsperren", F::Enum8, 8, "", 0, 6, 1,
     "0=Auf|1=Ab|2=Keine Änderung|3=Wert laut Parameter|4=Stopp|5=Aktualisierter Wert|6=Wert vor dem Sperren"},
    {{20, 803}, "Tastermodell Jalousie", F::Enum8, 8, "", 1, 4, 1,
     "1=Ein Taster, Auf/Ab wechselnd|2=Ein Taster, Auf/Schritt auf|3=Ein Taster, Ab/Schritt ab|4=Zwei Taster"},
    {{20, 804}, "Jalousiesteuerung", F::Enum8, 8, "", 0, 1, 1, "0=Automatisch|1=Manuell"},
    {{20, 1000}, "Kommunikationsart", F::Enum8, 8, "", 0, 255, 1,
     "0=Sicherungsschicht|1=Sicherungsschicht Busmonitor|2=Sicherungsschicht Rohtelegramme|"
     "6=cEMI-Transportschicht|255=Keine Schicht"},
    {{20, 1001}, "Art der Zusatzinformation", F::Enum8, 8, "", 1, 7, 1,
     "1=PL-Domänenadresse|2=RF-Steuerbyte und Seriennummer oder Domänenadresse|3=Busmonitor-Fehlermerker|"
     "4=Relativer Zeitstempel|5=Zeitverzögerung|6=Erweiterter relativer Zeitstempel|7=BiBat-Information"},
    {{20, 1002}, "RF-Betriebsart", F::Enum8, 8, "", 0, 2, 1,
     "0=Asynchron|1=Asynchron und BiBat-Master|2=Asynchron und BiBat-Slave"},
    {{20, 1003}, "RF-Filterauswahl", F::Enum8, 8, "", 0, 3, 1,
     "0=Kein Filter|1=Nach Domänenadresse|2=Nach KNX-Seriennummer|3=Nach Domänenadresse und Seriennummer"},
    {{20, 1004}, "KNX-Medium", F::Enum8, 8, "", 0, 5, 1, "0=TP1|1=PL110|2=RF|5=IP"},
    {{20, 1005}, "Tasterfunktion", F::Enum8, 8, "", 1, 55, 1,
     "1=Standardfunktion|2=Ein|3=Aus|4=Umschalten|5=Dimmen heller/dunkler|6=Dimmen heller|7=Dimmen dunkler|"
     "8=Ein/Aus|9=Ein/Aus mit Zeit|10=Zwang Ein|11=Zwang Aus|12=Rollladen auf (Taster)|13=Rollladen ab (Taster)|"
     "14=Rollladen auf/ab (Taster)|16=Zwang auf|17=Zwang ab|18=Windalarm|19=Regenalarm|20=HLK Komfort/Absenkung|"
     "21=HLK Komfort|22=HLK Absenkung|23=HLK Gebäudeschutz/Automatik|24=Rollladen Stopp|"
     "25=Komfort/Standby mit Zeit|26=Zwang Komfort|27=Zwang Gebäudeschutz|28=Szene 1|29=Szene 2|30=Szene 3|"
     "31=Szene 4|32=Szene 5|33=Szene 6|34=Szene 7|35=Szene 8|36=Absolut dimmen 25 %|37=Absolut dimmen 50 %|"
     "38=Absolut dimmen 75 %|39=Absolut dimmen 100 %|40=Rollladen auf (Schalter)|41=Rollladen ab (Schalter)|"
     "42=Rollladen auf/ab (Schalter)|43=Rollladen ab/auf (Schalter)|44=Lichtsensor|45=Systemuhr|"
     "46=Batteriestatus|47=HLK Standby|48=HLK Automatik|49=HLK Komfort/Standby|50=HLK Gebäudeschutz|"
     "51=Umschalten mit Zeit|52=Absolut dimmen (Schalter)|53=Szene (Schalter)|54=Rauchalarm|55=Nebenmelder"},
    {{20, 1200}, "M-Bus Schalter-/Ventilzustand", F::Enum8, 8, "", 0, 255, 1,
     "0=Geschlossen|1=Offen|2=Freigegeben|255=Ungültig"},
    {{20, 1202}, "Gas-Messbedingung", F::Enum8, 8, "", 0, 3, 1,
     "0=Unbekannt|1=Temperaturkorrigiert|2=Im Normzustand|3=Im Betriebszustand"},
    {{20, 1203}, "Zustand Trennschalter", F::Enum8, 8, "", 0, 6, 1,
     "0=Geschlossen|1=Offen wegen Überlast|2=Offen wegen Überspannung|3=Offen wegen Lastabwurf|"
     "4=Offen durch PLC-/Euridis-Befehl|5=Offen wegen Übertemperatur (Strom über Maximum)|"
     "6=Offen wegen Übertemperatur (Strom unter Maximum)"},
    {{20, 1204}, "Zustand Euridis-Schnittstelle", F::Enum8, 8, "", 0, 2, 1,
     "0=Deaktiviert|1=Aktiv ohne Sicherheit|2=Aktiv mit Sicherheit"},
    {{20, 1205}, "PLC-Zustand", F::Enum8, 8, "", 0, 2, 1, "0=Neu/entsperrt|1=Neu/gesperrt|2=Registriert"},
    {{20, 1206}, "Ankündigung Spitzenlast", F::Enum8, 8, "", 0, 3, 1,
     "0=Keine Ankündigung|1=Ankündigung Spitzenlast 1|2=Ankündigung Spitzenlast 2|3=Ankündigung Spitzenlast 3"},
    {{20, 1207}, "Spitzenlast", F::Enum8, 8, "", 0, 3, 1,
     "0=Keine Spitzenlast|1=Spitzenlast 1|2=Spitzenlast 2|3=Spitzenlast 3"},
    {{20, 1208}, "TIC-Art", F::Enum8, 8, "", 0, 1, 1, "0=Historisch|1=Standard"},
    {{20, 1209}, "TIC-Kanalart", F::Enum8, 8, "", 0, 4, 1,
     "0=Keine|1=Historisch einphasig|2=Historisch dreiphasig|3=Standard einphasig|4=Standard dreiphasig"},
};
// clang-format on

} // namespace Datapoint_Table
