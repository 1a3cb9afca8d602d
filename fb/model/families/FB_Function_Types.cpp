#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Function_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Parameter cScriptParameters[] = {
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Script"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Der Programmtext in der Sprache Lua"),
     .mEditor = FB_Editor::Window},
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Anzahl Eingänge"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Eingänge, die das Script liest"),
     .mDefault = "1",
     .mMinimum = 1,
     .mMaximum = 64},
    {.mName = QT_TRANSLATE_NOOP("FB_Types", "Anzahl Ausgänge"),
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Ausgänge, auf die das Script schreibt"),
     .mDefault = "1",
     .mMinimum = 1,
     .mMaximum = 64},
};
constexpr FB_Pin_Group cScriptPins[] = {
    {.mLongName = QT_TRANSLATE_NOOP("FB_Types", "Eingang %1"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "E%1"),
     .mParameter = 1,
     .mDescription =
         QT_TRANSLATE_NOOP("FB_Types", "Wert, den das Script liest; eine Änderung ruft onInputChanged auf")},
    {.mSide = FB_Side::Output,
     .mLongName = QT_TRANSLATE_NOOP("FB_Types", "Ausgang %1"),
     .mShortName = QT_TRANSLATE_NOOP("FB_Types", "A%1"),
     .mParameter = 2,
     .mDescription = QT_TRANSLATE_NOOP("FB_Types", "Wert, den das Script setzt")},
};

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
    type(900, QT_TRANSLATE_NOOP("FB_Types", "Scriptprogrammierung"), "FB_Lua_Script", cScriptParameters, cScriptPins),
    once(type(1921, QT_TRANSLATE_NOOP("FB_Types", "Wetter (OpenWeather)"), "FB_Weather_OpenWeather",
              FB_Function::cWeatherOpenWeather, FB_Function::cWeatherOpenWeatherPins)),
};

} // namespace

std::span<const FB_Type> FB_Families::function() {
  return cTypes;
}
