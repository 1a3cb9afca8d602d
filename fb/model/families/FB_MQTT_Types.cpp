#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {2051, QT_TRANSLATE_NOOP("FB_Types", "MQTT Eingang"), "FB_MQTT_Input"},
    {2068, QT_TRANSLATE_NOOP("FB_Types", "MQTT Ausgang"), "FB_MQTT_Output"},
    {.mId = 2127,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "MQTT Adressen I/O"),
     .mClass = "FB_MQTT_Addresses",
     .mIsOnce = true},
    {2076, QT_TRANSLATE_NOOP("FB_Types", "MQTT ALAN"), "FB_MQTT_ALAN"},
    {.mId = 1384, .mName = QT_TRANSLATE_NOOP("FB_Types", "MQTT GDAS *"), .mClass = "FB_MQTT_GDAS", .mIsOnce = true},
    {2080, QT_TRANSLATE_NOOP("FB_Types", "MQTT NUKI"), "FB_MQTT_NUKI"},
    {2093, QT_TRANSLATE_NOOP("FB_Types", "Wetterstation ECOWITT WS90(GW200x)"), "FB_Weather_Ecowitt_WS90"},
    {2094, QT_TRANSLATE_NOOP("FB_Types", "Wetterstation ECOWITT WN67/WN69(GW110x/GW120x)"),
     "FB_Weather_Ecowitt_WN67_WN69"},
};

} // namespace

std::span<const FB_Type> FB_Families::mqtt() {
  return cTypes;
}
