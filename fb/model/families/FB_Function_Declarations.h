#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of functions and commands.
namespace FB_Function {

using namespace FB_Shared;

inline constexpr FB_Parameter cPulseTime =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Impulsdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit, nach der die Ausgänge wieder Aus senden; 0 sendet nur Ein"), "0.2");
inline constexpr FB_Pin_Group cButton =
    input(QT_TRANSLATE_NOOP("FB_Types", "Taster"), QT_TRANSLATE_NOOP("FB_Types", "T"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Kontakt des Tasters"));
inline constexpr FB_Parameter cButtonTime[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Langer Druck ab"),
            QT_TRANSLATE_NOOP("FB_Types", "Ab dieser Dauer gilt der Druck als lang"), "0.6", 0.1),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Doppeldruck innerhalb"),
            QT_TRANSLATE_NOOP("FB_Types",
                              "Zeit bis zum zweiten Druck; 0 kennt keinen Doppeldruck und meldet den kurzen sofort"),
            "0"),
    cPulseTime,
    check(QT_TRANSLATE_NOOP("FB_Types", "Taster ist Öffner"),
          QT_TRANSLATE_NOOP("FB_Types", "Der Taster sendet Aus, solange er gedrückt ist")),
};
inline constexpr FB_Pin_Group cButtonTimePins[] = {
    cButton,
    output(QT_TRANSLATE_NOOP("FB_Types", "Kurz"), QT_TRANSLATE_NOOP("FB_Types", "K"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Nach einem kurzen Druck")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Lang"), QT_TRANSLATE_NOOP("FB_Types", "L"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Sobald der Druck lang wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Doppelt"), QT_TRANSLATE_NOOP("FB_Types", "D"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Nach einem Doppeldruck")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Gehalten"), QT_TRANSLATE_NOOP("FB_Types", "H"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Taster lang gedrückt bleibt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Umschalten"), QT_TRANSLATE_NOOP("FB_Types", "U"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Wechselt bei jedem kurzen Druck")),
};

inline constexpr FB_Choice cTooManyPulses[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Nichts")},
                                               {1, QT_TRANSLATE_NOOP("FB_Types", "Letzter Ausgang")}};
inline constexpr FB_Parameter cButtonPulse[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
           QT_TRANSLATE_NOOP("FB_Types", "Ausgänge: der erste für einen Druck, der zweite für zwei und so weiter"), "3",
           1, 8),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Pause bis zur Auswertung"),
            QT_TRANSLATE_NOOP("FB_Types", "Kommt so lange kein weiterer Druck, wird ausgewertet"), "0.5", 0.1),
    cPulseTime,
    choice(QT_TRANSLATE_NOOP("FB_Types", "Mehr Drücke als Ausgänge"),
           QT_TRANSLATE_NOOP("FB_Types", "Was zu viele Drücke bewirken"), cTooManyPulses),
};
inline constexpr FB_Pin_Group cButtonPulsePins[] = {
    cButton,
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Druckfolge %1"), QT_TRANSLATE_NOOP("FB_Types", "D%1"), "1.001",
                   QT_TRANSLATE_NOOP("FB_Types", "Sendet nach so vielen Drücken")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "n"), "5.010",
           QT_TRANSLATE_NOOP("FB_Types", "Zahl der Drücke")),
};

inline constexpr FB_Choice cMailTriggers[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Auslösen")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Auslösen und neuem Text")}};
inline constexpr FB_Parameter cMail[] = {
    text(QT_TRANSLATE_NOOP("FB_Types", "An"), QT_TRANSLATE_NOOP("FB_Types", "Empfänger, mehrere durch Komma getrennt")),
    text(QT_TRANSLATE_NOOP("FB_Types", "Betreff"), QT_TRANSLATE_NOOP("FB_Types", "%1 setzt den Text des Eingangs ein"),
         "Meldung der Steuerung"),
    text(QT_TRANSLATE_NOOP("FB_Types", "Text"), QT_TRANSLATE_NOOP("FB_Types", "%1 setzt den Text des Eingangs ein"),
         "%1"),
    fileName(QT_TRANSLATE_NOOP("FB_Types", "Anhang"),
             QT_TRANSLATE_NOOP("FB_Types", "Datei, die mitgeschickt wird; leer ohne Anhang")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Sperrzeit"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange wird nach einer Mail keine weitere gesendet"), "5", 0, 1440, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Senden bei"), QT_TRANSLATE_NOOP("FB_Types", "Wann eine Mail gesendet wird"),
           cMailTriggers),
};
inline constexpr FB_Pin_Group cMailPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auslösen"), QT_TRANSLATE_NOOP("FB_Types", "Trg"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein sendet die Mail")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Text"), QT_TRANSLATE_NOOP("FB_Types", "Txt"), "28.001",
          QT_TRANSLATE_NOOP("FB_Types", "Text oder Wert, der eingesetzt wird")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Empfänger"), QT_TRANSLATE_NOOP("FB_Types", "An"), "28.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ersetzt die festen Empfänger")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Gesendet"), QT_TRANSLATE_NOOP("FB_Types", "OK"), "1.017",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet Ein, wenn der Server die Mail angenommen hat")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehler"), QT_TRANSLATE_NOOP("FB_Types", "Err"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn die Mail nicht gesendet werden konnte")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehlertext"), QT_TRANSLATE_NOOP("FB_Types", "ErrT"), "28.001",
           QT_TRANSLATE_NOOP("FB_Types", "Antwort des Mailservers")),
};

inline constexpr FB_Parameter cExecuteCommand[] = {
    text(QT_TRANSLATE_NOOP("FB_Types", "Befehl"),
         QT_TRANSLATE_NOOP("FB_Types", "Wird auf der Steuerung ausgeführt; %1 setzt den Wert des Eingangs ein")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Zeit höchstens"),
           QT_TRANSLATE_NOOP("FB_Types", "Danach wird der Befehl abgebrochen"), "30", 1, 3600, 0,
           QT_TRANSLATE_NOOP("FB_Types", "s")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Mehrfach erlaubt"),
          QT_TRANSLATE_NOOP("FB_Types", "Ein neuer Auslöser startet den Befehl, auch wenn er noch läuft")),
};
inline constexpr FB_Pin_Group cExecuteCommandPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auslösen"), QT_TRANSLATE_NOOP("FB_Types", "Trg"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein führt den Befehl aus")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Wert"), QT_TRANSLATE_NOOP("FB_Types", "W"), "",
          QT_TRANSLATE_NOOP("FB_Types", "Wird in den Befehl eingesetzt")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Läuft"), QT_TRANSLATE_NOOP("FB_Types", "Akt"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Befehl läuft")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Rückgabewert"), QT_TRANSLATE_NOOP("FB_Types", "Rc"), "13",
           QT_TRANSLATE_NOOP("FB_Types", "0 bei Erfolg")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgabe"), QT_TRANSLATE_NOOP("FB_Types", "Txt"), "28.001",
           QT_TRANSLATE_NOOP("FB_Types", "Was der Befehl ausgegeben hat")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehler"), QT_TRANSLATE_NOOP("FB_Types", "Err"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Befehl nicht ausgeführt werden konnte")),
};

inline constexpr FB_Choice cUploadProtocols[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "FTP")},
                                                 {1, QT_TRANSLATE_NOOP("FB_Types", "FTPS")},
                                                 {2, QT_TRANSLATE_NOOP("FB_Types", "SFTP")}};
inline constexpr FB_Choice cUploadNames[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Gleicher Name")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Name mit Datum und Uhrzeit")}};
inline constexpr FB_Parameter cFTPUpload[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Protokoll"), QT_TRANSLATE_NOOP("FB_Types", "Wie übertragen wird"),
           cUploadProtocols, "2"),
    text(QT_TRANSLATE_NOOP("FB_Types", "Server"), QT_TRANSLATE_NOOP("FB_Types", "Name oder Adresse")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Port"), QT_TRANSLATE_NOOP("FB_Types", "0 nimmt den üblichen des Protokolls"),
           "0", 0, 65535),
    text(QT_TRANSLATE_NOOP("FB_Types", "Benutzer"), QT_TRANSLATE_NOOP("FB_Types", "Anmeldung am Server")),
    text(QT_TRANSLATE_NOOP("FB_Types", "Passwort"), QT_TRANSLATE_NOOP("FB_Types", "Anmeldung am Server")),
    text(QT_TRANSLATE_NOOP("FB_Types", "Verzeichnis"), QT_TRANSLATE_NOOP("FB_Types", "Ziel auf dem Server"), "/"),
    fileName(QT_TRANSLATE_NOOP("FB_Types", "Datei"), QT_TRANSLATE_NOOP("FB_Types", "Datei, die übertragen wird")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Name am Server"),
           QT_TRANSLATE_NOOP("FB_Types", "Unter welchem Namen gespeichert wird"), cUploadNames),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wiederholungen"),
           QT_TRANSLATE_NOOP("FB_Types", "So oft wird es nach einem Fehler wieder versucht"), "3", 0, 20),
};
inline constexpr FB_Pin_Group cFTPUploadPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auslösen"), QT_TRANSLATE_NOOP("FB_Types", "Trg"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein überträgt die Datei")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Dateiname"), QT_TRANSLATE_NOOP("FB_Types", "Dat"), "28.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ersetzt die feste Datei")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Läuft"), QT_TRANSLATE_NOOP("FB_Types", "Akt"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange übertragen wird")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fertig"), QT_TRANSLATE_NOOP("FB_Types", "OK"), "1.017",
           QT_TRANSLATE_NOOP("FB_Types", "Sendet Ein, wenn die Datei übertragen ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehler"), QT_TRANSLATE_NOOP("FB_Types", "Err"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn nicht übertragen werden konnte")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fehlertext"), QT_TRANSLATE_NOOP("FB_Types", "ErrT"), "28.001",
           QT_TRANSLATE_NOOP("FB_Types", "Antwort des Servers")),
};

inline constexpr FB_Choice cSafetyPositions[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Auf")},
                                                 {1, QT_TRANSLATE_NOOP("FB_Types", "Ab")},
                                                 {2, QT_TRANSLATE_NOOP("FB_Types", "Stehen bleiben")}};
inline constexpr FB_Parameter cTimeDown =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Laufzeit ab"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit von ganz oben bis ganz unten"), "60", 1);
inline constexpr FB_Parameter cTimeUp =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Laufzeit auf"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit von ganz unten bis ganz oben"), "60", 1);
inline constexpr FB_Parameter cTurnPause =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Umschaltpause"),
            QT_TRANSLATE_NOOP("FB_Types", "Pause vor dem Wechsel der Richtung"), "0.5");
inline constexpr FB_Parameter cButtonStops =
    check(QT_TRANSLATE_NOOP("FB_Types", "Ein Taster stoppt"),
          QT_TRANSLATE_NOOP("FB_Types", "Ein Druck während der Fahrt hält an"), "1");
inline constexpr FB_Parameter cSafetyPosition =
    choice(QT_TRANSLATE_NOOP("FB_Types", "Sicherheitsstellung"),
           QT_TRANSLATE_NOOP("FB_Types", "Wohin bei \"Sicherheit\" gefahren wird"), cSafetyPositions);
inline constexpr FB_Pin_Group cUp = input(QT_TRANSLATE_NOOP("FB_Types", "Auf"), QT_TRANSLATE_NOOP("FB_Types", "Auf"),
                                          "1.001", QT_TRANSLATE_NOOP("FB_Types", "Ein fährt auf"));
inline constexpr FB_Pin_Group cDown = input(QT_TRANSLATE_NOOP("FB_Types", "Ab"), QT_TRANSLATE_NOOP("FB_Types", "Ab"),
                                            "1.001", QT_TRANSLATE_NOOP("FB_Types", "Ein fährt ab"));
inline constexpr FB_Pin_Group cStop =
    input(QT_TRANSLATE_NOOP("FB_Types", "Stopp"), QT_TRANSLATE_NOOP("FB_Types", "Stp"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein hält an"));
inline constexpr FB_Pin_Group cSetPosition =
    input(QT_TRANSLATE_NOOP("FB_Types", "Position setzen"), QT_TRANSLATE_NOOP("FB_Types", "Pos"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "0 % ganz oben, 100 % ganz unten"));
inline constexpr FB_Pin_Group cSafety =
    input(QT_TRANSLATE_NOOP("FB_Types", "Sicherheit"), QT_TRANSLATE_NOOP("FB_Types", "Si"), "1.005",
          QT_TRANSLATE_NOOP("FB_Types", "Ein fährt in die Sicherheitsstellung und sperrt die Bedienung"));
inline constexpr FB_Pin_Group cMotorUp =
    output(QT_TRANSLATE_NOOP("FB_Types", "Motor auf"), QT_TRANSLATE_NOOP("FB_Types", "M+"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Relais für auf"));
inline constexpr FB_Pin_Group cMotorDown =
    output(QT_TRANSLATE_NOOP("FB_Types", "Motor ab"), QT_TRANSLATE_NOOP("FB_Types", "M-"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Relais für ab"));
inline constexpr FB_Pin_Group cPosition =
    output(QT_TRANSLATE_NOOP("FB_Types", "Position"), QT_TRANSLATE_NOOP("FB_Types", "Pos"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Berechnete Position"));
inline constexpr FB_Pin_Group cMoving =
    output(QT_TRANSLATE_NOOP("FB_Types", "Fährt"), QT_TRANSLATE_NOOP("FB_Types", "Akt"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Motor läuft"));
inline constexpr FB_Parameter cShutter[] = {
    cTimeDown, cTimeUp, cTurnPause, cButtonStops, cSafetyPosition,
};
inline constexpr FB_Pin_Group cShutterPins[] = {
    cUp, cDown, cStop, cSetPosition, cSafety, cMotorUp, cMotorDown, cPosition, cMoving,
};

inline constexpr FB_Parameter cBlind[] = {
    cTimeDown,
    cTimeUp,
    cTurnPause,
    cButtonStops,
    cSafetyPosition,
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Wendezeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit, in der die Lamelle ganz kippt"), "1.5", 0.1),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Schritt"), QT_TRANSLATE_NOOP("FB_Types", "Dauer eines Lamellenschritts"),
            "0.2", 0.1),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Langer Druck ab"),
            QT_TRANSLATE_NOOP("FB_Types", "Ein kürzerer Druck ist ein Lamellenschritt"), "0.5", 0.1),
    check(QT_TRANSLATE_NOOP("FB_Types", "Lamelle nach der Fahrt herstellen"),
          QT_TRANSLATE_NOOP("FB_Types", "Kippt nach einer Fahrt auf Position in die vorherige Stellung"), "1"),
};
inline constexpr FB_Pin_Group cBlindPins[] = {
    cUp,
    cDown,
    cStop,
    cSetPosition,
    input(QT_TRANSLATE_NOOP("FB_Types", "Lamelle setzen"), QT_TRANSLATE_NOOP("FB_Types", "Lam"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "0 % offen, 100 % geschlossen")),
    cSafety,
    cMotorUp,
    cMotorDown,
    cPosition,
    output(QT_TRANSLATE_NOOP("FB_Types", "Lamelle"), QT_TRANSLATE_NOOP("FB_Types", "Lam"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Berechnete Stellung der Lamelle")),
    cMoving,
};

inline constexpr FB_Choice cSites[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Der Steuerung")},
                                       {1, QT_TRANSLATE_NOOP("FB_Types", "Eigener")}};
inline constexpr FB_Choice cWeatherLanguages[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Deutsch")},
                                                  {1, QT_TRANSLATE_NOOP("FB_Types", "Englisch")}};
inline constexpr FB_Parameter cWeatherOpenWeather[] = {
    text(QT_TRANSLATE_NOOP("FB_Types", "API-Schlüssel"),
         QT_TRANSLATE_NOOP("FB_Types", "Schlüssel des Kontos beim Wetterdienst")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Standort"), QT_TRANSLATE_NOOP("FB_Types", "Für welchen Ort das Wetter gilt"),
           cSites),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Breite"), QT_TRANSLATE_NOOP("FB_Types", "Nördlich positiv"), "48.2",
                 -90, 90, 6, QT_TRANSLATE_NOOP("FB_Types", "°")),
          1, 1),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Länge"), QT_TRANSLATE_NOOP("FB_Types", "Östlich positiv"), "16.37",
                 -180, 180, 6, QT_TRANSLATE_NOOP("FB_Types", "°")),
          1, 1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Abfrage"),
           QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem das Wetter geholt wird"), "15", 5, 1440, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Sprache"), QT_TRANSLATE_NOOP("FB_Types", "Sprache der Beschreibung"),
           cWeatherLanguages),
};
inline constexpr FB_Pin_Group cWeatherOpenWeatherPins[] = {
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Abfragen"), QT_TRANSLATE_NOOP("FB_Types", "Trg"), "1.017",
          QT_TRANSLATE_NOOP("FB_Types", "Ein holt das Wetter sofort")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Temperatur"), QT_TRANSLATE_NOOP("FB_Types", "T"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Gefühlte Temperatur"), QT_TRANSLATE_NOOP("FB_Types", "Tg"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Mit Wind und Feuchte")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Relative Feuchte"), QT_TRANSLATE_NOOP("FB_Types", "rF"), "9.007",
           QT_TRANSLATE_NOOP("FB_Types", "Relative Luftfeuchte")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Luftdruck"), QT_TRANSLATE_NOOP("FB_Types", "p"), "9.006",
           QT_TRANSLATE_NOOP("FB_Types", "Luftdruck auf Meereshöhe in Pascal")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Windgeschwindigkeit"), QT_TRANSLATE_NOOP("FB_Types", "v"), "9.005",
           QT_TRANSLATE_NOOP("FB_Types", "Mittlerer Wind")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Windrichtung"), QT_TRANSLATE_NOOP("FB_Types", "R"), "14.007",
           QT_TRANSLATE_NOOP("FB_Types", "Norden 0°, Osten 90°")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Böen"), QT_TRANSLATE_NOOP("FB_Types", "vB"), "9.005",
           QT_TRANSLATE_NOOP("FB_Types", "Spitzen des Winds")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Bewölkung"), QT_TRANSLATE_NOOP("FB_Types", "Bew"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Bedeckter Teil des Himmels")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Niederschlag"), QT_TRANSLATE_NOOP("FB_Types", "N"), "9.026",
           QT_TRANSLATE_NOOP("FB_Types", "Niederschlag der letzten Stunde")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Wetterlage"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), "7",
           QT_TRANSLATE_NOOP("FB_Types", "Nummer der Wetterlage beim Dienst")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Beschreibung"), QT_TRANSLATE_NOOP("FB_Types", "Txt"), "28.001",
           QT_TRANSLATE_NOOP("FB_Types", "Wetterlage als Text")),
    several(output(QT_TRANSLATE_NOOP("FB_Types", "Höchsttemperatur Tag %1"), QT_TRANSLATE_NOOP("FB_Types", "Tx%1"),
                   "9.001", QT_TRANSLATE_NOOP("FB_Types", "Vorhersage, Tag 1 ist heute")),
            5),
    several(output(QT_TRANSLATE_NOOP("FB_Types", "Tiefsttemperatur Tag %1"), QT_TRANSLATE_NOOP("FB_Types", "Tn%1"),
                   "9.001", QT_TRANSLATE_NOOP("FB_Types", "Vorhersage, Tag 1 ist heute")),
            5),
    several(output(QT_TRANSLATE_NOOP("FB_Types", "Niederschlag Tag %1"), QT_TRANSLATE_NOOP("FB_Types", "N%1"), "5.001",
                   QT_TRANSLATE_NOOP("FB_Types", "Wahrscheinlichkeit von Niederschlag")),
            5),
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Dienst nicht antwortet")),
};

} // namespace FB_Function
