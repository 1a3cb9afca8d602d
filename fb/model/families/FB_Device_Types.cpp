#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {1379, QT_TRANSLATE_NOOP("FB_Types", "Sonos (lokal)"), "FB_Sonos_Local"},
    {1380, QT_TRANSLATE_NOOP("FB_Types", "Alexa (lokal)"), "FB_Alexa_Local"},
    {1381, QT_TRANSLATE_NOOP("FB_Types", "Matter Gerät *"), "FB_Matter_Device"},
    {1382, QT_TRANSLATE_NOOP("FB_Types", "Doorbird Türsprechanlage *"), "FB_Doorbird"},
    {1383, QT_TRANSLATE_NOOP("FB_Types", "Siemens Guarto 3000 Alarmanlage"), "FB_Siemens_Guarto_3000"},
    {1914, QT_TRANSLATE_NOOP("FB_Types", "IP Kamera"), "FB_IP_Camera"},
    {910, QT_TRANSLATE_NOOP("FB_Types", "Wetterstation"), "FB_Weather_Station"},
    {917, QT_TRANSLATE_NOOP("FB_Types", "Sentiotec"), "FB_Sentiotec"},
    {919, QT_TRANSLATE_NOOP("FB_Types", "Alarmanlage ABI"), "FB_Alarm_ABI"},
    {913, QT_TRANSLATE_NOOP("FB_Types", "Alarmanlage Jablotron"), "FB_Alarm_Jablotron"},
    {908, QT_TRANSLATE_NOOP("FB_Types", "EKEY UDP"), "FB_EKEY_UDP"},
    {1908, QT_TRANSLATE_NOOP("FB_Types", "EKEY UDP Trigger"), "FB_EKEY_UDP_Trigger"},
    {.mId = 1342,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "LAN Master IO"),
     .mClass = "FB_LAN_Master_IO",
     .mIsOnce = true},
    {.mId = 1344,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "CAN Master IO"),
     .mClass = "FB_CAN_Master_IO",
     .mIsOnce = true},
    {.mId = 1345, .mName = QT_TRANSLATE_NOOP("FB_Types", "CAN ESD IO"), .mClass = "FB_CAN_ESD_IO", .mIsOnce = true},
    {1332, QT_TRANSLATE_NOOP("FB_Types", "Kostal Pico TCP"), "FB_Kostal_Pico_TCP"},
    {2129, QT_TRANSLATE_NOOP("FB_Types", "Philips Hue Lampe"), "FB_Philips_Hue_Lamp"},
    {2130, QT_TRANSLATE_NOOP("FB_Types", "Philips Hue Gruppe"), "FB_Philips_Hue_Group"},
    {2132, QT_TRANSLATE_NOOP("FB_Types", "KLF 200 / VELUX *"), "FB_KLF_200"},
    {2133, QT_TRANSLATE_NOOP("FB_Types", "Home Connect / BSH *"), "FB_Home_Connect"},
    {1385, QT_TRANSLATE_NOOP("FB_Types", "Husqvarna Automower"), "FB_Husqvarna_Automower"},
};

} // namespace

std::span<const FB_Type> FB_Families::device() {
  return cTypes;
}
