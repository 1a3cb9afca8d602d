#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Shared_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Parameter cHeatingCurve[] = {
    {QT_TRANSLATE_NOOP("FB_Types", "Steilheit"),
     QT_TRANSLATE_NOOP("FB_Types", "Um wie viele Grad der Vorlauf je Grad Außentemperatur steigt"), FB_Editor::Number,
     "1.2", 0.1, 4, 2},
    {QT_TRANSLATE_NOOP("FB_Types", "Parallelverschiebung"),
     QT_TRANSLATE_NOOP("FB_Types", "Verschiebt den Vorlauf, in Grad"), FB_Editor::Number, "0", -20, 20, 1},
    {QT_TRANSLATE_NOOP("FB_Types", "Vorlauf mindestens"), QT_TRANSLATE_NOOP("FB_Types", "In Grad Celsius"),
     FB_Editor::Number, "20", 0, 90, 1},
    {QT_TRANSLATE_NOOP("FB_Types", "Vorlauf höchstens"), QT_TRANSLATE_NOOP("FB_Types", "In Grad Celsius"),
     FB_Editor::Number, "45", 0, 90, 1},
    {QT_TRANSLATE_NOOP("FB_Types", "Heizgrenze"),
     QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur in Grad Celsius, über der nicht geheizt wird"), FB_Editor::Number,
     "17", -20, 40, 1},
};
constexpr FB_Pin_Group cHeatingCurvePins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Außentemperatur"), QT_TRANSLATE_NOOP("FB_Types", "TA")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Raumsollwert"), QT_TRANSLATE_NOOP("FB_Types", "TR")),
    cEnable,
    output(QT_TRANSLATE_NOOP("FB_Types", "Vorlaufsollwert"), QT_TRANSLATE_NOOP("FB_Types", "VL")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Heizbedarf"), QT_TRANSLATE_NOOP("FB_Types", "H")),
};

constexpr FB_Choice cTwoPointDirections[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Heizen")},
                                             {1, QT_TRANSLATE_NOOP("FB_Types", "Kühlen")}};
constexpr FB_Parameter cTwoPoint[] = {
    cHysteresis,
    choice(QT_TRANSLATE_NOOP("FB_Types", "Wirksinn"),
           QT_TRANSLATE_NOOP("FB_Types", "Heizen schaltet unter dem Sollwert ein, Kühlen darüber"),
           cTwoPointDirections),
    cSend,
};
constexpr FB_Pin_Group cTwoPointPins[] = {
    cActual, input(QT_TRANSLATE_NOOP("FB_Types", "Sollwert"), QT_TRANSLATE_NOOP("FB_Types", "Soll")), cEnable, cOutput};

constexpr FB_Type cTypes[] = {
    {.mId = 1104,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Heizkurve"),
     .mClass = "FB_Heating_Curve",
     .mHasPins = true,
     .mParameters = cHeatingCurve,
     .mPins = cHeatingCurvePins},
    {1113, QT_TRANSLATE_NOOP("FB_Types", "Heiz+Kühlkurve"), "FB_Heating_Cooling_Curve"},
    {1408, QT_TRANSLATE_NOOP("FB_Types", "Heizkreis *"), "FB_Heating_Circuit"},
    {1409, QT_TRANSLATE_NOOP("FB_Types", "Wärmeerzeuger *"), "FB_Heat_Generator"},
    {1410, QT_TRANSLATE_NOOP("FB_Types", "Wärmeanforderung *"), "FB_Heat_Demand"},
    {1411, QT_TRANSLATE_NOOP("FB_Types", "Zirkulationspumpe *"), "FB_Circulation_Pump"},
    {1412, QT_TRANSLATE_NOOP("FB_Types", "Warmwasserladung *"), "FB_Hot_Water_Charging"},
    {1110, QT_TRANSLATE_NOOP("FB_Types", "Heizen/Kühlen Umschaltung"), "FB_Heating_Cooling_Changeover"},
    {1106, QT_TRANSLATE_NOOP("FB_Types", "Mischer einfach"), "FB_Mixer"},
    {1112, QT_TRANSLATE_NOOP("FB_Types", "Mischer Rücklaufbegrenzung"), "FB_Mixer_Return_Limit"},
    {1326, QT_TRANSLATE_NOOP("FB_Types", "Mischer KNX Ausgang"), "FB_Mixer_KNX_Output"},
    {.mId = 1100,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Zweipunktregler einf."),
     .mClass = "FB_Two_Point_Controller",
     .mHasPins = true,
     .mParameters = cTwoPoint,
     .mPins = cTwoPointPins},
    {1101, QT_TRANSLATE_NOOP("FB_Types", "Zweipunktregler E/A"), "FB_Two_Point_Controller_On_Off"},
    {1107, QT_TRANSLATE_NOOP("FB_Types", "Dreipunktregler U/O"), "FB_Three_Point_Controller"},
    {1115, QT_TRANSLATE_NOOP("FB_Types", "Dreipunktregler Hys."), "FB_Three_Point_Controller_Hysteresis"},
    {1102, QT_TRANSLATE_NOOP("FB_Types", "PID Regler"), "FB_PID_Controller"},
    {1105, QT_TRANSLATE_NOOP("FB_Types", "Taupunkttemperatur"), "FB_Dew_Point"},
    {1121, QT_TRANSLATE_NOOP("FB_Types", "Solar Puffer einfach"), "FB_Solar_Buffer"},
    {1327, QT_TRANSLATE_NOOP("FB_Types", "Solar Puffer oben/unten"), "FB_Solar_Buffer_Top_Bottom"},
    {1328, QT_TRANSLATE_NOOP("FB_Types", "Solar 1 Boiler/Puffer"), "FB_Solar_1_Boiler"},
    {1329, QT_TRANSLATE_NOOP("FB_Types", "Solar 2 Boiler/Puffer"), "FB_Solar_2_Boilers"},
    {1172, QT_TRANSLATE_NOOP("FB_Types", "Beregnung einfach"), "FB_Irrigation"},
};

} // namespace

std::span<const FB_Type> FB_Families::control() {
  return cTypes;
}
