#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of blocks that choose, convert and watch values.
namespace FB_Value {

using namespace FB_Shared;

inline constexpr FB_Choice cSites[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Der Steuerung")},
                                       {1, QT_TRANSLATE_NOOP("FB_Types", "Eigener")}};
inline constexpr FB_Parameter cSunPosition[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Standort"), QT_TRANSLATE_NOOP("FB_Types", "Für welchen Ort gerechnet wird"),
           cSites),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Breite"), QT_TRANSLATE_NOOP("FB_Types", "Nördlich positiv"), "48.2",
                 -90, 90, 6, QT_TRANSLATE_NOOP("FB_Types", "°")),
          0, 1),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Länge"), QT_TRANSLATE_NOOP("FB_Types", "Östlich positiv"), "16.37",
                 -180, 180, 6, QT_TRANSLATE_NOOP("FB_Types", "°")),
          0, 1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Intervall"),
           QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem gerechnet und gesendet wird"), "60", 1, 3600, 0,
           QT_TRANSLATE_NOOP("FB_Types", "s")),
};
inline constexpr FB_Pin_Group cSunPositionPins[] = {
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Azimut"), QT_TRANSLATE_NOOP("FB_Types", "Az"), "14.007",
           QT_TRANSLATE_NOOP("FB_Types", "Richtung der Sonne, Norden 0°, Osten 90°")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Elevation"), QT_TRANSLATE_NOOP("FB_Types", "El"), "14.007",
           QT_TRANSLATE_NOOP("FB_Types", "Höhe der Sonne über dem Horizont, nachts negativ")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Tag"), QT_TRANSLATE_NOOP("FB_Types", "Tag"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein von Sonnenaufgang bis Sonnenuntergang")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Sonnenaufgang"), QT_TRANSLATE_NOOP("FB_Types", "SA"), "10.001",
           QT_TRANSLATE_NOOP("FB_Types", "Uhrzeit des heutigen Sonnenaufgangs")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Sonnenuntergang"), QT_TRANSLATE_NOOP("FB_Types", "SU"), "10.001",
           QT_TRANSLATE_NOOP("FB_Types", "Uhrzeit des heutigen Sonnenuntergangs")),
};

inline constexpr FB_Choice cInvalidSelections[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Letzten Wert behalten")},
                                                   {1, QT_TRANSLATE_NOOP("FB_Types", "0 senden")}};
inline constexpr FB_Parameter cFirstSelection = number(
    QT_TRANSLATE_NOOP("FB_Types", "Auswahl für Wert 1"),
    QT_TRANSLATE_NOOP("FB_Types", "Wert der Auswahl, der den ersten Wert wählt; die weiteren folgen"), "1", 0, 255);
inline constexpr FB_Parameter cMultiplex[] = {
    cFirstSelection,
    choice(QT_TRANSLATE_NOOP("FB_Types", "Bei ungültiger Auswahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Was gesendet wird, wenn die Auswahl auf keinen Wert zeigt"),
           cInvalidSelections),
    cSend,
};
inline constexpr FB_Pin_Group cMultiplexPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auswahl"), QT_TRANSLATE_NOOP("FB_Types", "Ausw"), "5.010",
          QT_TRANSLATE_NOOP("FB_Types", "Nummer des Werts, der zum Ausgang gelangt")),
    several(input(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der zum Ausgang gelangt, wenn er gewählt ist")),
            8),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang"), QT_TRANSLATE_NOOP("FB_Types", "A"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Der gewählte Wert")),
};

inline constexpr FB_Choice cUnselected[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nichts")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "0 senden")}};
inline constexpr FB_Parameter cDemultiplex[] = {
    cFirstSelection,
    choice(QT_TRANSLATE_NOOP("FB_Types", "Nicht gewählte Werte"),
           QT_TRANSLATE_NOOP("FB_Types", "Was Ausgänge senden, die nicht mehr gewählt sind"), cUnselected),
    cSend,
};
inline constexpr FB_Pin_Group cDemultiplexPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auswahl"), QT_TRANSLATE_NOOP("FB_Types", "Ausw"), "5.010",
          QT_TRANSLATE_NOOP("FB_Types", "Nummer des Ausgangs, zu dem der Eingang gelangt")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der verteilt wird")),
    several(output(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Sendet den Eingang, wenn dieser Ausgang gewählt ist")),
            8),
};

inline constexpr FB_Parameter cRandom[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Ausgänge, jeder mit seiner eigenen Zufallszahl"), "1", 1, 128),
    number(QT_TRANSLATE_NOOP("FB_Types", "Größter Wert"),
           QT_TRANSLATE_NOOP("FB_Types", "Obere Grenze der Zufallszahlen"), "100", 0, 4294967295.0),
    number(QT_TRANSLATE_NOOP("FB_Types", "Kleinster Wert"),
           QT_TRANSLATE_NOOP("FB_Types", "Untere Grenze der Zufallszahlen"), "0", -4294967295.0, 4294967295.0),
    check(QT_TRANSLATE_NOOP("FB_Types", "Ganze Zahlen"),
          QT_TRANSLATE_NOOP("FB_Types", "Sonst haben die Zufallszahlen sechs Nachkommastellen"), "1"),
};
inline constexpr FB_Pin_Group cRandomPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auslösen"), QT_TRANSLATE_NOOP("FB_Types", "Trg"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein bildet neue Zufallszahlen")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Zufallszahl %1"), QT_TRANSLATE_NOOP("FB_Types", "Z%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Zufallszahl zwischen dem kleinsten und dem größten Wert")),
            1),
};

inline constexpr FB_Choice cTemperatureUnits[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Grad Celsius")},
                                                  {1, QT_TRANSLATE_NOOP("FB_Types", "Grad Fahrenheit")},
                                                  {2, QT_TRANSLATE_NOOP("FB_Types", "Kelvin")}};
inline constexpr FB_Parameter cConvertTemperature[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Temperaturen, die umgerechnet werden"), "1", 1, 128),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Von"), QT_TRANSLATE_NOOP("FB_Types", "Einheit der Eingänge"),
           cTemperatureUnits),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Nach"), QT_TRANSLATE_NOOP("FB_Types", "Einheit der Ausgänge"),
           cTemperatureUnits, "1"),
    cSend,
};
inline constexpr FB_Pin_Group cConvertTemperaturePins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Wert %1"), QT_TRANSLATE_NOOP("FB_Types", "W%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Temperatur in der Einheit \"Von\"")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis %1"), QT_TRANSLATE_NOOP("FB_Types", "Erg%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Dieselbe Temperatur in der Einheit \"Nach\"")),
            1),
};

inline constexpr FB_Choice cBeyondCurve[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Randwert halten")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Gerade verlängern")}};
inline constexpr FB_Parameter cInterpolate[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Kennlinien gleicher Form: jede X-Achse hat ihre Y-Achse"), "1", 1, 128),
    text(QT_TRANSLATE_NOOP("FB_Types", "Stützpunkte"),
         QT_TRANSLATE_NOOP("FB_Types", "Paare X=Y, durch Semikolon getrennt, nach X aufsteigend"), "0=0; 100=100"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Außerhalb der Kennlinie"),
           QT_TRANSLATE_NOOP("FB_Types", "Was vor dem ersten und nach dem letzten Stützpunkt gilt"), cBeyondCurve),
    cSend,
};
inline constexpr FB_Pin_Group cInterpolatePins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "X-Achse %1"), QT_TRANSLATE_NOOP("FB_Types", "X%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, zu dem die Kennlinie abgelesen wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Y-Achse %1"), QT_TRANSLATE_NOOP("FB_Types", "Y%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Abgelesener Wert der Kennlinie")),
            1),
};

inline constexpr FB_Pin_Group cCompared =
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der verglichen wird"));
inline constexpr FB_Parameter cMinimum[] = {
    inputCount(2, 32, "2"),
    cSend,
};
inline constexpr FB_Pin_Group cMinimumPins[] = {
    counted(cCompared, 2),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Kleinster Wert der Eingänge")),
};

inline constexpr FB_Parameter cMaximum[] = {
    inputCount(2, 32, "2"),
    cSend,
};
inline constexpr FB_Pin_Group cMaximumPins[] = {
    counted(cCompared, 2),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ergebnis"), QT_TRANSLATE_NOOP("FB_Types", "Erg"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Größter Wert der Eingänge")),
};

inline constexpr FB_Choice cMemoryResets[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nie")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Täglich um Mitternacht")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Am Montag")},
                                              {3, QT_TRANSLATE_NOOP("FB_Types", "Am Monatsersten")},
                                              {4, QT_TRANSLATE_NOOP("FB_Types", "Am 1. Januar")}};
inline constexpr FB_Parameter cMinimumMaximumMemory[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Selbsttätig rücksetzen"),
           QT_TRANSLATE_NOOP("FB_Types", "Wann der Speicher neu beginnt"), cMemoryResets, "1"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Über Neustart behalten"),
          QT_TRANSLATE_NOOP("FB_Types", "Minimum und Maximum bleiben bei einem Neustart der Steuerung erhalten"), "1"),
};
inline constexpr FB_Pin_Group cMinimumMaximumMemoryPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der beobachtet wird")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), "1.015",
          QT_TRANSLATE_NOOP("FB_Types", "Ein beginnt mit dem jetzigen Wert neu")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Minimum"), QT_TRANSLATE_NOOP("FB_Types", "Min"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Kleinster Wert seit dem Rücksetzen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Maximum"), QT_TRANSLATE_NOOP("FB_Types", "Max"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Größter Wert seit dem Rücksetzen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zeitpunkt Minimum"), QT_TRANSLATE_NOOP("FB_Types", "tMin"), "19.001",
           QT_TRANSLATE_NOOP("FB_Types", "Wann das Minimum aufgetreten ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zeitpunkt Maximum"), QT_TRANSLATE_NOOP("FB_Types", "tMax"), "19.001",
           QT_TRANSLATE_NOOP("FB_Types", "Wann das Maximum aufgetreten ist")),
};

inline constexpr FB_Choice cOutOfLimits[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Auf die Grenze begrenzen")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Verwerfen")}};
inline constexpr FB_Parameter cMinimumMaximumFilter[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Minimum"),
           QT_TRANSLATE_NOOP("FB_Types", "Kleinster Wert, der durchgelassen wird"), "0", -4294967295.0, 4294967295.0,
           6),
    number(QT_TRANSLATE_NOOP("FB_Types", "Maximum"),
           QT_TRANSLATE_NOOP("FB_Types", "Größter Wert, der durchgelassen wird"), "100", -4294967295.0, 4294967295.0,
           6),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Außerhalb"),
           QT_TRANSLATE_NOOP("FB_Types", "Was mit Werten außerhalb der Grenzen geschieht"), cOutOfLimits),
    cSend,
};
inline constexpr FB_Pin_Group cMinimumMaximumFilterPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, der geprüft wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang"), QT_TRANSLATE_NOOP("FB_Types", "A"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Wert innerhalb der Grenzen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zu klein"), QT_TRANSLATE_NOOP("FB_Types", "<"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Eingang unter dem Minimum liegt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zu groß"), QT_TRANSLATE_NOOP("FB_Types", ">"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Eingang über dem Maximum liegt")),
};

inline constexpr FB_Choice cTrendOutputs[] = {
    {0, QT_TRANSLATE_NOOP("FB_Types", "Anstieg")},
    {1, QT_TRANSLATE_NOOP("FB_Types", "Richtung: -1 fallend, 0 gleich, 1 steigend")}};
inline constexpr FB_Parameter cTrend[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Werte, deren Trend gebildet wird"),
           "1", 1, 64),
    number(QT_TRANSLATE_NOOP("FB_Types", "Zeitfenster"),
           QT_TRANSLATE_NOOP("FB_Types", "Zeit, über die der Anstieg gemessen wird"), "15", 0.01, 1440, 2,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Schwelle"),
           QT_TRANSLATE_NOOP("FB_Types", "Änderung pro Stunde, bis zu der ein Wert als gleichbleibend gilt"), "0.5", 0,
           1000000, 4),
    number(QT_TRANSLATE_NOOP("FB_Types", "Faktor"),
           QT_TRANSLATE_NOOP("FB_Types",
                             "Der Anstieg pro Stunde wird damit multipliziert; 0,000277778 ergibt ihn pro Sekunde"),
           "1", -1000000, 1000000, 9),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Ausgang"), QT_TRANSLATE_NOOP("FB_Types", "Was die Ausgänge senden"),
           cTrendOutputs),
};
inline constexpr FB_Pin_Group cTrendPins[] = {
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "E %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, dessen Trend gebildet wird")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "T %1"), QT_TRANSLATE_NOOP("FB_Types", "T%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Anstieg oder Richtung des Werts dieses Kanals")),
            1),
};

inline constexpr FB_Choice cNegativeForms[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Mit Vorzeichen")},
                                               {1, QT_TRANSLATE_NOOP("FB_Types", "Als Betrag")}};
inline constexpr FB_Parameter cPositiveNegativeFilter[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Totbereich"),
           QT_TRANSLATE_NOOP("FB_Types", "Beträge bis zu diesem Wert gelten als 0"), "0", 0, 1000000, 6),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Negativer Ausgang"),
           QT_TRANSLATE_NOOP("FB_Types", "Mit oder ohne Vorzeichen"), cNegativeForms),
    cSend,
};
inline constexpr FB_Pin_Group cPositiveNegativeFilterPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang"), QT_TRANSLATE_NOOP("FB_Types", "E"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wert mit Vorzeichen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Positiv"), QT_TRANSLATE_NOOP("FB_Types", "+"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Eingang, wenn er über 0 liegt, sonst 0")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Negativ"), QT_TRANSLATE_NOOP("FB_Types", "-"), "",
           QT_TRANSLATE_NOOP("FB_Types", "Eingang, wenn er unter 0 liegt, sonst 0")),
};

} // namespace FB_Value
