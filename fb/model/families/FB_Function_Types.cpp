#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

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
    {901, QT_TRANSLATE_NOOP("FB_Types", "Taster digital Zeit"), "FB_Button_Time"},
    {1923, QT_TRANSLATE_NOOP("FB_Types", "Taster digital Puls"), "FB_Button_Pulse"},
    {902, QT_TRANSLATE_NOOP("FB_Types", "Mailversand"), "FB_Mail"},
    {906, QT_TRANSLATE_NOOP("FB_Types", "Befehl ausführen"), "FB_Execute_Command"},
    {1318, QT_TRANSLATE_NOOP("FB_Types", "FTP/SFTP Upload"), "FB_FTP_Upload"},
    {911, QT_TRANSLATE_NOOP("FB_Types", "Rollo digital"), "FB_Shutter"},
    {912, QT_TRANSLATE_NOOP("FB_Types", "Jalousie digital"), "FB_Blind"},
    {.mId = 900,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Scriptprogrammierung"),
     .mClass = "FB_Lua_Script",
     .mHasPins = true,
     .mParameters = cScriptParameters,
     .mPins = cScriptPins},
    {.mId = 1921,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Wetter (OpenWeather)"),
     .mClass = "FB_Weather_OpenWeather",
     .mIsOnce = true},
};

} // namespace

std::span<const FB_Type> FB_Families::function() {
  return cTypes;
}
