#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of meters, counters and files of values.
namespace FB_Counter {

using namespace FB_Shared;

inline constexpr FB_Choice cMeterSources[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Zählerstand")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Leistung oder Durchfluss")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Impulse")}};
inline constexpr FB_Parameter cMeterSource = choice(
    QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "Was am Eingang ankommt"), cMeterSources);
inline constexpr FB_Parameter cPulsesPerUnit =
    number(QT_TRANSLATE_NOOP("FB_Types", "Impulse je Einheit"),
           QT_TRANSLATE_NOOP("FB_Types", "So viele Impulse ergeben eine Einheit, zum Beispiel 1000 je kWh"), "1000",
           0.001, 1000000, 3);
inline constexpr FB_Parameter cUnitFactor =
    number(QT_TRANSLATE_NOOP("FB_Types", "Faktor"),
           QT_TRANSLATE_NOOP("FB_Types", "Der Eingang wird damit multipliziert, zum Beispiel 0,001 von Wh auf kWh"),
           "1", -4294967295.0, 4294967295.0, 6);
inline constexpr FB_Parameter cKeepOverRestart =
    check(QT_TRANSLATE_NOOP("FB_Types", "Über Neustart behalten"),
          QT_TRANSLATE_NOOP("FB_Types", "Die Stände bleiben bei einem Neustart der Steuerung erhalten"), "1");
inline constexpr FB_Pin_Group cMetered =
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Zählerstand, Leistung oder Impulse"));
inline constexpr FB_Pin_Group cResetCounts =
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), "1.015",
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt alle Stände auf 0"));
inline constexpr FB_Parameter cConsumption[] = {
    cMeterSource,
    needs(cPulsesPerUnit, 0, 2),
    cUnitFactor,
    cKeepOverRestart,
};
inline constexpr FB_Pin_Group cConsumptionPins[] = {
    cMetered,
    input(QT_TRANSLATE_NOOP("FB_Types", "Stand setzen"), QT_TRANSLATE_NOOP("FB_Types", "Set"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Setzt den Gesamtstand, etwa nach einem Zählertausch")),
    cResetCounts,
    output(QT_TRANSLATE_NOOP("FB_Types", "Gesamt"), QT_TRANSLATE_NOOP("FB_Types", "Ges"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Gesamter Verbrauch")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch heute"), QT_TRANSLATE_NOOP("FB_Types", "hT"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch seit Mitternacht")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch gestern"), QT_TRANSLATE_NOOP("FB_Types", "gT"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch am Vortag")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch diese Woche"), QT_TRANSLATE_NOOP("FB_Types", "aW"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch seit Montag")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch letzte Woche"), QT_TRANSLATE_NOOP("FB_Types", "lW"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch in der Vorwoche")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch dieser Monat"), QT_TRANSLATE_NOOP("FB_Types", "aM"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch seit dem Monatsersten")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch letzter Monat"), QT_TRANSLATE_NOOP("FB_Types", "lM"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch im Vormonat")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch dieses Jahr"), QT_TRANSLATE_NOOP("FB_Types", "aJ"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch seit dem 1. Januar")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch letztes Jahr"), QT_TRANSLATE_NOOP("FB_Types", "lJ"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch im Vorjahr")),
};

inline constexpr FB_Parameter cConsumptionTariff[] = {
    cMeterSource,
    needs(cPulsesPerUnit, 0, 2),
    cUnitFactor,
    number(QT_TRANSLATE_NOOP("FB_Types", "Preis Tarif 1"), QT_TRANSLATE_NOOP("FB_Types", "Preis je Einheit"), "0.25", 0,
           1000, 5, QT_TRANSLATE_NOOP("FB_Types", "€")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Preis Tarif 2"), QT_TRANSLATE_NOOP("FB_Types", "Preis je Einheit"), "0.18", 0,
           1000, 5, QT_TRANSLATE_NOOP("FB_Types", "€")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Preis Tarif 3"), QT_TRANSLATE_NOOP("FB_Types", "Preis je Einheit"), "0", 0,
           1000, 5, QT_TRANSLATE_NOOP("FB_Types", "€")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Preis Tarif 4"), QT_TRANSLATE_NOOP("FB_Types", "Preis je Einheit"), "0", 0,
           1000, 5, QT_TRANSLATE_NOOP("FB_Types", "€")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Grundgebühr"),
           QT_TRANSLATE_NOOP("FB_Types", "Wird je Monat zu den Kosten gerechnet"), "0", 0, 10000, 2,
           QT_TRANSLATE_NOOP("FB_Types", "€")),
    cKeepOverRestart,
};
inline constexpr FB_Pin_Group cConsumptionTariffPins[] = {
    cMetered,
    input(QT_TRANSLATE_NOOP("FB_Types", "Tarif"), QT_TRANSLATE_NOOP("FB_Types", "T"), "5.006",
          QT_TRANSLATE_NOOP("FB_Types", "Gültiger Tarif, 1 bis 4")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Preis"), QT_TRANSLATE_NOOP("FB_Types", "Pr"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Ersetzt den Preis des gültigen Tarifs, etwa bei stündlichen Preisen")),
    cResetCounts,
    several(output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch Tarif %1"), QT_TRANSLATE_NOOP("FB_Types", "V%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Verbrauch in diesem Tarif")),
            4),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbrauch gesamt"), QT_TRANSLATE_NOOP("FB_Types", "VG"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Verbrauch in allen Tarifen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Kosten heute"), QT_TRANSLATE_NOOP("FB_Types", "KT"), "14",
           QT_TRANSLATE_NOOP("FB_Types", "Kosten seit Mitternacht")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Kosten dieser Monat"), QT_TRANSLATE_NOOP("FB_Types", "KM"), "14",
           QT_TRANSLATE_NOOP("FB_Types", "Kosten seit dem Monatsersten mit Grundgebühr")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Kosten dieses Jahr"), QT_TRANSLATE_NOOP("FB_Types", "KJ"), "14",
           QT_TRANSLATE_NOOP("FB_Types", "Kosten seit dem 1. Januar mit Grundgebühr")),
};

inline constexpr FB_Choice cCountedEdges[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ein")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Aus")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Ein und Aus")}};
inline constexpr FB_Parameter cPulseCount[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Zählen bei"), QT_TRANSLATE_NOOP("FB_Types", "Welche Flanke zählt"),
           cCountedEdges),
    number(QT_TRANSLATE_NOOP("FB_Types", "Faktor"),
           QT_TRANSLATE_NOOP("FB_Types", "Der Zählerstand wird damit multipliziert"), "1", -4294967295.0, 4294967295.0,
           6),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Entprellzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Impulse in kürzerem Abstand zählen nicht"), "0"),
    cKeepOverRestart,
    number(QT_TRANSLATE_NOOP("FB_Types", "Senden alle"),
           QT_TRANSLATE_NOOP("FB_Types", "Nach so vielen Impulsen wird gesendet"), "1", 1, 100000, 0,
           QT_TRANSLATE_NOOP("FB_Types", "Impulse")),
};
inline constexpr FB_Pin_Group cPulseCountPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Impulse, die gezählt werden")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Stand setzen"), QT_TRANSLATE_NOOP("FB_Types", "Set"), "12.001",
          QT_TRANSLATE_NOOP("FB_Types", "Setzt den Zählerstand")),
    cResetCounts,
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Anz"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "Impulse seit dem Rücksetzen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Anzahl mal Faktor")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Anzahl heute"), QT_TRANSLATE_NOOP("FB_Types", "hT"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "Impulse seit Mitternacht")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Anzahl gestern"), QT_TRANSLATE_NOOP("FB_Types", "gT"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "Impulse am Vortag")),
};

inline constexpr FB_Choice cOperatingUnits[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Sekunden")},
                                                {1, QT_TRANSLATE_NOOP("FB_Types", "Minuten")},
                                                {2, QT_TRANSLATE_NOOP("FB_Types", "Stunden")}};
inline constexpr FB_Parameter cOperatingTime[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Einheit"), QT_TRANSLATE_NOOP("FB_Types", "In welcher Einheit gesendet wird"),
           cOperatingUnits, "2"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wartung nach"),
           QT_TRANSLATE_NOOP("FB_Types", "Betriebszeit bis zur Wartung; 0 meldet keine Wartung"), "0", 0, 1000000, 1,
           QT_TRANSLATE_NOOP("FB_Types", "h")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Senden alle"),
           QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem gesendet wird, solange der Eingang Ein ist"), "60", 1, 86400,
           0, QT_TRANSLATE_NOOP("FB_Types", "s")),
    cKeepOverRestart,
};
inline constexpr FB_Pin_Group cOperatingTimePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein, solange das Gerät läuft")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Stand setzen"), QT_TRANSLATE_NOOP("FB_Types", "Set"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Setzt die Betriebszeit in der gewählten Einheit")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), "1.015",
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt die Betriebszeit auf 0")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Wartung erledigt"), QT_TRANSLATE_NOOP("FB_Types", "WQ"), "1.016",
          QT_TRANSLATE_NOOP("FB_Types", "Ein beginnt die Zeit bis zur Wartung neu")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Einschaltzeit"), QT_TRANSLATE_NOOP("FB_Types", "t"), "13",
           QT_TRANSLATE_NOOP("FB_Types", "Betriebszeit seit dem Rücksetzen in der gewählten Einheit")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Einschaltzeit heute"), QT_TRANSLATE_NOOP("FB_Types", "hT"), "13",
           QT_TRANSLATE_NOOP("FB_Types", "Betriebszeit seit Mitternacht")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Einschaltzeit gestern"), QT_TRANSLATE_NOOP("FB_Types", "gT"), "13",
           QT_TRANSLATE_NOOP("FB_Types", "Betriebszeit am Vortag")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Starts"), QT_TRANSLATE_NOOP("FB_Types", "n"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "So oft wurde eingeschaltet")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wartung fällig"), QT_TRANSLATE_NOOP("FB_Types", "Wart"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn die Betriebszeit bis zur Wartung erreicht ist")),
};

inline constexpr FB_Parameter cUpDownCounter[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Schrittweite"),
           QT_TRANSLATE_NOOP("FB_Types", "Um so viel ändert ein Impuls den Stand"), "1", -4294967295.0, 4294967295.0,
           6),
    number(QT_TRANSLATE_NOOP("FB_Types", "Minimum"), QT_TRANSLATE_NOOP("FB_Types", "Kleinster Stand"), "0",
           -4294967295.0, 4294967295.0, 6),
    number(QT_TRANSLATE_NOOP("FB_Types", "Maximum"), QT_TRANSLATE_NOOP("FB_Types", "Größter Stand"), "100",
           -4294967295.0, 4294967295.0, 6),
    check(QT_TRANSLATE_NOOP("FB_Types", "Am Ende umlaufen"),
          QT_TRANSLATE_NOOP("FB_Types", "Nach dem Maximum folgt das Minimum und umgekehrt")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Startwert"), QT_TRANSLATE_NOOP("FB_Types", "Stand nach dem Rücksetzen"), "0",
           -4294967295.0, 4294967295.0, 6),
    cKeepOverRestart,
};
inline constexpr FB_Pin_Group cUpDownCounterPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Plus"), QT_TRANSLATE_NOOP("FB_Types", "+"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein erhöht den Stand")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Minus"), QT_TRANSLATE_NOOP("FB_Types", "-"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein verringert den Stand")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Wert setzen"), QT_TRANSLATE_NOOP("FB_Types", "Set"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Setzt den Stand")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), "1.015",
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt den Stand auf den Startwert")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Stand"), QT_TRANSLATE_NOOP("FB_Types", "W"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Aktueller Stand")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Minimum erreicht"), QT_TRANSLATE_NOOP("FB_Types", "Min"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Stand das Minimum ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Maximum erreicht"), QT_TRANSLATE_NOOP("FB_Types", "Max"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Stand das Maximum ist")),
};

inline constexpr FB_Choice cNewFiles[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nie")},
                                          {1, QT_TRANSLATE_NOOP("FB_Types", "Täglich")},
                                          {2, QT_TRANSLATE_NOOP("FB_Types", "Wöchentlich")},
                                          {3, QT_TRANSLATE_NOOP("FB_Types", "Monatlich")},
                                          {4, QT_TRANSLATE_NOOP("FB_Types", "Jährlich")}};
inline constexpr FB_Choice cSeparators[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Semikolon")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Komma")},
                                            {2, QT_TRANSLATE_NOOP("FB_Types", "Tabulator")}};
inline constexpr FB_Choice cDecimalSigns[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Komma")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Punkt")}};
inline constexpr FB_Parameter cCSVFile[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Spalten"),
           QT_TRANSLATE_NOOP("FB_Types", "Werte, aus denen eine Zeile besteht"), "1", 1, 64),
    fileName(QT_TRANSLATE_NOOP("FB_Types", "Dateiname"), QT_TRANSLATE_NOOP("FB_Types", "Name der Datei ohne Datum"),
             "werte.csv"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Neue Datei"),
           QT_TRANSLATE_NOOP("FB_Types", "Wann eine neue Datei begonnen wird; das Datum wird an den Namen gehängt"),
           cNewFiles, "3"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Trennzeichen"), QT_TRANSLATE_NOOP("FB_Types", "Zeichen zwischen den Werten"),
           cSeparators),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Dezimalzeichen"),
           QT_TRANSLATE_NOOP("FB_Types", "Zeichen vor den Nachkommastellen"), cDecimalSigns),
    text(QT_TRANSLATE_NOOP("FB_Types", "Spaltentitel"),
         QT_TRANSLATE_NOOP("FB_Types", "Titel der Spalten, durch Semikolon getrennt; leer schreibt keine Kopfzeile")),
    seconds(
        QT_TRANSLATE_NOOP("FB_Types", "Zyklus"),
        QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem eine Zeile geschrieben wird; 0 schreibt nur auf \"Schreiben\""),
        "900"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Zeitstempel"),
          QT_TRANSLATE_NOOP("FB_Types", "Datum und Uhrzeit stehen in der ersten Spalte"), "1"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Dateien aufheben"),
           QT_TRANSLATE_NOOP("FB_Types", "Ältere Dateien werden gelöscht; 0 hebt alle auf"), "0", 0, 1000),
};
inline constexpr FB_Pin_Group cCSVFilePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Schreiben"), QT_TRANSLATE_NOOP("FB_Types", "S"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein schreibt eine Zeile")),
    cEnableWhenOn,
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert dieser Spalte")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Geschrieben"), QT_TRANSLATE_NOOP("FB_Types", "OK"), "1.017",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet Ein, wenn eine Zeile geschrieben ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehler"), QT_TRANSLATE_NOOP("FB_Types", "Err"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn nicht geschrieben werden konnte")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Dateiname"), QT_TRANSLATE_NOOP("FB_Types", "Dat"), "28.001",
           QT_TRANSLATE_NOOP("FB_Types", "Name der aktuellen Datei")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zeilen"), QT_TRANSLATE_NOOP("FB_Types", "n"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "Zeilen der aktuellen Datei")),
};

inline constexpr FB_Parameter cPower[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Impulse je kWh"), QT_TRANSLATE_NOOP("FB_Types", "Steht auf dem Zähler"),
           "1000", 0.001, 100000, 3),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Höchste Pausenzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Kommt so lange kein Impuls, gilt die Leistung als 0"), "300", 1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Mittelung"),
           QT_TRANSLATE_NOOP("FB_Types", "Impulse, über die gemittelt wird"), "1", 1, 100),
};
inline constexpr FB_Pin_Group cPowerPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Impulse"), QT_TRANSLATE_NOOP("FB_Types", "Imp"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Impulsausgang des Zählers")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Zählerstand"), QT_TRANSLATE_NOOP("FB_Types", "ZS"), "13.010",
          QT_TRANSLATE_NOOP("FB_Types", "Stand in Wh, wenn der Zähler Stände statt Impulse liefert")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Leistung"), QT_TRANSLATE_NOOP("FB_Types", "P"), "14.056",
           QT_TRANSLATE_NOOP("FB_Types", "Aktuelle Leistung")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Höchste Leistung heute"), QT_TRANSLATE_NOOP("FB_Types", "Pmx"), "14.056",
           QT_TRANSLATE_NOOP("FB_Types", "Größte Leistung seit Mitternacht")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Energie"), QT_TRANSLATE_NOOP("FB_Types", "Wh"), "13.010",
           QT_TRANSLATE_NOOP("FB_Types", "Energie aus den Impulsen seit dem Start")),
};

} // namespace FB_Counter
