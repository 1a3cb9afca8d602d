#pragma once

#include "fb/model/families/FB_Automation_Declarations.h"

/// Parameters and pins of controllers.
namespace FB_Controller {

using namespace FB_Shared;

inline constexpr FB_Choice cActingDirections[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Heizen")},
                                                  {1, QT_TRANSLATE_NOOP("FB_Types", "Kühlen")}};
inline constexpr FB_Parameter cActingDirection =
    choice(QT_TRANSLATE_NOOP("FB_Types", "Wirksinn"),
           QT_TRANSLATE_NOOP("FB_Types", "Heizen schaltet unter dem Sollwert ein, Kühlen darüber"), cActingDirections);
inline constexpr FB_Pin_Group cMeasured =
    input(QT_TRANSLATE_NOOP("FB_Types", "Istwert"), QT_TRANSLATE_NOOP("FB_Types", "Ist"), "9",
          QT_TRANSLATE_NOOP("FB_Types", "Gemessener Wert der Regelgröße"));
inline constexpr FB_Pin_Group cSetpoint =
    input(QT_TRANSLATE_NOOP("FB_Types", "Sollwert"), QT_TRANSLATE_NOOP("FB_Types", "Soll"), "9",
          QT_TRANSLATE_NOOP("FB_Types", "Gewünschter Wert der Regelgröße"));
inline constexpr FB_Parameter cTwoPointController[] = {
    cHysteresis,
    cActingDirection,
    cSend,
};
inline constexpr FB_Pin_Group cTwoPointControllerPins[] = {
    cMeasured,
    cSetpoint,
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang"), QT_TRANSLATE_NOOP("FB_Types", "A"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet Heizung oder Kühlung")),
};

inline constexpr FB_Parameter cTwoPointControllerOnOff[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Mindestens ein"),
            QT_TRANSLATE_NOOP("FB_Types", "So lange bleibt der Ausgang mindestens eingeschaltet"), "0"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Mindestens aus"),
            QT_TRANSLATE_NOOP("FB_Types", "So lange bleibt der Ausgang mindestens ausgeschaltet"), "0"),
    cSend,
};
inline constexpr FB_Pin_Group cTwoPointControllerOnOffPins[] = {
    cMeasured,
    input(QT_TRANSLATE_NOOP("FB_Types", "Einschaltwert"), QT_TRANSLATE_NOOP("FB_Types", "Ein"), "9",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, bei dem eingeschaltet wird")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Ausschaltwert"), QT_TRANSLATE_NOOP("FB_Types", "Aus"), "9",
          QT_TRANSLATE_NOOP("FB_Types", "Wert, bei dem ausgeschaltet wird")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Ausgang"), QT_TRANSLATE_NOOP("FB_Types", "A"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Schaltet nach Ein- und Ausschaltwert")),
};

inline constexpr FB_Parameter cThreePointController[] = {
    cHysteresis,
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Verzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "So lange muss eine Grenze verlassen sein"), "0"),
    cSend,
};
inline constexpr FB_Pin_Group cThreePointControllerPins[] = {
    cMeasured,
    input(QT_TRANSLATE_NOOP("FB_Types", "Untere Grenze"), QT_TRANSLATE_NOOP("FB_Types", "U"), "9",
          QT_TRANSLATE_NOOP("FB_Types", "Darunter schaltet der untere Ausgang")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Obere Grenze"), QT_TRANSLATE_NOOP("FB_Types", "O"), "9",
          QT_TRANSLATE_NOOP("FB_Types", "Darüber schaltet der obere Ausgang")),
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Unten"), QT_TRANSLATE_NOOP("FB_Types", "AU"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Istwert unter der unteren Grenze liegt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Mitte"), QT_TRANSLATE_NOOP("FB_Types", "AM"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Istwert zwischen den Grenzen liegt")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Oben"), QT_TRANSLATE_NOOP("FB_Types", "AO"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Istwert über der oberen Grenze liegt")),
};

inline constexpr FB_Parameter cThreePointControllerHysteresis[] = {
    cHysteresis,
    number(QT_TRANSLATE_NOOP("FB_Types", "Totbereich"),
           QT_TRANSLATE_NOOP("FB_Types", "Abstand um den Sollwert, in dem beide Ausgänge aus sind"), "1", 0, 1000000,
           2),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Umschaltpause"),
            QT_TRANSLATE_NOOP("FB_Types", "So lange bleiben beide Ausgänge beim Wechsel aus"), "0"),
    cSend,
};
inline constexpr FB_Pin_Group cThreePointControllerHysteresisPins[] = {
    cMeasured,
    cSetpoint,
    cEnableWhenOn,
    output(QT_TRANSLATE_NOOP("FB_Types", "Auf"), QT_TRANSLATE_NOOP("FB_Types", "A+"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Istwert zu klein ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Zu"), QT_TRANSLATE_NOOP("FB_Types", "A-"), "1.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn der Istwert zu groß ist")),
};

inline constexpr FB_Choice cPidStops[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Kleinste Stellgröße")},
                                          {1, QT_TRANSLATE_NOOP("FB_Types", "Letzte Stellgröße")},
                                          {2, QT_TRANSLATE_NOOP("FB_Types", "Fester Wert")}};
inline constexpr FB_Parameter cPIDController[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Verstärkung Kp"),
           QT_TRANSLATE_NOOP("FB_Types", "Stellgröße je Einheit Abweichung"), "5", 0, 1000, 3),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Nachstellzeit Tn"),
            QT_TRANSLATE_NOOP("FB_Types", "0 schaltet den I-Anteil ab"), "300"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Vorhaltezeit Tv"),
            QT_TRANSLATE_NOOP("FB_Types", "0 schaltet den D-Anteil ab"), "0"),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Zyklus"), QT_TRANSLATE_NOOP("FB_Types", "Abstand, in dem gerechnet wird"),
            "5", 0.1),
    number(QT_TRANSLATE_NOOP("FB_Types", "Stellgröße mindestens"), QT_TRANSLATE_NOOP("FB_Types", "Kleinste Stellgröße"),
           "0", -4294967295.0, 4294967295.0, 2),
    number(QT_TRANSLATE_NOOP("FB_Types", "Stellgröße höchstens"), QT_TRANSLATE_NOOP("FB_Types", "Größte Stellgröße"),
           "100", -4294967295.0, 4294967295.0, 2),
    cActingDirection,
    number(QT_TRANSLATE_NOOP("FB_Types", "Totbereich"),
           QT_TRANSLATE_NOOP("FB_Types", "Bis zu dieser Abweichung bleibt die Stellgröße stehen"), "0", 0, 1000000, 2),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Ohne Freigabe"),
           QT_TRANSLATE_NOOP("FB_Types", "Was ohne Freigabe gesendet wird"), cPidStops),
    needs(number(QT_TRANSLATE_NOOP("FB_Types", "Fester Wert"),
                 QT_TRANSLATE_NOOP("FB_Types", "Stellgröße ohne Freigabe"), "0", -4294967295.0, 4294967295.0, 2),
          8, 2),
    number(QT_TRANSLATE_NOOP("FB_Types", "Mindeständerung"),
           QT_TRANSLATE_NOOP("FB_Types", "Erst ab dieser Änderung wird gesendet"), "1", 0, 1000000, 2),
};
inline constexpr FB_Pin_Group cPIDControllerPins[] = {
    cMeasured,
    cSetpoint,
    cEnableWhenOn,
    input(QT_TRANSLATE_NOOP("FB_Types", "Hand"), QT_TRANSLATE_NOOP("FB_Types", "H"), "1.001",
          QT_TRANSLATE_NOOP("FB_Types", "Ein sendet den Handwert statt der geregelten Stellgröße")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Handwert"), QT_TRANSLATE_NOOP("FB_Types", "HW"), "5.001",
          QT_TRANSLATE_NOOP("FB_Types", "Stellgröße von Hand")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R"), "1.015",
          QT_TRANSLATE_NOOP("FB_Types", "Ein setzt den I-Anteil auf 0")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Stellgröße"), QT_TRANSLATE_NOOP("FB_Types", "Y"), "5.001",
           QT_TRANSLATE_NOOP("FB_Types", "Ausgang des Reglers")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Regelabweichung"), QT_TRANSLATE_NOOP("FB_Types", "e"), "9",
           QT_TRANSLATE_NOOP("FB_Types", "Soll minus Ist")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Begrenzt"), QT_TRANSLATE_NOOP("FB_Types", "B"), "1.011",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, solange die Stellgröße an einer Grenze steht")),
};

inline constexpr FB_Parameter cDewPoint[] = {
    number(QT_TRANSLATE_NOOP("FB_Types", "Warnabstand"),
           QT_TRANSLATE_NOOP("FB_Types", "Unter diesem Abstand der Oberfläche zum Taupunkt wird gewarnt"), "2", 0, 20,
           1, QT_TRANSLATE_NOOP("FB_Types", "K")),
    number(QT_TRANSLATE_NOOP("FB_Types", "Luftdruck"), QT_TRANSLATE_NOOP("FB_Types", "Für die absolute Feuchte"),
           "1013", 700, 1100, 0, QT_TRANSLATE_NOOP("FB_Types", "hPa")),
    cSend,
};
inline constexpr FB_Pin_Group cDewPointPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Temperatur"), QT_TRANSLATE_NOOP("FB_Types", "T"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Lufttemperatur")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Relative Feuchte"), QT_TRANSLATE_NOOP("FB_Types", "rF"), "9.007",
          QT_TRANSLATE_NOOP("FB_Types", "Relative Luftfeuchte")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Oberflächentemperatur"), QT_TRANSLATE_NOOP("FB_Types", "TO"), "9.001",
          QT_TRANSLATE_NOOP("FB_Types", "Kälteste Stelle, zum Beispiel der Vorlauf der Kühldecke")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Taupunkt"), QT_TRANSLATE_NOOP("FB_Types", "TP"), "9.001",
           QT_TRANSLATE_NOOP("FB_Types", "Temperatur, bei der Wasser kondensiert")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Absolute Feuchte"), QT_TRANSLATE_NOOP("FB_Types", "aF"), "9.029",
           QT_TRANSLATE_NOOP("FB_Types", "Wassergehalt der Luft")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Kondensation droht"), QT_TRANSLATE_NOOP("FB_Types", "K"), "1.005",
           QT_TRANSLATE_NOOP("FB_Types", "Ein, wenn die Oberfläche dem Taupunkt zu nahe kommt")),
};

} // namespace FB_Controller
