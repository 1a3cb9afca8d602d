#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Shared_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Parameter cTwo[] = {cHysteresis, cSend};
constexpr FB_Pin_Group cTwoPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang 1"), QT_TRANSLATE_NOOP("FB_Types", "E1")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Eingang 2"), QT_TRANSLATE_NOOP("FB_Types", "E2")), cOutput};

constexpr FB_Parameter cLimit[] = {
    {QT_TRANSLATE_NOOP("FB_Types", "Einschalten über"),
     QT_TRANSLATE_NOOP("FB_Types", "Wert, über dem der Ausgang Ein wird, in der Einheit des Eingangs"),
     FB_Editor::Number, "25", -1000000, 1000000, 2},
    {QT_TRANSLATE_NOOP("FB_Types", "Ausschalten unter"),
     QT_TRANSLATE_NOOP("FB_Types", "Wert, unter dem der Ausgang Aus wird, in der Einheit des Eingangs"),
     FB_Editor::Number, "20", -1000000, 1000000, 2},
    cSend,
};
constexpr FB_Pin_Group cLimitPins[] = {cActual, cOutput};

constexpr FB_Type cTypes[] = {
    {1360, QT_TRANSLATE_NOOP("FB_Types", "== Gleich (1xE)"), "FB_Compare_Equal_1"},
    {204, QT_TRANSLATE_NOOP("FB_Types", "== Gleich (2xE)"), "FB_Compare_Equal_2"},
    {1361, QT_TRANSLATE_NOOP("FB_Types", "!= Ungleich (1xE)"), "FB_Compare_Not_Equal_1"},
    {1340, QT_TRANSLATE_NOOP("FB_Types", "!= Ungleich (2xE)"), "FB_Compare_Not_Equal_2"},
    {1358, QT_TRANSLATE_NOOP("FB_Types", ">  Größer (1xE)"), "FB_Compare_Greater_1"},
    {.mId = 202,
     .mName = QT_TRANSLATE_NOOP("FB_Types", ">  Größer (2xE)"),
     .mClass = "FB_Compare_Greater_2",
     .mHasPins = true,
     .mParameters = cTwo,
     .mPins = cTwoPins},
    {1359, QT_TRANSLATE_NOOP("FB_Types", ">= Größer gleich (1xE)"), "FB_Compare_Greater_Equal_1"},
    {203, QT_TRANSLATE_NOOP("FB_Types", ">= Größer gleich (2xE)"), "FB_Compare_Greater_Equal_2"},
    {1356, QT_TRANSLATE_NOOP("FB_Types", "<  Kleiner (1xE)"), "FB_Compare_Less_1"},
    {200, QT_TRANSLATE_NOOP("FB_Types", "<  Kleiner (2xE)"), "FB_Compare_Less_2"},
    {1357, QT_TRANSLATE_NOOP("FB_Types", "<= Kleiner gleich (1xE)"), "FB_Compare_Less_Equal_1"},
    {201, QT_TRANSLATE_NOOP("FB_Types", "<= Kleiner gleich (2xE)"), "FB_Compare_Less_Equal_2"},
    {.mId = 210,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Grenzwertschalter"),
     .mClass = "FB_Compare_Limit",
     .mHasPins = true,
     .mParameters = cLimit,
     .mPins = cLimitPins},
    {.mId = 1937,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Änderung pro Zeit"),
     .mClass = "FB_Compare_Limit_Time",
     .mHelp = "fb_compare_change_per_time.html"},
    {1401, QT_TRANSLATE_NOOP("FB_Types", "Differenz Grenzwertschalter *"), "FB_Compare_Limit_Difference"},
    {1402, QT_TRANSLATE_NOOP("FB_Types", "Zustandsauswertung *"), "FB_State_Evaluation"},
    {1399, QT_TRANSLATE_NOOP("FB_Types", "Messwert Plausibilität *"), "FB_Measured_Value_Plausibility"},
    {1400, QT_TRANSLATE_NOOP("FB_Types", "Messwert Überwachung *"), "FB_Measured_Value_Monitoring"},
};

} // namespace

std::span<const FB_Type> FB_Families::compare() {
  return cTypes;
}
