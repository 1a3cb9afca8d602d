#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Shared_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Parameter cInvert =
    check(QT_TRANSLATE_NOOP("FB_Types", "Ausgang invertieren"),
          QT_TRANSLATE_NOOP("FB_Types", "Der Ausgang sendet das Gegenteil des Ergebnisses"));
constexpr FB_Parameter cGate64[] = {inputCount(2, 64, "2"), cInvert, cSend};
constexpr FB_Parameter cGate32[] = {inputCount(2, 32, "2"), cInvert, cSend};
constexpr FB_Pin_Group cGatePins[] = {inputs(2), cOutput};

constexpr FB_Parameter cInversion[] = {
    {QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Eingänge, jeder mit seinem Ausgang"),
     FB_Editor::Number, "1", 1, 64},
    cSend,
};
constexpr FB_Pin_Group cInversionPins[] = {inputs(1), outputs(1)};

constexpr FB_Choice cPriorities[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen")},
                                     {1, QT_TRANSLATE_NOOP("FB_Types", "Setzen")}};
constexpr FB_Choice cStartStates[] = {{0, QT_TRANSLATE_NOOP("FB_Types", "Aus")},
                                      {1, QT_TRANSLATE_NOOP("FB_Types", "Ein")},
                                      {2, QT_TRANSLATE_NOOP("FB_Types", "Letzter Zustand")}};
constexpr FB_Parameter cSetReset[] = {
    choice(QT_TRANSLATE_NOOP("FB_Types", "Vorrang"),
           QT_TRANSLATE_NOOP("FB_Types", "Was gilt, wenn beide Eingänge gesetzt sind"), cPriorities),
    choice(QT_TRANSLATE_NOOP("FB_Types", "Zustand beim Start"),
           QT_TRANSLATE_NOOP("FB_Types", "Mit welchem Zustand der Ausgang beim Start der Steuerung beginnt"),
           cStartStates),
    cSend,
};
constexpr FB_Pin_Group cSetResetPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Setzen"), QT_TRANSLATE_NOOP("FB_Types", "S")),
    input(QT_TRANSLATE_NOOP("FB_Types", "Rücksetzen"), QT_TRANSLATE_NOOP("FB_Types", "R")), cOutput};

constexpr FB_Parameter cEdge[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Impulsdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, nach der ein Ausgang wieder Aus sendet; 0 sendet nur Ein"),
            "0.5"),
};
constexpr FB_Pin_Group cEdgePins[] = {
    cInput, output(QT_TRANSLATE_NOOP("FB_Types", "Steigende Flanke"), QT_TRANSLATE_NOOP("FB_Types", "SF")),
    output(QT_TRANSLATE_NOOP("FB_Types", "Fallende Flanke"), QT_TRANSLATE_NOOP("FB_Types", "FF"))};

constexpr FB_Parameter cAssign[] = {
    {QT_TRANSLATE_NOOP("FB_Types", "Anzahl"), QT_TRANSLATE_NOOP("FB_Types", "Eingänge, jeder mit seinem Ausgang"),
     FB_Editor::Number, "1", 1, 64},
    {QT_TRANSLATE_NOOP("FB_Types", "Wert bei Ein"),
     QT_TRANSLATE_NOOP("FB_Types", "Was ein Ausgang sendet, wenn sein Eingang Ein ist; bei Aus sendet er 0"),
     FB_Editor::Number, "1", -4294967295.0, 4294967295.0, 6},
};
constexpr FB_Pin_Group cAssignPins[] = {
    {FB_Side::Input, QT_TRANSLATE_NOOP("FB_Types", "E %1"), QT_TRANSLATE_NOOP("FB_Types", "E%1"), 1, 0},
    {FB_Side::Output, QT_TRANSLATE_NOOP("FB_Types", "A %1"), QT_TRANSLATE_NOOP("FB_Types", "A%1"), 1, 0},
};

constexpr FB_Parameter cInputSwitch[] = {
    inputCount(2, 32, "2"),
    {QT_TRANSLATE_NOOP("FB_Types", "Wert für Eingang 1"),
     QT_TRANSLATE_NOOP("FB_Types", "Wert der Auswahl, der den ersten Eingang wählt; die weiteren Eingänge folgen"),
     FB_Editor::Number, "0", 0, 255},
    cSend,
};
constexpr FB_Pin_Group cInputSwitchPins[] = {
    input(QT_TRANSLATE_NOOP("FB_Types", "Auswahl"), QT_TRANSLATE_NOOP("FB_Types", "Ausw")), inputs(2), cOutput};

constexpr FB_Type cTypes[] = {
    {.mId = 53,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Invertierung"),
     .mClass = "FB_INV",
     .mHasPins = true,
     .mParameters = cInversion,
     .mPins = cInversionPins},
    {1373, QT_TRANSLATE_NOOP("FB_Types", "Invertierung 1-N"), "FB_INV_1N"},
    {.mId = 50,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Und"),
     .mClass = "FB_AND",
     .mHasPins = true,
     .mParameters = cGate64,
     .mPins = cGatePins},
    {.mId = 51,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Oder"),
     .mClass = "FB_OR",
     .mHasPins = true,
     .mParameters = cGate64,
     .mPins = cGatePins},
    {.mId = 52,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Exklusiv oder"),
     .mClass = "FB_XOR",
     .mHasPins = true,
     .mParameters = cGate32,
     .mPins = cGatePins},
    {.mId = 62,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Setzen/Rücksetzen"),
     .mClass = "FB_Set_Reset",
     .mHasPins = true,
     .mParameters = cSetReset,
     .mPins = cSetResetPins},
    {.mId = 1941,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Flankenauswertung"),
     .mClass = "FB_Edge_Evaluation",
     .mHasPins = true,
     .mParameters = cEdge,
     .mPins = cEdgePins},
    {.mId = 54,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Zuweisung 1-1 digital"),
     .mClass = "FB_Assign_To_1_1_Digital",
     .mHasPins = true,
     .mParameters = cAssign,
     .mPins = cAssignPins},
    {55, QT_TRANSLATE_NOOP("FB_Types", "Zuweisung 1-N digital"), "FB_Assign_To_1_N_Digital"},
    {.mId = 60,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Wahlschalter N-1"),
     .mClass = "FB_Input_Switch",
     .mHasPins = true,
     .mParameters = cInputSwitch,
     .mPins = cInputSwitchPins},
    {63, QT_TRANSLATE_NOOP("FB_Types", "Wahlschalter 1-N"), "FB_Output_Switch"},
    {61, QT_TRANSLATE_NOOP("FB_Types", "Hand-Automatik"), "FB_Manual_Automatic"},
    {71, QT_TRANSLATE_NOOP("FB_Types", "Stufenschalter"), "FB_Step"},
    {1407, QT_TRANSLATE_NOOP("FB_Types", "Schrittkette *"), "FB_Step_Chain"},
    {1395, QT_TRANSLATE_NOOP("FB_Types", "Binärkodierer *"), "FB_Binary_Encoder"},
    {1396, QT_TRANSLATE_NOOP("FB_Types", "Binärdekodierer *"), "FB_Binary_Decoder"},
    {1397, QT_TRANSLATE_NOOP("FB_Types", "Schieberegister *"), "FB_Shift_Register"},
};

} // namespace

std::span<const FB_Type> FB_Families::logic() {
  return cTypes;
}
