#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {1324, QT_TRANSLATE_NOOP("FB_Types", "PV Warmwasserbereitung"), "FB_PV_Hot_Water"},
    {1301, QT_TRANSLATE_NOOP("FB_Types", "PV Last"), "FB_PV_Load"},
    {1309, QT_TRANSLATE_NOOP("FB_Types", "PV Laufzeit"), "FB_PV_Running_Time"},
    {1308, QT_TRANSLATE_NOOP("FB_Types", "Konstantlichtregelung"), "FB_Constant_Light"},
    {1365, QT_TRANSLATE_NOOP("FB_Types", "Wallbox Allgemein"), "FB_Wallbox_General"},
    {1322, QT_TRANSLATE_NOOP("FB_Types", "Wallbox KEBA"), "FB_Wallbox_KEBA"},
    {1323, QT_TRANSLATE_NOOP("FB_Types", "Wallbox NRGkick"), "FB_Wallbox_NRGkick"},
    {1376, QT_TRANSLATE_NOOP("FB_Types", "Wallbox go-e Charger"), "FB_Wallbox_GoE"},
    {1391, QT_TRANSLATE_NOOP("FB_Types", "OCPP Wallbox *"), "FB_OCPP_Wallbox"},
    {1390, QT_TRANSLATE_NOOP("FB_Types", "OCPP Zentrale *"), "FB_OCPP_Central"},
    {1374, QT_TRANSLATE_NOOP("FB_Types", "Marstek Speicher"), "FB_Marstek_Storage"},
    {1333, QT_TRANSLATE_NOOP("FB_Types", "Wallbox Lastmanagement"), "FB_Wallbox_Load_Management"},
    {.mId = 1924, .mName = QT_TRANSLATE_NOOP("FB_Types", "AWATTAR *"), .mClass = "FB_Awattar", .mIsOnce = true},
    {.mId = 1367,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Day-Ahead-Strompreise ENTSO *"),
     .mClass = "FB_Day_Ahead_Prices",
     .mIsOnce = true},
    {.mId = 1388, .mName = QT_TRANSLATE_NOOP("FB_Types", "eFriends *"), .mClass = "FB_EFriends", .mIsOnce = true},
    {1351, QT_TRANSLATE_NOOP("FB_Types", "PV Ertrag Vorhersage *"), "FB_PV_Forecast"},
};

} // namespace

std::span<const FB_Type> FB_Families::energy() {
  return cTypes;
}
