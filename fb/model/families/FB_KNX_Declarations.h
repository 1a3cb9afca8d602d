#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of KNX time, gates and colours.
namespace FB_KNX {

using namespace FB_Shared;

inline constexpr FB_Parameter cKNXTimeServer[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Zyklus"),
           QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem gesendet wird; 0 sendet nur auf \"Senden\""), "60", 0, 1440,
           0, QT_TRANSLATE_NOOP("FB_Types", "min")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Beim Start senden"),
          QT_TRANSLATE_NOOP("FB_Types", "Sendet, sobald die Steuerung läuft"), "1"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Bei Zeitumstellung senden"),
          QT_TRANSLATE_NOOP("FB_Types", "Sendet sofort bei Beginn und Ende der Sommerzeit"), "1"),
};
inline constexpr FB_Pin_Group cKNXTimeServerPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Senden"), QT_TRANSLATE_NOOP("FB_Types", "S"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein sendet Datum und Uhrzeit")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Uhrzeit"), QT_TRANSLATE_NOOP("FB_Types", "Z"), "10.001",
           QT_TRANSLATE_NOOP("FB_Types", "Uhrzeit mit Wochentag")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Datum"), QT_TRANSLATE_NOOP("FB_Types", "D"), "11.001",
           QT_TRANSLATE_NOOP("FB_Types", "Datum")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Datum und Uhrzeit"), QT_TRANSLATE_NOOP("FB_Types", "DZ"), "19.001",
           QT_TRANSLATE_NOOP("FB_Types", "Datum und Uhrzeit in einem Telegramm")),
};

inline constexpr FB_Pin_Group cTimeOfDay =
    input(QT_TRANSLATE_NOOP("FB_Types", "Uhrzeit"), QT_TRANSLATE_NOOP("FB_Types", "Z"), "10.001",
          QT_TRANSLATE_NOOP("FB_Types", "Uhrzeit mit Wochentag"));
inline constexpr FB_Pin_Group cDate = input(QT_TRANSLATE_NOOP("FB_Types", "Datum"), QT_TRANSLATE_NOOP("FB_Types", "D"),
                                            "11.001", QT_TRANSLATE_NOOP("FB_Types", "Datum"));
inline constexpr FB_Pin_Group cDateAndTime =
    input(QT_TRANSLATE_NOOP("FB_Types", "Datum und Uhrzeit"), QT_TRANSLATE_NOOP("FB_Types", "DZ"), "19.001",
          QT_TRANSLATE_NOOP("FB_Types", "Datum und Uhrzeit in einem Telegramm"));
inline constexpr FB_Parameter cKNXTimeDecoder[] = {
    cSend,
};
inline constexpr FB_Pin_Group cKNXTimeDecoderPins[] = {
    cTimeOfDay,
    cDate,
    cDateAndTime,
    output(QT_TRANSLATE_NOOP("FB_Types", "Jahr"), QT_TRANSLATE_NOOP("FB_Types", "J"), "7",
           QT_TRANSLATE_NOOP("FB_Types", "Jahr, vierstellig")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Monat"), QT_TRANSLATE_NOOP("FB_Types", "M"), "5",
           QT_TRANSLATE_NOOP("FB_Types", "1 bis 12")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Tag"), QT_TRANSLATE_NOOP("FB_Types", "T"), "5",
           QT_TRANSLATE_NOOP("FB_Types", "1 bis 31")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wochentag"), QT_TRANSLATE_NOOP("FB_Types", "WT"), "5",
           QT_TRANSLATE_NOOP("FB_Types", "1 Montag bis 7 Sonntag, 0 unbekannt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Stunde"), QT_TRANSLATE_NOOP("FB_Types", "h"), "5",
           QT_TRANSLATE_NOOP("FB_Types", "0 bis 23")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Minute"), QT_TRANSLATE_NOOP("FB_Types", "min"), "5",
           QT_TRANSLATE_NOOP("FB_Types", "0 bis 59")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Sekunde"), QT_TRANSLATE_NOOP("FB_Types", "s"), "5",
           QT_TRANSLATE_NOOP("FB_Types", "0 bis 59")),
};

inline constexpr FB_Parameter cKNXTimeClient[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Abweichung"),
            QT_TRANSLATE_NOOP("FB_Types", "Erst ab dieser Abweichung wird die Uhr der Steuerung gestellt"), "2"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Überwachung"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange darf kein Zeittelegramm kommen; 0 überwacht nicht"), "24", 0, 720, 0,
           QT_TRANSLATE_NOOP("FB_Types", "h")),
};
inline constexpr FB_Pin_Group cKNXTimeClientPins[] = {
    cTimeOfDay,
    cDate,
    cDateAndTime,
    output(QT_TRANSLATE_NOOP("FB_Types", "Synchron"), QT_TRANSLATE_NOOP("FB_Types", "OK"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange Zeittelegramme kommen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Letzte Synchronisation"), QT_TRANSLATE_NOOP("FB_Types", "t"), "19.001",
           QT_TRANSLATE_NOOP("FB_Types", "Wann die Uhr zuletzt gestellt wurde")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Abweichung"), QT_TRANSLATE_NOOP("FB_Types", "Abw"), "8.005",
           QT_TRANSLATE_NOOP("FB_Types", "Abweichung der Uhr beim letzten Telegramm")),
};

inline constexpr FB_Choice cGateLevels[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ein")},
                                            {1, QT_TRANSLATE_NOOP("FB_Types", "Aus")}};
inline constexpr FB_Choice cGateOpenings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nichts senden")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Aktuelle Werte senden")}};
inline constexpr FB_Choice cGateClosings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nichts senden")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Festen Wert senden")}};
inline constexpr FB_Parameter cKNXGate[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Kanäle, die das Tor sperrt"), "1", 1,
           32),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Tor offen bei"), QT_TRANSLATE_NOOP("FB_Types", "Wert am Tor, der durchlässt"),
           cGateLevels),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Beim Öffnen"),
           QT_TRANSLATE_NOOP("FB_Types", "Was geschieht, wenn das Tor öffnet"), cGateOpenings),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Beim Schließen"),
           QT_TRANSLATE_NOOP("FB_Types", "Was geschieht, wenn das Tor schließt"), cGateClosings),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Wert beim Schließen"),
                 QT_TRANSLATE_NOOP("FB_Types", "Was alle Ausgänge beim Schließen senden"), "0", -4294967295.0,
                 4294967295.0, 6),
          3, 1),
};
inline constexpr FB_Pin_Group cKNXGatePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Tor"), QT_TRANSLATE_NOOP("FB_Types", "Tor"), "1.003",
          QT_TRANSLATE_NOOP("FB_Types", "Öffnet oder sperrt den Weg von den Eingängen zu den Ausgängen")),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Wert, der durch das Tor geht")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Wert des Eingangs, solange das Tor offen ist")),
            1),
};

inline constexpr FB_Choice cWallContacts[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ein")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Aus")}};
inline constexpr FB_Choice cWallOpenings[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nichts senden")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Raum 2 übernimmt Raum 1")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Raum 1 übernimmt Raum 2")}};
inline constexpr FB_Parameter cKNXPartitionWall[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"),
           QT_TRANSLATE_NOOP("FB_Types", "Funktionen, die bei offener Wand gemeinsam bedient werden"), "1", 1, 32),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Wand offen bei"),
           QT_TRANSLATE_NOOP("FB_Types", "Wert des Kontakts bei offener Trennwand"), cWallContacts, "1"),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Beim Öffnen"),
           QT_TRANSLATE_NOOP("FB_Types", "Was geschieht, wenn die Wand geöffnet wird"), cWallOpenings),
};
inline constexpr FB_Pin_Group cKNXPartitionWallPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Trennwand"), QT_TRANSLATE_NOOP("FB_Types", "Wand"), "1.009",
          QT_TRANSLATE_NOOP("FB_Types", "Kontakt der Trennwand, mit Datenpunkttyp 1.009 bei offener Wand Aus")),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Raum 1 Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "1E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Bedienung in Raum 1")),
            1),
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Raum 2 Eingang %1"), QT_TRANSLATE_NOOP("FB_Types", "2E%1"), "",
                  QT_TRANSLATE_NOOP("FB_Types", "Bedienung in Raum 2")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Raum 1 Ausgang %1"), QT_TRANSLATE_NOOP("FB_Types", "1A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Geht an die Aktoren von Raum 1")),
            1),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Raum 2 Ausgang %1"), QT_TRANSLATE_NOOP("FB_Types", "2A%1"), "",
                   QT_TRANSLATE_NOOP("FB_Types", "Geht an die Aktoren von Raum 2")),
            1),
};

inline constexpr FB_Choice cSwitchOnLevels[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Höchstwert")},
                                                {1, QT_TRANSLATE_NOOP("FB_Types", "Letzten Wert")},
                                                {2, QT_TRANSLATE_NOOP("FB_Types", "Festen Wert")}};
inline constexpr FB_Parameter cKNXDimmer4Bit[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Dimmzeit"), QT_TRANSLATE_NOOP("FB_Types", "Zeit von 0 bis 100 %"), "4", 0.5),
    number(QT_TRANSLATE_NOOP("FB_Types", "Mindestwert"),
           QT_TRANSLATE_NOOP("FB_Types", "Kleinster Wert, solange das Licht an ist"), "1", 0, 100, 0,
           QT_TRANSLATE_NOOP("FB_Types", "%")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Höchstwert"), QT_TRANSLATE_NOOP("FB_Types", "Größter Wert"), "100", 1, 100, 0,
           QT_TRANSLATE_NOOP("FB_Types", "%")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Einschalten auf"),
           QT_TRANSLATE_NOOP("FB_Types", "Wert, den \"Schalten\" Ein sendet"), cSwitchOnLevels),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Fester Einschaltwert"),
                 QT_TRANSLATE_NOOP("FB_Types", "Wert beim Einschalten"), "80", 1, 100, 0,
                 QT_TRANSLATE_NOOP("FB_Types", "%")),
          3, 2),
    check(QT_TRANSLATE_NOOP("FB_Types", "Dimmen schaltet ein und aus"),
          QT_TRANSLATE_NOOP("FB_Types", "Heller dimmen schaltet ein, dunkler bis zum Mindestwert aus"), "1"),
};
inline constexpr FB_Pin_Group cKNXDimmer4BitPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Dimmen"), QT_TRANSLATE_NOOP("FB_Types", "Dim"), "3.007",
          QT_TRANSLATE_NOOP("FB_Types", "Heller, dunkler oder Stopp")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Schalten"), QT_TRANSLATE_NOOP("FB_Types", "S"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein oder Aus")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Wert setzen"), QT_TRANSLATE_NOOP("FB_Types", "W"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "Setzt den Wert sofort")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Aktueller Dimmwert")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Status"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Wert über 0 liegt")),
};

inline constexpr FB_Choice cColorDirections[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Einzelwerte zu Farbe")},
                                                 {1, QT_TRANSLATE_NOOP("FB_Types", "Farbe zu Einzelwerten")}};
inline constexpr FB_Parameter cKNXRGBWConverter[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Richtung"), QT_TRANSLATE_NOOP("FB_Types", "Was umgerechnet wird"),
           cColorDirections),
    check(QT_TRANSLATE_NOOP("FB_Types", "Weiß aus RGB bilden"),
          QT_TRANSLATE_NOOP("FB_Types", "Der gemeinsame Anteil von Rot, Grün und Blau wird zu Weiß")),
    cSend,
};
inline constexpr FB_Pin_Group cKNXRGBWConverterPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "RGBW Farbe"), QT_TRANSLATE_NOOP("FB_Types", "RGBW"), "251.600",
          QT_TRANSLATE_NOOP("FB_Types", "Farbe mit Weißanteil")),
    input(QT_TRANSLATE_NOOP("FB_Types", "RGB Farbe"), QT_TRANSLATE_NOOP("FB_Types", "RGB"), "232.600",
          QT_TRANSLATE_NOOP("FB_Types", "Farbe ohne Weißanteil")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rot"), QT_TRANSLATE_NOOP("FB_Types", "R"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "Anteil Rot")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Grün"), QT_TRANSLATE_NOOP("FB_Types", "G"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "Anteil Grün")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Blau"), QT_TRANSLATE_NOOP("FB_Types", "B"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "Anteil Blau")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Weiß"), QT_TRANSLATE_NOOP("FB_Types", "W"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "Anteil Weiß")),
    output(QT_TRANSLATE_NOOP("FB_Types", "RGBW Farbe"), QT_TRANSLATE_NOOP("FB_Types", "RGBW"), "251.600",
           QT_TRANSLATE_NOOP("FB_Types", "Farbe mit Weißanteil")),
    output(QT_TRANSLATE_NOOP("FB_Types", "RGB Farbe"), QT_TRANSLATE_NOOP("FB_Types", "RGB"), "232.600",
           QT_TRANSLATE_NOOP("FB_Types", "Farbe ohne Weißanteil")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Rot"), QT_TRANSLATE_NOOP("FB_Types", "R"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Anteil Rot")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Grün"), QT_TRANSLATE_NOOP("FB_Types", "G"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Anteil Grün")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Blau"), QT_TRANSLATE_NOOP("FB_Types", "B"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Anteil Blau")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Weiß"), QT_TRANSLATE_NOOP("FB_Types", "W"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Anteil Weiß")),
};

} // namespace FB_KNX
