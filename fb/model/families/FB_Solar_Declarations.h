#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of solar charging and irrigation.
namespace FB_Solar {

using namespace FB_Shared;

inline constexpr FB_Parameter cOnDifference =
    number(QT_TRANSLATE_NOOP("FB_Types", "Einschaltdifferenz"),
           QT_TRANSLATE_NOOP("FB_Types", "Um so viel muss der Kollektor wärmer sein als der Speicher"), "8", 1, 40, 1,
           QT_TRANSLATE_NOOP("FB_Types", "K"));
inline constexpr FB_Parameter cOffDifference = number(QT_TRANSLATE_NOOP("FB_Types", "Ausschaltdifferenz"),
                                                      QT_TRANSLATE_NOOP("FB_Types", "Darunter schaltet die Pumpe aus"),
                                                      "4", 0.5, 30, 1, QT_TRANSLATE_NOOP("FB_Types", "K"));
inline constexpr FB_Parameter cLeastCollector = number(QT_TRANSLATE_NOOP("FB_Types", "Kollektor mindestens"),
                                                       QT_TRANSLATE_NOOP("FB_Types", "Darunter läuft die Pumpe nicht"),
                                                       "25", 0, 90, 1, QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Parameter cMostCollector =
    number(QT_TRANSLATE_NOOP("FB_Types", "Kollektor höchstens"),
           QT_TRANSLATE_NOOP("FB_Types", "Darüber läuft die Pumpe nicht, weil Dampf im Kreis ist"), "120", 80, 200, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Parameter cMostBuffer = number(QT_TRANSLATE_NOOP("FB_Types", "Puffer höchstens"),
                                                   QT_TRANSLATE_NOOP("FB_Types", "Darüber wird nicht geladen"), "85",
                                                   20, 95, 1, QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Parameter cLeastSpeed =
    number(QT_TRANSLATE_NOOP("FB_Types", "Drehzahl mindestens"),
           QT_TRANSLATE_NOOP("FB_Types", "Kleinste Drehzahl der laufenden Pumpe"), "30", 0, 100, 0,
           QT_TRANSLATE_NOOP("FB_Types", "%"));
inline constexpr FB_Parameter cCoolBack =
    check(QT_TRANSLATE_NOOP("FB_Types", "Rückkühlung"),
          QT_TRANSLATE_NOOP("FB_Types", "Kühlt einen überhitzten Speicher nachts über den Kollektor"));
inline constexpr FB_Pin_Group cCollector =
    input(QT_TRANSLATE_NOOP("FB_Types", "Kollektor"), QT_TRANSLATE_NOOP("FB_Types", "TK"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur am Kollektor"));
inline constexpr FB_Pin_Group cBuffer =
    input(QT_TRANSLATE_NOOP("FB_Types", "Puffer"), QT_TRANSLATE_NOOP("FB_Types", "TP"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur im Puffer"));
inline constexpr FB_Pin_Group cSolarPump =
    output(QT_TRANSLATE_NOOP("FB_Types", "Pumpe"), QT_TRANSLATE_NOOP("FB_Types", "P"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet die Solarpumpe"));
inline constexpr FB_Pin_Group cPumpSpeed =
    output(QT_TRANSLATE_NOOP("FB_Types", "Drehzahl"), QT_TRANSLATE_NOOP("FB_Types", "n"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Drehzahl der Pumpe nach der Temperaturdifferenz"));
inline constexpr FB_Pin_Group cSolarFault =
    output(QT_TRANSLATE_NOOP("FB_Types", "Störung"), QT_TRANSLATE_NOOP("FB_Types", "St"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn ein Fühler fehlt oder der Kollektor zu heiß ist"));
inline constexpr FB_Parameter cSolarBuffer[] = {
    cOnDifference, cOffDifference, cLeastCollector, cMostCollector, cMostBuffer, cLeastSpeed, cCoolBack,
};
inline constexpr FB_Pin_Group cSolarBufferPins[] = {
    cCollector, cBuffer, cEnableWhenOn, cSolarPump, cPumpSpeed, cSolarFault,
};

inline constexpr FB_Parameter cSolarBufferTopBottom[] = {
    cOnDifference,
    cOffDifference,
    cLeastCollector,
    cMostCollector,
    cMostBuffer,
    cLeastSpeed,
    cCoolBack,
    number(QT_TRANSLATE_NOOP("FB_Types", "Oben Soll"),
           QT_TRANSLATE_NOOP("FB_Types", "Bis dahin wird zuerst oben geladen"), "55", 20, 95, 1,
           QT_TRANSLATE_NOOP("FB_Types", "°C")),
};
inline constexpr FB_Pin_Group cSolarBufferTopBottomPins[] = {
    cCollector,
    input(QT_TRANSLATE_NOOP("FB_Types", "Puffer oben"), QT_TRANSLATE_NOOP("FB_Types", "TO"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur im oberen Teil")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Puffer unten"), QT_TRANSLATE_NOOP("FB_Types", "TU"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur im unteren Teil")),
    cEnableWhenOn,
    cSolarPump,
    cPumpSpeed,
    output(QT_TRANSLATE_NOOP("FB_Types", "Ventil oben"), QT_TRANSLATE_NOOP("FB_Types", "VO"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein lädt den oberen Teil, Aus den unteren")),
    cSolarFault,
};

inline constexpr FB_Choice cSolarPriorities[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Boiler")},
                                                 {1, QT_TRANSLATE_NOOP("FB_Types", "Puffer")}};
inline constexpr FB_Parameter cMostBoiler = number(QT_TRANSLATE_NOOP("FB_Types", "Boiler höchstens"),
                                                   QT_TRANSLATE_NOOP("FB_Types", "Darüber wird nicht geladen"), "85",
                                                   20, 95, 1, QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Parameter cSolarPriority =
    choice(QT_TRANSLATE_NOOP("FB_Types", "Vorrang"), QT_TRANSLATE_NOOP("FB_Types", "Was zuerst geladen wird"),
           cSolarPriorities);
inline constexpr FB_Parameter cBoilerSetpoint = number(
    QT_TRANSLATE_NOOP("FB_Types", "Boiler Soll"), QT_TRANSLATE_NOOP("FB_Types", "Bis dahin hat der Boiler Vorrang"),
    "55", 20, 90, 1, QT_TRANSLATE_NOOP("FB_Types", "°C"));
inline constexpr FB_Pin_Group cBoiler =
    input(QT_TRANSLATE_NOOP("FB_Types", "Boiler"), QT_TRANSLATE_NOOP("FB_Types", "TB"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur im Boiler"));
inline constexpr FB_Pin_Group cBufferValve =
    output(QT_TRANSLATE_NOOP("FB_Types", "Ventil Puffer"), QT_TRANSLATE_NOOP("FB_Types", "VP"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein lädt den Puffer, Aus den Boiler"));
inline constexpr FB_Pin_Group cBoilerCharging =
    output(QT_TRANSLATE_NOOP("FB_Types", "Boiler lädt"), QT_TRANSLATE_NOOP("FB_Types", "B"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Boiler geladen wird"));
inline constexpr FB_Pin_Group cBufferCharging =
    output(QT_TRANSLATE_NOOP("FB_Types", "Puffer lädt"), QT_TRANSLATE_NOOP("FB_Types", "Pu"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Puffer geladen wird"));
inline constexpr FB_Parameter cSolar1Boiler[] = {
    cOnDifference, cOffDifference, cLeastCollector, cMostCollector, cMostBoiler,
    cMostBuffer,   cLeastSpeed,    cCoolBack,       cSolarPriority, cBoilerSetpoint,
};
inline constexpr FB_Pin_Group cSolar1BoilerPins[] = {
    cCollector, cBoiler,      cBuffer,         cEnableWhenOn,   cSolarPump,
    cPumpSpeed, cBufferValve, cBoilerCharging, cBufferCharging, cSolarFault,
};

inline constexpr FB_Parameter cSolar2Boilers[] = {
    cOnDifference, cOffDifference, cLeastCollector, cMostCollector, cMostBoiler,
    cMostBuffer,   cLeastSpeed,    cCoolBack,       cSolarPriority, cBoilerSetpoint,
};
inline constexpr FB_Pin_Group cSolar2BoilersPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Kollektor 1"), QT_TRANSLATE_NOOP("FB_Types", "TK1"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur am ersten Kollektor")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Kollektor 2"), QT_TRANSLATE_NOOP("FB_Types", "TK2"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Temperatur am zweiten Kollektor")),
    cBoiler,
    cBuffer,
    cEnableWhenOn,
    several(output(QT_TRANSLATE_NOOP("FB_Types", "Pumpe %1"), QT_TRANSLATE_NOOP("FB_Types", "P%1"), "1.001",
                   QT_TRANSLATE_NOOP("FB_Types", "Schaltet die Pumpe dieses Kollektors")),
            2),
    several(output(QT_TRANSLATE_NOOP("FB_Types", "Drehzahl %1"), QT_TRANSLATE_NOOP("FB_Types", "n%1"), "5.001",
                   QT_TRANSLATE_NOOP("FB_Types", "Drehzahl der Pumpe dieses Kollektors")),
            2),
    cBufferValve,
    cBoilerCharging,
    cBufferCharging,
    cSolarFault,
};

inline constexpr FB_Parameter cIrrigation[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Kreise"),
           QT_TRANSLATE_NOOP("FB_Types", "Bewässerungskreise, die nacheinander laufen"), "4", 1, 16),
    number(QT_TRANSLATE_NOOP("FB_Types", "Laufzeit"),
           QT_TRANSLATE_NOOP("FB_Types", "Laufzeit jedes Kreises ohne eigene Vorgabe"), "10", 1, 240, 0,
           QT_TRANSLATE_NOOP("FB_Types", "min")),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Pause"), QT_TRANSLATE_NOOP("FB_Types", "Pause zwischen zwei Kreisen"), "5"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Pumpenvorlauf"),
            QT_TRANSLATE_NOOP("FB_Types", "So lange läuft die Pumpe vor dem ersten Ventil"), "2"),
    check(QT_TRANSLATE_NOOP("FB_Types", "Regen bricht ab"),
          QT_TRANSLATE_NOOP("FB_Types", "Beendet einen laufenden Durchgang, wenn es zu regnen beginnt"), "1"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Wartezeit nach Regen"),
           QT_TRANSLATE_NOOP("FB_Types", "So lange wird nach Regen nicht beregnet"), "12", 0, 168, 0,
           QT_TRANSLATE_NOOP("FB_Types", "h")),
};
inline constexpr FB_Pin_Group cIrrigationPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Start"), QT_TRANSLATE_NOOP("FB_Types", "Start"), "1.010",
          QT_TRANSLATE_NOOP("FB_Types", "Ein beginnt einen Durchgang, Aus beendet ihn")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Regen"), QT_TRANSLATE_NOOP("FB_Types", "Reg"), "1.005",
          QT_TRANSLATE_NOOP("FB_Types", "Ein, solange es regnet")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Boden feucht"), QT_TRANSLATE_NOOP("FB_Types", "Bo"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein überspringt den Durchgang")),
    cEnableWhenOn,
    counted(input(QT_TRANSLATE_NOOP("FB_Types", "Laufzeit Kreis %1"), QT_TRANSLATE_NOOP("FB_Types", "t%1"), "7.006",
                  QT_TRANSLATE_NOOP("FB_Types", "Laufzeit dieses Kreises in Minuten; 0 lässt ihn aus")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Pumpe"), QT_TRANSLATE_NOOP("FB_Types", "P"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet die Pumpe oder das Hauptventil")),
    counted(output(QT_TRANSLATE_NOOP("FB_Types", "Ventil %1"), QT_TRANSLATE_NOOP("FB_Types", "V%1"), "1.001",
                   QT_TRANSLATE_NOOP("FB_Types", "Öffnet das Ventil dieses Kreises")),
            1),
    output(QT_TRANSLATE_NOOP("FB_Types", "Aktiv"), QT_TRANSLATE_NOOP("FB_Types", "Akt"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange ein Durchgang läuft")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Aktueller Kreis"), QT_TRANSLATE_NOOP("FB_Types", "Nr"), "5.010",
           QT_TRANSLATE_NOOP("FB_Types", "Nummer des laufenden Kreises, sonst 0")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Restzeit"), QT_TRANSLATE_NOOP("FB_Types", "t"), "7.006",
           QT_TRANSLATE_NOOP("FB_Types", "Minuten bis zum Ende des Durchgangs")),
};

} // namespace FB_Solar
