#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Function_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Type cTypes[] = {
    type(901, QT_TRANSLATE_NOOP("FB_Types", "Taster digital Zeit"), "FB_Button_Time", FB_Function::cButtonTime,
         FB_Function::cButtonTimePins),
    type(1923, QT_TRANSLATE_NOOP("FB_Types", "Taster digital Puls"), "FB_Button_Pulse", FB_Function::cButtonPulse,
         FB_Function::cButtonPulsePins),
    type(902, QT_TRANSLATE_NOOP("FB_Types", "Mailversand"), "FB_Mail", FB_Function::cMail, FB_Function::cMailPins),
    type(906, QT_TRANSLATE_NOOP("FB_Types", "Befehl ausführen"), "FB_Execute_Command", FB_Function::cExecuteCommand,
         FB_Function::cExecuteCommandPins),
    type(1318, QT_TRANSLATE_NOOP("FB_Types", "FTP/SFTP Upload"), "FB_FTP_Upload", FB_Function::cFTPUpload,
         FB_Function::cFTPUploadPins),
    type(911, QT_TRANSLATE_NOOP("FB_Types", "Rollo digital"), "FB_Shutter", FB_Function::cShutter,
         FB_Function::cShutterPins),
    type(912, QT_TRANSLATE_NOOP("FB_Types", "Jalousie digital"), "FB_Blind", FB_Function::cBlind,
         FB_Function::cBlindPins),
    {900, QT_TRANSLATE_NOOP("FB_Types", "Scriptprogrammierung"), "FB_Lua_Script"},
    once(type(1921, QT_TRANSLATE_NOOP("FB_Types", "Wetter (OpenWeather)"), "FB_Weather_OpenWeather",
              FB_Function::cWeatherOpenWeather, FB_Function::cWeatherOpenWeatherPins)),
};

} // namespace

std::span<const FB_Type> FB_Families::function() {
  return cTypes;
}
