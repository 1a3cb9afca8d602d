#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of hot water and what is demanded.
namespace FB_Hot_Water {

using namespace FB_Shared;

inline constexpr FB_Parameter cHeatDemand[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Verbraucher, die Wärme anfordern"),
           "2", 1, 32),
    number(QT_TRANSLATE_NOOP("FB_Types", "Überhöhung"),
           QT_TRANSLATE_NOOP("FB_Types", "Wird zur höchsten Anforderung addiert"), "0", 0, 20, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Kleinste Anforderung"),
           QT_TRANSLATE_NOOP("FB_Types", "Geringere Anforderungen zählen nicht"), "20", 0, 90, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Größte Anforderung"),
           QT_TRANSLATE_NOOP("FB_Types", "Begrenzt die Anforderung"), "75", 20, 110, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Abschaltverzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "So lange bleibt die Anforderung nach dem letzten Bedarf"), "60"),
};
inline constexpr FB_Pin_Group cHeatDemandPins[] = {
    cEnableWhenOn,
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Anforderung %1"), QT_TRANSLATE_NOOP("FB_Types", "Anf%1"), "9.001",
                  QT_TRANSLATE_NOOP("FB_Types", "Temperatur, die der Verbraucher braucht, 0 ohne Bedarf")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Solltemperatur"), QT_TRANSLATE_NOOP("FB_Types", "TS"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Höchste angeforderte Temperatur, 0 ohne Bedarf")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wärmebedarf"), QT_TRANSLATE_NOOP("FB_Types", "H"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn ein Verbraucher Wärme braucht")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Verbraucher"), QT_TRANSLATE_NOOP("FB_Types", "n"), "5.010",
           QT_TRANSLATE_NOOP("FB_Types", "Zahl der Verbraucher mit Bedarf")),
};

inline constexpr FB_Choice cCirculations[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Getaktet")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Auf Anforderung")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Nach Rücklauftemperatur")}};
inline constexpr FB_Parameter cCirculationPump[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Betrieb"), QT_TRANSLATE_NOOP("FB_Types", "Wann die Pumpe läuft"),
           cCirculations),
    number(QT_TRANSLATE_NOOP("FB_Types", "Laufzeit"), QT_TRANSLATE_NOOP("FB_Types", "So lange läuft die Pumpe"), "5", 1,
           120, 0, QT_TRANSLATE_NOOP("FB_Types", "min")),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Pause"), QT_TRANSLATE_NOOP("FB_Types", "Pause zwischen zwei Läufen"),
                 "25", 1, 1440, 0, QT_TRANSLATE_NOOP("FB_Types", "min")),
          0, 0),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Rücklauf"),
                 QT_TRANSLATE_NOOP("FB_Types", "Temperatur, bei der die Pumpe abschaltet"), "38", 20, 60, 1,
                 QT_TRANSLATE_NOOP("FB_Types", "°C")),
          0, 2),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Hysterese"),
                 QT_TRANSLATE_NOOP("FB_Types", "Abstand zwischen Ein- und Ausschalten"), "5", 1, 20, 1,
                 QT_TRANSLATE_NOOP("FB_Types", "K")),
          0, 2),
    number(QT_TRANSLATE_NOOP("FB_Types", "Speicher mindestens"),
           QT_TRANSLATE_NOOP("FB_Types", "Unter dieser Temperatur läuft die Pumpe nicht"), "40", 0, 70, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
};
inline constexpr FB_Pin_Group cCirculationPumpPins[] = {
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Anforderung"), QT_TRANSLATE_NOOP("FB_Types", "Anf"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein startet einen Lauf, zum Beispiel Taster oder Bewegungsmelder im Bad")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücklauf"), QT_TRANSLATE_NOOP("FB_Types", "RL"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur der Zirkulationsleitung")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Speicher"), QT_TRANSLATE_NOOP("FB_Types", "TW"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur des Warmwasserspeichers")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Pumpe"), QT_TRANSLATE_NOOP("FB_Types", "P"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet die Zirkulationspumpe")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Restlaufzeit"), QT_TRANSLATE_NOOP("FB_Types", "t"), "7.006",
           QT_TRANSLATE_NOOP("FB_Types", "Minuten bis zum Abschalten")),
};

inline constexpr FB_Choice cWeekdays[] = {
    {1, QT_TRANSLATE_NOOP("FB_Types", "Montag")},   {2, QT_TRANSLATE_NOOP("FB_Types", "Dienstag")},
    {3, QT_TRANSLATE_NOOP("FB_Types", "Mittwoch")}, {4, QT_TRANSLATE_NOOP("FB_Types", "Donnerstag")},
    {5, QT_TRANSLATE_NOOP("FB_Types", "Freitag")},  {6, QT_TRANSLATE_NOOP("FB_Types", "Samstag")},
    {7, QT_TRANSLATE_NOOP("FB_Types", "Sonntag")}};
inline constexpr FB_Parameter cHotWaterCharging[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Solltemperatur"),
           QT_TRANSLATE_NOOP("FB_Types", "Wenn der Eingang keine andere vorgibt"), "50", 20, 70, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Hysterese"),
           QT_TRANSLATE_NOOP("FB_Types", "Um so viel darf der Speicher abkühlen, bevor geladen wird"), "5", 1, 20, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Überhöhung"),
           QT_TRANSLATE_NOOP("FB_Types", "Um so viel wird mehr angefordert als der Sollwert"), "8", 0, 30, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Nachlauf"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange läuft die Ladepumpe nach"), "3", 0, 60, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Ladezeit höchstens"),
           QT_TRANSLATE_NOOP("FB_Types", "Danach wird eine Störung gemeldet"), "120", 10, 600, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Vorrang"),
          QT_TRANSLATE_NOOP("FB_Types", "Heizkreise pausieren, solange geladen wird"), "1"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Legionellenschutz"),
          QT_TRANSLATE_NOOP("FB_Types", "Heizt den Speicher einmal in der Woche höher auf"), "1"),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Temperatur Legionellenschutz"),
                 QT_TRANSLATE_NOOP("FB_Types", "Temperatur, die der Speicher erreichen muss"), "62", 55, 75, 1,
                 QT_TRANSLATE_NOOP("FB_Types", "°C")),
          6, 1),
    needs(choice(QT_TRANSLATE_NOOP("FB_Types", "Wochentag"),
                 QT_TRANSLATE_NOOP("FB_Types", "An dem höher aufgeheizt wird"), cWeekdays, "1"),
          6, 1),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Stunde"),
                 QT_TRANSLATE_NOOP("FB_Types", "Uhrzeit, zu der höher aufgeheizt wird"), "2", 0, 23, 0,
                 QT_TRANSLATE_NOOP("FB_Types", "h")),
          6, 1),
};
inline constexpr FB_Pin_Group cHotWaterChargingPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Speicher oben"), QT_TRANSLATE_NOOP("FB_Types", "TO"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur im oberen Teil des Speichers")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Speicher unten"), QT_TRANSLATE_NOOP("FB_Types", "TU"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur im unteren Teil; ohne Verknüpfung zählt nur oben")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Vorlauf"), QT_TRANSLATE_NOOP("FB_Types", "VL"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur des Wärmeerzeugers")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Sollwert"), QT_TRANSLATE_NOOP("FB_Types", "Soll"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ersetzt die Solltemperatur")),
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Einmal laden"), QT_TRANSLATE_NOOP("FB_Types", "1x"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein lädt sofort, auch ohne Freigabe")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ladepumpe"), QT_TRANSLATE_NOOP("FB_Types", "P"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet die Ladepumpe")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Anforderung"), QT_TRANSLATE_NOOP("FB_Types", "Anf"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Temperatur für den Wärmeerzeuger, 0 ohne Bedarf")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Vorrang"), QT_TRANSLATE_NOOP("FB_Types", "V"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange die Heizkreise pausieren sollen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Legionellenschutz"), QT_TRANSLATE_NOOP("FB_Types", "L"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange höher aufgeheizt wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn die Ladezeit überschritten ist")),
};

inline constexpr FB_Parameter cHeatingCoolingChangeover[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Heizen unter"),
           QT_TRANSLATE_NOOP("FB_Types", "Gemittelte Außentemperatur, unter der geheizt wird"), "16", -10, 30, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Kühlen über"),
           QT_TRANSLATE_NOOP("FB_Types", "Gemittelte Außentemperatur, über der gekühlt wird"), "24", 10, 40, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Mittelung"),
           QT_TRANSLATE_NOOP("FB_Types", "Zeit, über die die Außentemperatur gemittelt wird"), "24", 0, 168, 0,
           QT_TRANSLATE_NOOP("FB_Types", "h")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Umschaltpause"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange wird beim Wechsel weder geheizt noch gekühlt"), "4", 0, 168, 0,
           QT_TRANSLATE_NOOP("FB_Types", "h")),
};
inline constexpr FB_Pin_Group cHeatingCoolingChangeoverPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur"), QT_TRANSLATE_NOOP("FB_Types", "TA"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessene Außentemperatur")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Hand"), QT_TRANSLATE_NOOP("FB_Types", "Hand"), "20.107",
          QT_TRANSLATE_NOOP("FB_Types", "Vorgabe: selbsttätig, nur kühlen oder nur heizen")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Freigabe Kühlen"), QT_TRANSLATE_NOOP("FB_Types", "FK"), "1.003",
          QT_TRANSLATE_NOOP("FB_Types", "Ein erlaubt das Kühlen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Heizen"), QT_TRANSLATE_NOOP("FB_Types", "H"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange geheizt wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Kühlen"), QT_TRANSLATE_NOOP("FB_Types", "K"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange gekühlt wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Umschaltung"), QT_TRANSLATE_NOOP("FB_Types", "HK"), "1.100",
           QT_TRANSLATE_NOOP("FB_Types", "Kühlen 0, Heizen 1, für Raumregler und Ventile")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Gemittelte Temperatur"), QT_TRANSLATE_NOOP("FB_Types", "TM"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Gemittelte Außentemperatur")),
};

} // namespace FB_Hot_Water
