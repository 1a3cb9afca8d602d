#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {2050, QT_TRANSLATE_NOOP("FB_Types", "Shelly 1"), "FB_Shelly_1"},
    {2062, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus 1"), "FB_Shelly_Plus_1"},
    {2073, QT_TRANSLATE_NOOP("FB_Types", "Shelly 1PM"), "FB_Shelly_1PM"},
    {2057, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus 1 PM (Gen 3/4)"), "FB_Shelly_Plus_1PM"},
    {2083, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus 1PM Mini (Gen 3/4)"), "FB_Shelly_Plus_1PM_Mini"},
    {2082, QT_TRANSLATE_NOOP("FB_Types", "Shelly 1 Mini (Gen 3/4)"), "FB_Shelly_1_Mini"},
    {2081, QT_TRANSLATE_NOOP("FB_Types", "Shelly PM Mini (Gen 3/4)"), "FB_Shelly_PM_Mini"},
    {2074, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus Smoke"), "FB_Shelly_Plus_Smoke"},
    {2053, QT_TRANSLATE_NOOP("FB_Types", "Shelly 2.5 Relais"), "FB_Shelly_25_Relay"},
    {2054, QT_TRANSLATE_NOOP("FB_Types", "Shelly 2.5 Rollo"), "FB_Shelly_25_Shutter"},
    {2060, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus 2 PM Relais"), "FB_Shelly_Plus_2PM_Relay"},
    {2061, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus 2 PM Rollo"), "FB_Shelly_Plus_2PM_Shutter"},
    {2090, QT_TRANSLATE_NOOP("FB_Types", "Shelly DALI Dimmer (Gen 3/4)"), "FB_Shelly_DALI_Dimmer"},
    {2088, QT_TRANSLATE_NOOP("FB_Types", "Shelly-Pro 3"), "FB_Shelly_Pro_3"},
    {2072, QT_TRANSLATE_NOOP("FB_Types", "Shelly-Pro 4 PM"), "FB_Shelly_Pro_4PM"},
    {2055, QT_TRANSLATE_NOOP("FB_Types", "Shelly-Dimmer 2"), "FB_Shelly_Dimmer_2"},
    {2077, QT_TRANSLATE_NOOP("FB_Types", "Shelly RGBW 2"), "FB_Shelly_RGBW_2"},
    {2096, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus RGBW PM"), "FB_Shelly_Plus_RGBW_PM"},
    {2056, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plug S"), "FB_Shelly_Plug_S"},
    {2075, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plus Plug S (Gen 3/4/AZ)"), "FB_Shelly_Plus_Plug_S"},
    {2100, QT_TRANSLATE_NOOP("FB_Types", "Shelly Plug M Gen3 *"), "FB_Shelly_Plug_M"},
    {2059, QT_TRANSLATE_NOOP("FB_Types", "Shelly Motion"), "FB_Shelly_Motion"},
    {2067, QT_TRANSLATE_NOOP("FB_Types", "Shelly Flood"), "FB_Shelly_Flood"},
    {2097, QT_TRANSLATE_NOOP("FB_Types", "Shelly Flood Gen 3/4"), "FB_Shelly_Flood_Gen_3"},
    {2098, QT_TRANSLATE_NOOP("FB_Types", "Shelly Presence Gen 4"), "FB_Shelly_Presence"},
    {2070, QT_TRANSLATE_NOOP("FB_Types", "Shelly H&T Sensor"), "FB_Shelly_HT"},
    {2071, QT_TRANSLATE_NOOP("FB_Types", "Shelly HPlus &T Sensor"), "FB_Shelly_Plus_HT"},
    {2049, QT_TRANSLATE_NOOP("FB_Types", "Shelly-3EM Energiezähler 3 Phasig"), "FB_Shelly_3EM"},
    {2079, QT_TRANSLATE_NOOP("FB_Types", "Shelly-Pro-3EM (Gen 3/4) Energiezähler 3 Phasig"), "FB_Shelly_Pro_3EM"},
    {2052, QT_TRANSLATE_NOOP("FB_Types", "Shelly-EM Energiezähler 2 Phasig"), "FB_Shelly_EM"},
    {2058, QT_TRANSLATE_NOOP("FB_Types", "Shelly-2DW Fenster/Tür Kontakt"), "FB_Shelly_2DW"},
    {2063, QT_TRANSLATE_NOOP("FB_Types", "Shelly-I3 3x Eingang"), "FB_Shelly_I3"},
    {2065, QT_TRANSLATE_NOOP("FB_Types", "Shelly-I4 4x Eingang"), "FB_Shelly_I4"},
    {2078, QT_TRANSLATE_NOOP("FB_Types", "Shelly Wall Display"), "FB_Shelly_Wall_Display"},
    {2066, QT_TRANSLATE_NOOP("FB_Types", "Shelly Button 1"), "FB_Shelly_Button_1"},
    {2069, QT_TRANSLATE_NOOP("FB_Types", "Shelly-TRV WIFI Thermostat"), "FB_Shelly_TRV"},
    {2064, QT_TRANSLATE_NOOP("FB_Types", "Shelly-UNI Universalmodul"), "FB_Shelly_UNI"},
    {2089, QT_TRANSLATE_NOOP("FB_Types", "Shelly-Plus-UNI Universalmodul"), "FB_Shelly_Plus_UNI"},
    {2084, QT_TRANSLATE_NOOP("FB_Types", "Shelly BLU Button 1"), "FB_Shelly_BLU_Button_1"},
    {2092, QT_TRANSLATE_NOOP("FB_Types", "Shelly BLU RC Button 4"), "FB_Shelly_BLU_RC_Button_4"},
    {2085, QT_TRANSLATE_NOOP("FB_Types", "Shelly BLU Door/Window"), "FB_Shelly_BLU_Door_Window"},
    {2086, QT_TRANSLATE_NOOP("FB_Types", "Shelly BLU Motion"), "FB_Shelly_BLU_Motion"},
    {2087, QT_TRANSLATE_NOOP("FB_Types", "Shelly BLU H&T"), "FB_Shelly_BLU_HT"},
    {2091, QT_TRANSLATE_NOOP("FB_Types", "Shelly-TRV BLU Thermostat"), "FB_Shelly_BLU_TRV"},
    {2099, QT_TRANSLATE_NOOP("FB_Types", "Wetterstation Ecowitt WS90 (Shelly BLU) *"), "FB_Shelly_BLU_Ecowitt_WS90"},
};

} // namespace

std::span<const FB_Type> FB_Families::shelly() {
  return cTypes;
}
