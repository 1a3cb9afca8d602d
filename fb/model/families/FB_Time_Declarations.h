#pragma once

#include "fb/model/families/FB_Shared_Declarations.h"

/// Parameters and pins of delays, pulses, filters and modulators.
namespace FB_Time {

using namespace FB_Shared;

inline constexpr FB_Parameter cRetrigger =
    check(QT_TRANSLATE_NOOP("FB_Types", "Nachtriggern"),
          QT_TRANSLATE_NOOP("FB_Types", "Jedes weitere Ein am Eingang beginnt die Zeit von vorn"), "1");
inline constexpr FB_Parameter cDelay[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Verzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, um die der Ausgang dem Eingang folgt"), "10"),
    cRetrigger,
};
inline constexpr FB_Pin_Group cOnDelayPins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein startet die Zeit, Aus bricht sie ab")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein nach Ablauf der Zeit, Aus sofort mit dem Eingang"))};
inline constexpr FB_Pin_Group cOffDelayPins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein schaltet sofort ein, Aus startet die Zeit")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein sofort mit dem Eingang, Aus nach Ablauf der Zeit"))};

inline constexpr FB_Parameter cOnOffDelay[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Einschaltverzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, um die das Einschalten verzögert wird"), "10"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Ausschaltverzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, um die das Ausschalten verzögert wird"), "10"),
    cRetrigger,
};
inline constexpr FB_Pin_Group cOnOffDelayPins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand, dem der Ausgang verzögert folgt")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand des Eingangs nach Ablauf der jeweiligen Zeit"))};

inline constexpr FB_Parameter cPulse[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Impulsdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, die der Ausgang Ein bleibt"), "1", 0.1),
    cRetrigger,
};
inline constexpr FB_Pin_Group cPulsePins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein beginnt einen Impuls, Aus beendet ihn nicht")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein für die Impulsdauer"))};

inline constexpr FB_Parameter cStaircase[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Leuchtdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden vom letzten Einschalten bis zum Ausschalten"), "180", 1),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Vorwarnzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden vor dem Ausschalten wird die Vorwarnung Ein"), "20"),
    cRetrigger,
    check(QT_TRANSLATE_NOOP("FB_Types", "Vorzeitig ausschaltbar"),
          QT_TRANSLATE_NOOP("FB_Types", "Ein Aus am Eingang schaltet sofort aus")),
};
inline constexpr FB_Pin_Group cStaircasePins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein schaltet das Licht ein, etwa von einem Taster")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Dauerlicht"), QT_TRANSLATE_NOOP("FB_Types", "D"), cBit,
          QT_TRANSLATE_NOOP("FB_Types", "Solange Ein, bleibt das Licht eingeschaltet")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Licht")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Vorwarnung"), QT_TRANSLATE_NOOP("FB_Types", "V"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein in der Zeit vor dem Ausschalten"))};

inline constexpr FB_Parameter cSwitchOnLimit[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Höchste Einschaltdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, nach der abgeschaltet wird; 0 für keine Grenze"), "3600"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Mindestpause"),
            QT_TRANSLATE_NOOP("FB_Types",
                              "Zeit in Sekunden, die nach dem Ausschalten bis zum nächsten Einschalten vergeht"),
            "300"),
    number(QT_TRANSLATE_NOOP("FB_Types", "Einschaltungen je Stunde"),
           QT_TRANSLATE_NOOP("FB_Types", "So oft darf in 60 Minuten eingeschaltet werden; 0 für keine Grenze"), "0", 0,
           3600),
    check(QT_TRANSLATE_NOOP("FB_Types", "Nachholen"),
          QT_TRANSLATE_NOOP("FB_Types",
                            "Ein Einschalten, das in die Pause fiel, wird danach ausgeführt, wenn der Eingang noch Ein "
                            "ist"),
          "1"),
};
inline constexpr FB_Pin_Group cSwitchOnLimitPins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Gewünschter Zustand des Geräts")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Ein beendet eine laufende Begrenzung und zählt wieder von 0")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand, der dem Gerät erlaubt ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Begrenzung aktiv"), QT_TRANSLATE_NOOP("FB_Types", "Begr"), cState,
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Ausgang dem Eingang nicht folgen darf")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Restzeit"), QT_TRANSLATE_NOOP("FB_Types", "Rest"), "7.005",
           QT_TRANSLATE_NOOP("FB_Types", "Sekunden, bis wieder eingeschaltet oder abgeschaltet wird"))};

inline constexpr FB_Parameter cClock1[] = {
    seconds(
        QT_TRANSLATE_NOOP("FB_Types", "Periodendauer"),
        QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden von einem Einschalten zum nächsten; je zur Hälfte Ein und Aus"),
        "2", 0.2),
    check(QT_TRANSLATE_NOOP("FB_Types", "Mit Ein beginnen"),
          QT_TRANSLATE_NOOP("FB_Types", "Nach der Freigabe ist der Ausgang zuerst Ein, sonst zuerst Aus"), "1"),
};
inline constexpr FB_Pin_Group cClock1Pins[] = {
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Ein lässt den Takt laufen, Aus hält ihn an und schaltet den Ausgang aus")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Takt"))};

inline constexpr FB_Parameter cClock2[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Einschaltdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, die der Ausgang Ein ist"), "5", 0.1),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Ausschaltdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, die der Ausgang Aus ist"), "5", 0.1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Anzahl Takte"),
           QT_TRANSLATE_NOOP("FB_Types", "Nach so vielen Takten endet der Lauf; 0 für ohne Ende"), "0", 0, 65535),
    check(QT_TRANSLATE_NOOP("FB_Types", "Mit Ein beginnen"),
          QT_TRANSLATE_NOOP("FB_Types", "Nach der Freigabe ist der Ausgang zuerst Ein, sonst zuerst Aus"), "1"),
};
inline constexpr FB_Pin_Group cClock2Pins[] = {
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Ein lässt den Takt laufen, Aus hält ihn an und schaltet den Ausgang aus")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Einschaltdauer"), QT_TRANSLATE_NOOP("FB_Types", "tEin"), "7.005",
          QT_TRANSLATE_NOOP("FB_Types", "Sekunden, die statt des Parameters gelten")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Ausschaltdauer"), QT_TRANSLATE_NOOP("FB_Types", "tAus"), "7.005",
          QT_TRANSLATE_NOOP("FB_Types", "Sekunden, die statt des Parameters gelten")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Takt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fertig"), QT_TRANSLATE_NOOP("FB_Types", "Fertig"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein nach dem letzten Takt, Aus mit der nächsten Freigabe"))};

inline constexpr FB_Parameter cFilterDigital[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Mindestdauer Ein"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden muss der Eingang Ein sein, damit der Ausgang folgt"),
            "0.5"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Mindestdauer Aus"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden muss der Eingang Aus sein, damit der Ausgang folgt"),
            "0.5"),
};
inline constexpr FB_Pin_Group cFilterDigitalPins[] = {
    with(cInput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand mit Prellen oder kurzen Störungen")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Zustand ohne Wechsel, die kürzer als die Mindestdauer waren"))};

inline constexpr FB_Choice cValueFilters[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Mindestabstand zum letzten Wert")},
                                              {1, QT_TRANSLATE_NOOP("FB_Types", "Glättung")},
                                              {2, QT_TRANSLATE_NOOP("FB_Types", "Höchste Änderung je Sekunde")}};
inline constexpr FB_Parameter cFilterValue[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Art"), QT_TRANSLATE_NOOP("FB_Types", "Wie der Wert gefiltert wird"),
           cValueFilters),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Mindestabstand"),
                 QT_TRANSLATE_NOOP("FB_Types", "Kleinere Änderungen gegenüber dem zuletzt gesendeten Wert werden nicht "
                                               "gesendet, in der Einheit des Eingangs"),
                 "0.5", 0, 1000000, 3),
          0, 0),
    needs(seconds(QT_TRANSLATE_NOOP("FB_Types", "Zeitkonstante"),
                  QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, in der der Ausgang 63 % eines Sprungs erreicht"),
                  "60", 0.1),
          0, 1),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Höchste Änderung"),
                 QT_TRANSLATE_NOOP("FB_Types", "Um so viel darf sich der Ausgang je Sekunde ändern, in der Einheit des "
                                               "Eingangs"),
                 "1", 0.001, 1000000, 3),
          0, 2),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Sendeabstand"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, die zwischen zwei Telegrammen mindestens vergeht"), "1"),
};
inline constexpr FB_Pin_Group cFilterValuePins[] = {
    with(cInput, "", QT_TRANSLATE_NOOP("FB_Types", "Messwert")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Übernehmen"), QT_TRANSLATE_NOOP("FB_Types", "Über"), cTrigger,
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt den Ausgang sofort auf den Eingang")),
    with(cOutput, "", QT_TRANSLATE_NOOP("FB_Types", "Gefilterter Wert"))};

inline constexpr FB_Choice cPwmRanges[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "0 bis 100 %")},
                                           {1, QT_TRANSLATE_NOOP("FB_Types", "0 bis 255")}};
inline constexpr FB_Parameter cCycle =
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Zykluszeit"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, auf die sich der Stellwert bezieht"), "600", 1);
inline constexpr FB_Parameter cLeastOn = seconds(
    QT_TRANSLATE_NOOP("FB_Types", "Mindestdauer Ein"),
    QT_TRANSLATE_NOOP("FB_Types", "Kürzeres Einschalten entfällt; so viele Sekunden bleibt der Ausgang mindestens Ein"),
    "30");
inline constexpr FB_Parameter cLeastOff = seconds(
    QT_TRANSLATE_NOOP("FB_Types", "Mindestdauer Aus"),
    QT_TRANSLATE_NOOP("FB_Types", "Kürzeres Ausschalten entfällt; so viele Sekunden bleibt der Ausgang mindestens Aus"),
    "30");
inline constexpr FB_Parameter cModulator1[] = {
    cCycle,
    cLeastOn,
    cLeastOff,
    choice(QT_TRANSLATE_NOOP("FB_Types", "Bereich des Stellwerts"),
           QT_TRANSLATE_NOOP("FB_Types", "Welcher Stellwert dauernd Ein bedeutet"), cPwmRanges),
    check(QT_TRANSLATE_NOOP("FB_Types", "Ausgang invertieren"),
          QT_TRANSLATE_NOOP("FB_Types", "Für stromlos offene Ventile: Aus bedeutet offen")),
};
inline constexpr FB_Pin_Group cModulator1Pins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Stellwert"), QT_TRANSLATE_NOOP("FB_Types", "Y"), cPercent,
          QT_TRANSLATE_NOOP("FB_Types", "Anteil der Zykluszeit, den der Ausgang Ein ist")),
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Aus schaltet den Ausgang aus; nicht verbunden ist freigegeben")),
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein und Aus im Verhältnis des Stellwerts"))};

inline constexpr FB_Parameter cModulator2[] = {
    cCycle,
    cLeastOn,
    cLeastOff,
    number(QT_TRANSLATE_NOOP("FB_Types", "Totband"),
           QT_TRANSLATE_NOOP("FB_Types",
                             "Stellwerte zwischen minus und plus so viel Prozent schalten keinen der Ausgänge"),
           "2", 0, 50, 1, QT_TRANSLATE_NOOP("FB_Types", "%")),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Umschaltpause"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, die beim Wechsel der Richtung beide Ausgänge Aus sind"),
            "60"),
};
inline constexpr FB_Pin_Group cModulator2Pins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Stellwert"), QT_TRANSLATE_NOOP("FB_Types", "Y"), "8.010",
          QT_TRANSLATE_NOOP("FB_Types", "Stellwert von -100 bis 100 %, negativ für die Gegenrichtung")),
    with(cEnable, "1.003",
         QT_TRANSLATE_NOOP("FB_Types", "Aus schaltet beide Ausgänge aus; nicht verbunden ist freigegeben")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang plus"), QT_TRANSLATE_NOOP("FB_Types", "A+"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein und Aus im Verhältnis eines positiven Stellwerts, etwa Heizen")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang minus"), QT_TRANSLATE_NOOP("FB_Types", "A-"), cBit,
           QT_TRANSLATE_NOOP("FB_Types", "Ein und Aus im Verhältnis eines negativen Stellwerts, etwa Kühlen"))};

} // namespace FB_Time
