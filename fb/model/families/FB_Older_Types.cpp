#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {1103, QT_TRANSLATE_NOOP("FB_Types", "Block Einzelraumregler (obsolet)"), "FB_Block_Room_Controller_Obsolete"},
    {1120, QT_TRANSLATE_NOOP("FB_Types", "Boilerladung (obsolet)"), "FB_Boiler_Charging"},
    {1300, QT_TRANSLATE_NOOP("FB_Types", "PV Warmwasserbereitung SW 1"), "FB_PV_Hot_Water_SW_1"},
    {.mId = 1343, .mName = QT_TRANSLATE_NOOP("FB_Types", "MQTT Brunnen"), .mClass = "FB_MQTT_Well", .mIsOnce = true},
    {1362, QT_TRANSLATE_NOOP("FB_Types", "Wallbox Easee"), "FB_Wallbox_Easee"},
    {1378, QT_TRANSLATE_NOOP("FB_Types", "Sonos (Cloud API) *"), "FB_Sonos_Cloud"},
    {1911, QT_TRANSLATE_NOOP("FB_Types", "Sonos (obsolet)"), "FB_Sonos_Obsolete"},
    {1912, QT_TRANSLATE_NOOP("FB_Types", "Alexa (obsolet)"), "FB_Alexa_Obsolete"},
    {.mId = 1942, .mName = QT_TRANSLATE_NOOP("FB_Types", "ZEV Zentrale"), .mClass = "FB_ZEV_Central", .mIsOnce = true},
    {1943, QT_TRANSLATE_NOOP("FB_Types", "ZEV Teilnehmer"), "FB_ZEV_Participant"},
    {2048, QT_TRANSLATE_NOOP("FB_Types", "Shelly Trigger"), "FB_Shelly_Trigger"},
};

} // namespace

std::span<const FB_Type> FB_Families::older() {
  return cTypes;
}
