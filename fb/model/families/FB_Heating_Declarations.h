#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of heating curves, circuits and what makes their heat.
namespace FB_Heating {

using namespace FB_Shared;

inline constexpr FB_Parameter cSlope = number(
    QT_TRANSLATE_NOOP("FB_Types", "Steilheit"),
    QT_TRANSLATE_NOOP("FB_Types", "Um wie viele Grad der Vorlauf je Grad Außentemperatur steigt"), "1.2", 0.1, 4, 2);
inline constexpr FB_Parameter cShift = number(QT_TRANSLATE_NOOP("FB_Types", "Parallelverschiebung"),
                                              QT_TRANSLATE_NOOP("FB_Types", "Verschiebt den Vorlauf"), "0", -20, 20, 1,
                                              QT_TRANSLATE_NOOP("FB_Types", "K"));
inline constexpr FB_Parameter cLeastFlow =
    number(QT_TRANSLATE_NOOP("FB_Types", "Vorlauf mindestens"),
           QT_TRANSLATE_NOOP("FB_Types", "Kleinster Vorlauf, solange geheizt wird"), "20", 0, 90, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Parameter cMostFlow =
    number(QT_TRANSLATE_NOOP("FB_Types", "Vorlauf höchstens"),
           QT_TRANSLATE_NOOP("FB_Types", "Größter Vorlauf; bei Fußbodenheizung meist 40 °C"), "45", 0, 90, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Parameter cHeatingLimit =
    number(QT_TRANSLATE_NOOP("FB_Types", "Heizgrenze"),
           QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur, über der nicht geheizt wird"), "17", -20, 40, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Pin_Group cOutdoor =
    input(QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur"), QT_TRANSLATE_NOOP("FB_Types", "TA"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessene Außentemperatur"));
inline constexpr FB_Pin_Group cRoomSetpoint =
    input(QT_TRANSLATE_NOOP("FB_Types", "Raumsollwert"), QT_TRANSLATE_NOOP("FB_Types", "TR"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gewünschte Raumtemperatur; ohne Verknüpfung 20 °C"));
inline constexpr FB_Pin_Group cFlowSetpoint =
    output(QT_TRANSLATE_NOOP("FB_Types", "Vorlaufsollwert"), QT_TRANSLATE_NOOP("FB_Types", "VL"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Nötige Vorlauftemperatur"));
inline constexpr FB_Pin_Group cHeatingDemand =
    output(QT_TRANSLATE_NOOP("FB_Types", "Heizbedarf"), QT_TRANSLATE_NOOP("FB_Types", "H"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn geheizt werden soll"));
inline constexpr FB_Parameter cHeatingCurve[] = {
    cSlope, cShift, cLeastFlow, cMostFlow, cHeatingLimit,
};
inline constexpr FB_Pin_Group cHeatingCurvePins[] = {
    cOutdoor, cRoomSetpoint, cEnableWhenOn, cFlowSetpoint, cHeatingDemand,
};

inline constexpr FB_Parameter cHeatingCoolingCurve[] = {
    cSlope,
    cShift,
    cLeastFlow,
    cMostFlow,
    cHeatingLimit,
    number(QT_TRANSLATE_NOOP("FB_Types", "Steilheit Kühlen"),
           QT_TRANSLATE_NOOP("FB_Types", "Um wie viele Grad der Vorlauf je Grad Außentemperatur sinkt"), "0.3", 0, 4,
           2),
    number(QT_TRANSLATE_NOOP("FB_Types", "Vorlauf Kühlen an der Kühlgrenze"),
           QT_TRANSLATE_NOOP("FB_Types", "Vorlauf, mit dem die Kühlung beginnt"), "20", 5, 30, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Vorlauf Kühlen mindestens"),
           QT_TRANSLATE_NOOP("FB_Types", "Kleinster Vorlauf beim Kühlen"), "16", 5, 30, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Kühlgrenze"),
           QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur, über der gekühlt wird"), "24", 0, 45, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Abstand zum Taupunkt"),
           QT_TRANSLATE_NOOP("FB_Types", "Um so viel bleibt der Vorlauf über dem Taupunkt"), "2", 0, 10, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
};
inline constexpr FB_Pin_Group cHeatingCoolingCurvePins[] = {
    cOutdoor,
    cRoomSetpoint,
    input(QT_TRANSLATE_NOOP("FB_Types", "Freigabe Heizen"), QT_TRANSLATE_NOOP("FB_Types", "FH"), "1.003",
          QT_TRANSLATE_NOOP("FB_Types", "Ein gibt das Heizen frei")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Freigabe Kühlen"), QT_TRANSLATE_NOOP("FB_Types", "FK"), "1.003",
          QT_TRANSLATE_NOOP("FB_Types", "Ein gibt das Kühlen frei")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Taupunkt"), QT_TRANSLATE_NOOP("FB_Types", "TP"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Taupunkt im Raum, begrenzt den Vorlauf beim Kühlen")),
    cFlowSetpoint,
    cHeatingDemand,
    output(QT_TRANSLATE_NOOP("FB_Types", "Kühlbedarf"), QT_TRANSLATE_NOOP("FB_Types", "K"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn gekühlt werden soll")),
};

inline constexpr FB_Choice cCircuitTypes[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ohne Mischer")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Auf/Zu")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Stellwert")}};
inline constexpr FB_Pin_Group cFlow =
    input(QT_TRANSLATE_NOOP("FB_Types", "Vorlauf"), QT_TRANSLATE_NOOP("FB_Types", "VL"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessene Vorlauftemperatur"));
inline constexpr FB_Parameter cHeatingCircuit[] = {
    cSlope,
    cShift,
    cLeastFlow,
    cMostFlow,
    cHeatingLimit,
    number(QT_TRANSLATE_NOOP("FB_Types", "Raumeinfluss"),
           QT_TRANSLATE_NOOP("FB_Types", "Um wie viele Grad der Vorlauf je Grad Abweichung im Raum geändert wird"), "2",
           0, 10, 1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Absenkung Standby"),
           QT_TRANSLATE_NOOP("FB_Types", "Verringert den Raumsollwert"), "2", 0, 10, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Absenkung Nacht"),
           QT_TRANSLATE_NOOP("FB_Types", "Verringert den Raumsollwert"), "4", 0, 15, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Frostschutz unter"),
           QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur, unter der die Pumpe auch ohne Heizbedarf läuft"), "3", -20,
           10, 1, QT_TRANSLATE_NOOP("FB_Types", "°C")),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Mischer"), QT_TRANSLATE_NOOP("FB_Types", "Wie der Heizkreis gemischt wird"),
           cCircuitTypes, "1"),
    needs(seconds(QT_TRANSLATE_NOOP("FB_Types", "Laufzeit des Mischers"),
                  QT_TRANSLATE_NOOP("FB_Types", "Zeit von ganz zu bis ganz offen"), "120", 10),
          9, 1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Pumpennachlauf"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange läuft die Pumpe nach dem Heizbedarf"), "10", 0, 120, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    check(QT_TRANSLATE_NOOP("FB_Types", "Blockierschutz"),
          QT_TRANSLATE_NOOP("FB_Types", "Bewegt Pumpe und Mischer einmal in der Woche"), "1"),
};
inline constexpr FB_Pin_Group cHeatingCircuitPins[] = {
    cOutdoor,
    cFlow,
    input(QT_TRANSLATE_NOOP("FB_Types", "Raumtemperatur"), QT_TRANSLATE_NOOP("FB_Types", "T"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessene Raumtemperatur; ohne Verknüpfung ohne Raumeinfluss")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Raumsollwert"), QT_TRANSLATE_NOOP("FB_Types", "TR"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Sollwert für Komfort; ohne Verknüpfung 20 °C")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Betriebsart"), QT_TRANSLATE_NOOP("FB_Types", "BA"), "20.102",
          QT_TRANSLATE_NOOP("FB_Types", "Komfort, Standby, Nacht oder Frostschutz")),
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Übertemperatur"), QT_TRANSLATE_NOOP("FB_Types", "STB"), "1.005",
          QT_TRANSLATE_NOOP("FB_Types", "Ein schließt den Mischer und stellt die Pumpe ab")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Vorlaufsollwert"), QT_TRANSLATE_NOOP("FB_Types", "VLs"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Nötige Vorlauftemperatur")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Anforderung"), QT_TRANSLATE_NOOP("FB_Types", "Anf"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Solltemperatur für den Wärmeerzeuger, 0 ohne Bedarf")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Pumpe"), QT_TRANSLATE_NOOP("FB_Types", "P"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet die Heizkreispumpe")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Mischer auf"), QT_TRANSLATE_NOOP("FB_Types", "M+"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Öffnet den Mischer")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Mischer zu"), QT_TRANSLATE_NOOP("FB_Types", "M-"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schließt den Mischer")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Stellwert"), QT_TRANSLATE_NOOP("FB_Types", "Y"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Stellung des Mischers")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn ein Fühler fehlt oder der Vorlauf nicht erreicht wird")),
};

inline constexpr FB_Choice cGeneratorTypes[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Ein/Aus")},
                                                {1, QT_TRANSLATE_NOOP("FB_Types", "Modulierend")},
                                                {2, QT_TRANSLATE_NOOP("FB_Types", "Solltemperatur")}};
inline constexpr FB_Parameter cHeatGenerator[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Art"),
           QT_TRANSLATE_NOOP("FB_Types", "Wie der Wärmeerzeuger angesteuert wird"), cGeneratorTypes),
    number(QT_TRANSLATE_NOOP("FB_Types", "Hysterese"),
           QT_TRANSLATE_NOOP("FB_Types", "Abstand zwischen Ein- und Ausschalten"), "5", 0.5, 30, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Überhöhung"),
           QT_TRANSLATE_NOOP("FB_Types", "Wird zur angeforderten Temperatur addiert"), "2", 0, 20, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Höchsttemperatur"),
           QT_TRANSLATE_NOOP("FB_Types", "Darüber wird abgeschaltet"), "75", 20, 110, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Mindestlaufzeit"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange bleibt er mindestens an"), "5", 0, 120, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Mindestpause"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange bleibt er mindestens aus"), "5", 0, 120, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Pumpennachlauf"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange läuft die Kesselpumpe nach"), "5", 0, 120, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Kesselschutz"),
           QT_TRANSLATE_NOOP("FB_Types", "Rücklauf, unter dem die Pumpe nicht fördert; 0 ohne"), "0", 0, 70, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
};
inline constexpr FB_Pin_Group cHeatGeneratorPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Anforderung"), QT_TRANSLATE_NOOP("FB_Types", "Anf"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Angeforderte Temperatur, 0 ohne Bedarf")),
    cFlow,
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücklauf"), QT_TRANSLATE_NOOP("FB_Types", "RL"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessene Rücklauftemperatur")),
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Sperre"), QT_TRANSLATE_NOOP("FB_Types", "Sp"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein sperrt, zum Beispiel durch den Energieversorger")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Störmeldung"), QT_TRANSLATE_NOOP("FB_Types", "StM"), "1.005",
          QT_TRANSLATE_NOOP("FB_Types", "Störkontakt des Geräts")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Erzeuger"), QT_TRANSLATE_NOOP("FB_Types", "E"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet den Wärmeerzeuger")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Leistung"), QT_TRANSLATE_NOOP("FB_Types", "Y"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Leistungsvorgabe bei \"Modulierend\"")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Solltemperatur"), QT_TRANSLATE_NOOP("FB_Types", "TS"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Temperaturvorgabe an das Gerät")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Pumpe"), QT_TRANSLATE_NOOP("FB_Types", "P"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet die Kesselpumpe")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein bei Störmeldung oder Übertemperatur")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Betriebsstunden"), QT_TRANSLATE_NOOP("FB_Types", "h"), "12.102",
           QT_TRANSLATE_NOOP("FB_Types", "Laufzeit des Erzeugers")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Starts"), QT_TRANSLATE_NOOP("FB_Types", "n"), "12.001",
           QT_TRANSLATE_NOOP("FB_Types", "So oft wurde eingeschaltet")),
};

} // namespace FB_Heating
