#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Logic_Declarations.h"
#include "fb/model/families/FB_Selection_Declarations.h"

namespace {

using namespace FB_Logic;
using namespace FB_Selection;

constexpr FB_Type cTypes[] = {
    type(53, QT_TRANSLATE_NOOP("FB_Types", "Invertierung"), "FB_INV", cInversion, cInversionPins),
    type(1373, QT_TRANSLATE_NOOP("FB_Types", "Invertierung 1-N"), "FB_INV_1N", cInversionN, cInversionNPins),
    type(50, QT_TRANSLATE_NOOP("FB_Types", "Und"), "FB_AND", cGate64, cGatePins),
    type(51, QT_TRANSLATE_NOOP("FB_Types", "Oder"), "FB_OR", cGate64, cGatePins),
    type(52, QT_TRANSLATE_NOOP("FB_Types", "Exklusiv oder"), "FB_XOR", cGate32, cGatePins),
    type(62, QT_TRANSLATE_NOOP("FB_Types", "Setzen/Rücksetzen"), "FB_Set_Reset", cSetReset, cSetResetPins),
    type(1941, QT_TRANSLATE_NOOP("FB_Types", "Flankenauswertung"), "FB_Edge_Evaluation", cEdge, cEdgePins),
    type(54, QT_TRANSLATE_NOOP("FB_Types", "Zuweisung 1-1 digital"), "FB_Assign_To_1_1_Digital", cAssign, cAssignPins),
    type(55, QT_TRANSLATE_NOOP("FB_Types", "Zuweisung 1-N digital"), "FB_Assign_To_1_N_Digital", cAssignN,
         cAssignNPins),
    type(60, QT_TRANSLATE_NOOP("FB_Types", "Wahlschalter N-1"), "FB_Input_Switch", cInputSwitch, cInputSwitchPins),
    type(63, QT_TRANSLATE_NOOP("FB_Types", "Wahlschalter 1-N"), "FB_Output_Switch", cOutputSwitch, cOutputSwitchPins),
    type(61, QT_TRANSLATE_NOOP("FB_Types", "Hand-Automatik"), "FB_Manual_Automatic", cManualAutomatic,
         cManualAutomaticPins),
    type(71, QT_TRANSLATE_NOOP("FB_Types", "Stufenschalter"), "FB_Step", cStep, cStepPins),
    type(1407, QT_TRANSLATE_NOOP("FB_Types", "Schrittkette *"), "FB_Step_Chain", cStepChain, cStepChainPins),
    type(1395, QT_TRANSLATE_NOOP("FB_Types", "Binärkodierer *"), "FB_Binary_Encoder", cEncoder, cEncoderPins),
    type(1396, QT_TRANSLATE_NOOP("FB_Types", "Binärdekodierer *"), "FB_Binary_Decoder", cDecoder, cDecoderPins),
    type(1397, QT_TRANSLATE_NOOP("FB_Types", "Schieberegister *"), "FB_Shift_Register", cShift, cShiftPins),
};

} // namespace

std::span<const FB_Type> FB_Families::logic() {
  return cTypes;
}
