#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_KNX_Declarations.h"
#include "fb/model/families/FB_Telegram_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Type cTypes[] = {
    type(74, QT_TRANSLATE_NOOP("FB_Types", "KNX Zuweisung 1-1"), "FB_Assign_To_1_1_KNX", FB_Telegram::cAssignTo11KNX,
         FB_Telegram::cAssignTo11KNXPins),
    type(75, QT_TRANSLATE_NOOP("FB_Types", "KNX Zuweisung 1-N"), "FB_Assign_To_1_N_KNX", FB_Telegram::cAssignTo1NKNX,
         FB_Telegram::cAssignTo1NKNXPins),
    type(76, QT_TRANSLATE_NOOP("FB_Types", "KNX Zuweisung 1-N Wert"), "FB_Assign_To_1_N_KNX_Value",
         FB_Telegram::cAssignTo1NKNXValue, FB_Telegram::cAssignTo1NKNXValuePins),
    type(106, QT_TRANSLATE_NOOP("FB_Types", "Telegramm Überwachung"), "FB_Telegram_Monitoring",
         FB_Telegram::cTelegramMonitoring, FB_Telegram::cTelegramMonitoringPins),
    type(1387, QT_TRANSLATE_NOOP("FB_Types", "Rückmeldung Überwachung"), "FB_Feedback_Monitoring",
         FB_Telegram::cFeedbackMonitoring, FB_Telegram::cFeedbackMonitoringPins),
    type(66, QT_TRANSLATE_NOOP("FB_Types", "KNX Telegramm Eingang"), "FB_KNX_Telegram_Input",
         FB_Telegram::cKNXTelegramInput, FB_Telegram::cKNXTelegramInputPins),
    type(67, QT_TRANSLATE_NOOP("FB_Types", "KNX Telegramm Ausgang"), "FB_KNX_Telegram_Output",
         FB_Telegram::cKNXTelegramOutput, FB_Telegram::cKNXTelegramOutputPins),
    type(107, QT_TRANSLATE_NOOP("FB_Types", "KNX zyklisch lesen"), "FB_KNX_Cyclic_Read", FB_Telegram::cKNXCyclicRead,
         FB_Telegram::cKNXCyclicReadPins),
    type(112, QT_TRANSLATE_NOOP("FB_Types", "KNX zyklisch senden"), "FB_KNX_Cyclic_Send", FB_Telegram::cKNXCyclicSend,
         FB_Telegram::cKNXCyclicSendPins),
    type(9107, QT_TRANSLATE_NOOP("FB_Types", "KNX lesen Trigger"), "FB_KNX_Read_Trigger", FB_Telegram::cKNXReadTrigger,
         FB_Telegram::cKNXReadTriggerPins),
    type(109, QT_TRANSLATE_NOOP("FB_Types", "KNX Zeit Server"), "FB_KNX_Time_Server", FB_KNX::cKNXTimeServer,
         FB_KNX::cKNXTimeServerPins),
    type(939, QT_TRANSLATE_NOOP("FB_Types", "KNX Zeit Decodierer"), "FB_KNX_Time_Decoder", FB_KNX::cKNXTimeDecoder,
         FB_KNX::cKNXTimeDecoderPins),
    once(type(111, QT_TRANSLATE_NOOP("FB_Types", "KNX Zeit Client"), "FB_KNX_Time_Client", FB_KNX::cKNXTimeClient,
              FB_KNX::cKNXTimeClientPins)),
    type(69, QT_TRANSLATE_NOOP("FB_Types", "KNX Torschalter"), "FB_KNX_Gate", FB_KNX::cKNXGate, FB_KNX::cKNXGatePins),
    type(70, QT_TRANSLATE_NOOP("FB_Types", "KNX Trennwandsteuerung"), "FB_KNX_Partition_Wall",
         FB_KNX::cKNXPartitionWall, FB_KNX::cKNXPartitionWallPins),
    type(1335, QT_TRANSLATE_NOOP("FB_Types", "KNX 4 Bit Dimmer"), "FB_KNX_Dimmer_4_Bit", FB_KNX::cKNXDimmer4Bit,
         FB_KNX::cKNXDimmer4BitPins),
    type(1369, QT_TRANSLATE_NOOP("FB_Types", "KNX RGBW Konverter"), "FB_KNX_RGBW_Converter", FB_KNX::cKNXRGBWConverter,
         FB_KNX::cKNXRGBWConverterPins),
};

} // namespace

std::span<const FB_Type> FB_Families::telegram() {
  return cTypes;
}
