#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Measurement_Declarations.h"

namespace {

using namespace FB_Shared;
using namespace FB_Measurement;

constexpr FB_Parameter cWith =
    number(QT_TRANSLATE_NOOP("FB_Types", "Vergleichswert"),
           QT_TRANSLATE_NOOP("FB_Types", "Wert, mit dem der Eingang verglichen wird, in seiner Einheit"), "0",
           -4294967295.0, 4294967295.0, 6);
constexpr FB_Parameter cTolerance = number(
    QT_TRANSLATE_NOOP("FB_Types", "Toleranz"),
    QT_TRANSLATE_NOOP("FB_Types", "Um so viel dürfen die Werte voneinander abweichen und gelten noch als gleich"), "0",
    0, 1000000, 6);
constexpr FB_Parameter cOrder1[] = {cWith, cHysteresis, cSend};
constexpr FB_Parameter cEqual1[] = {cWith, cTolerance, cSend};
constexpr FB_Parameter cOrder2[] = {cHysteresis, cSend};
constexpr FB_Parameter cEqual2[] = {cTolerance, cSend};
constexpr FB_Pin_Group cIsTrue =
    with(cOutput, cBit, QT_TRANSLATE_NOOP("FB_Types", "Ein, solange der Vergleich zutrifft"));
constexpr FB_Pin_Group cOne[] = {
    with(cInput, "", QT_TRANSLATE_NOOP("FB_Types", "Wert, der mit dem Parameter verglichen wird")), cIsTrue};
constexpr FB_Pin_Group cTwo[] = {input(QT_TRANSLATE_NOOP("FB_Types", "Eingang 1"), QT_TRANSLATE_NOOP("FB_Types", "E1"),
                                       "", QT_TRANSLATE_NOOP("FB_Types", "Wert links vom Vergleichszeichen")),
                                 input(QT_TRANSLATE_NOOP("FB_Types", "Eingang 2"), QT_TRANSLATE_NOOP("FB_Types", "E2"),
                                       "", QT_TRANSLATE_NOOP("FB_Types", "Wert rechts vom Vergleichszeichen")),
                                 cIsTrue};

constexpr FB_Type cTypes[] = {
    type(1360, QT_TRANSLATE_NOOP("FB_Types", "== Gleich (1xE)"), "FB_Compare_Equal_1", cEqual1, cOne),
    type(204, QT_TRANSLATE_NOOP("FB_Types", "== Gleich (2xE)"), "FB_Compare_Equal_2", cEqual2, cTwo),
    type(1361, QT_TRANSLATE_NOOP("FB_Types", "!= Ungleich (1xE)"), "FB_Compare_Not_Equal_1", cEqual1, cOne),
    type(1340, QT_TRANSLATE_NOOP("FB_Types", "!= Ungleich (2xE)"), "FB_Compare_Not_Equal_2", cEqual2, cTwo),
    type(1358, QT_TRANSLATE_NOOP("FB_Types", ">  Größer (1xE)"), "FB_Compare_Greater_1", cOrder1, cOne),
    type(202, QT_TRANSLATE_NOOP("FB_Types", ">  Größer (2xE)"), "FB_Compare_Greater_2", cOrder2, cTwo),
    type(1359, QT_TRANSLATE_NOOP("FB_Types", ">= Größer gleich (1xE)"), "FB_Compare_Greater_Equal_1", cOrder1, cOne),
    type(203, QT_TRANSLATE_NOOP("FB_Types", ">= Größer gleich (2xE)"), "FB_Compare_Greater_Equal_2", cOrder2, cTwo),
    type(1356, QT_TRANSLATE_NOOP("FB_Types", "<  Kleiner (1xE)"), "FB_Compare_Less_1", cOrder1, cOne),
    type(200, QT_TRANSLATE_NOOP("FB_Types", "<  Kleiner (2xE)"), "FB_Compare_Less_2", cOrder2, cTwo),
    type(1357, QT_TRANSLATE_NOOP("FB_Types", "<= Kleiner gleich (1xE)"), "FB_Compare_Less_Equal_1", cOrder1, cOne),
    type(201, QT_TRANSLATE_NOOP("FB_Types", "<= Kleiner gleich (2xE)"), "FB_Compare_Less_Equal_2", cOrder2, cTwo),
    type(210, QT_TRANSLATE_NOOP("FB_Types", "Grenzwertschalter"), "FB_Compare_Limit", cLimit, cLimitPins),
    withHelp(
        type(1937, QT_TRANSLATE_NOOP("FB_Types", "Änderung pro Zeit"), "FB_Compare_Limit_Time", cChange, cChangePins),
        "fb_compare_change_per_time.html"),
    type(1401, QT_TRANSLATE_NOOP("FB_Types", "Differenz Grenzwertschalter *"), "FB_Compare_Limit_Difference",
         cDifference, cDifferencePins),
    type(1402, QT_TRANSLATE_NOOP("FB_Types", "Zustandsauswertung *"), "FB_State_Evaluation", cStates, cStatesPins),
    type(1399, QT_TRANSLATE_NOOP("FB_Types", "Messwert Plausibilität *"), "FB_Measured_Value_Plausibility",
         cPlausibility, cPlausibilityPins),
    type(1400, QT_TRANSLATE_NOOP("FB_Types", "Messwert Überwachung *"), "FB_Measured_Value_Monitoring", cMonitoring,
         cMonitoringPins),
};

} // namespace

std::span<const FB_Type> FB_Families::compare() {
  return cTypes;
}
