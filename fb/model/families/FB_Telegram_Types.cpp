#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {74, QT_TRANSLATE_NOOP("FB_Types", "KNX Zuweisung 1-1"), "FB_Assign_To_1_1_KNX"},
    {75, QT_TRANSLATE_NOOP("FB_Types", "KNX Zuweisung 1-N"), "FB_Assign_To_1_N_KNX"},
    {76, QT_TRANSLATE_NOOP("FB_Types", "KNX Zuweisung 1-N Wert"), "FB_Assign_To_1_N_KNX_Value"},
    {106, QT_TRANSLATE_NOOP("FB_Types", "Telegramm Überwachung"), "FB_Telegram_Monitoring"},
    {1387, QT_TRANSLATE_NOOP("FB_Types", "Rückmeldung Überwachung"), "FB_Feedback_Monitoring"},
    {66, QT_TRANSLATE_NOOP("FB_Types", "KNX Telegramm Eingang"), "FB_KNX_Telegram_Input"},
    {67, QT_TRANSLATE_NOOP("FB_Types", "KNX Telegramm Ausgang"), "FB_KNX_Telegram_Output"},
    {107, QT_TRANSLATE_NOOP("FB_Types", "KNX zyklisch lesen"), "FB_KNX_Cyclic_Read"},
    {112, QT_TRANSLATE_NOOP("FB_Types", "KNX zyklisch senden"), "FB_KNX_Cyclic_Send"},
    {9107, QT_TRANSLATE_NOOP("FB_Types", "KNX lesen Trigger"), "FB_KNX_Read_Trigger"},
    {109, QT_TRANSLATE_NOOP("FB_Types", "KNX Zeit Server"), "FB_KNX_Time_Server"},
    {939, QT_TRANSLATE_NOOP("FB_Types", "KNX Zeit Decodierer"), "FB_KNX_Time_Decoder"},
    {.mId = 111,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "KNX Zeit Client"),
     .mClass = "FB_KNX_Time_Client",
     .mIsOnce = true},
    {69, QT_TRANSLATE_NOOP("FB_Types", "KNX Torschalter"), "FB_KNX_Gate"},
    {70, QT_TRANSLATE_NOOP("FB_Types", "KNX Trennwandsteuerung"), "FB_KNX_Partition_Wall"},
    {1335, QT_TRANSLATE_NOOP("FB_Types", "KNX 4 Bit Dimmer"), "FB_KNX_Dimmer_4_Bit"},
    {1369, QT_TRANSLATE_NOOP("FB_Types", "KNX RGBW Konverter"), "FB_KNX_RGBW_Converter"},
};

} // namespace

std::span<const FB_Type> FB_Families::telegram() {
  return cTypes;
}
