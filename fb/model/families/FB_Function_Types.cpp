#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {901, QT_TRANSLATE_NOOP("FB_Types", "Taster digital Zeit"), "FB_Button_Time"},
    {1923, QT_TRANSLATE_NOOP("FB_Types", "Taster digital Puls"), "FB_Button_Pulse"},
    {902, QT_TRANSLATE_NOOP("FB_Types", "Mailversand"), "FB_Mail"},
    {906, QT_TRANSLATE_NOOP("FB_Types", "Befehl ausführen"), "FB_Execute_Command"},
    {1318, QT_TRANSLATE_NOOP("FB_Types", "FTP/SFTP Upload"), "FB_FTP_Upload"},
    {911, QT_TRANSLATE_NOOP("FB_Types", "Rollo digital"), "FB_Shutter"},
    {912, QT_TRANSLATE_NOOP("FB_Types", "Jalousie digital"), "FB_Blind"},
    {900, QT_TRANSLATE_NOOP("FB_Types", "Scriptprogrammierung"), "FB_Lua_Script"},
    {.mId = 1921,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Wetter (OpenWeather)"),
     .mClass = "FB_Weather_OpenWeather",
     .mIsOnce = true},
};

} // namespace

std::span<const FB_Type> FB_Families::function() {
  return cTypes;
}
