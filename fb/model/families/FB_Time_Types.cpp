#include "fb/model/families/FB_Clock_Declarations.h"
#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Time_Declarations.h"

namespace {

using namespace FB_Clock;
using namespace FB_Time;

constexpr FB_Type cTypes[] = {
    type(100, QT_TRANSLATE_NOOP("FB_Types", "Einschaltverzögerung"), "FB_Time_On_Delay", cDelay, cOnDelayPins),
    type(101, QT_TRANSLATE_NOOP("FB_Types", "Ausschaltverzögerung"), "FB_Time_Off_Delay", cDelay, cOffDelayPins),
    type(1938, QT_TRANSLATE_NOOP("FB_Types", "Ein-Ausschaltverzögerung"), "FB_Time_On_Off_Delay", cOnOffDelay,
         cOnOffDelayPins),
    type(110, QT_TRANSLATE_NOOP("FB_Types", "Treppenhausverzögerung"), "FB_Time_Staircase", cStaircase, cStaircasePins),
    type(1405, QT_TRANSLATE_NOOP("FB_Types", "Einschaltbegrenzung *"), "FB_Time_Switch_On_Limit", cSwitchOnLimit,
         cSwitchOnLimitPins),
    type(102, QT_TRANSLATE_NOOP("FB_Types", "Impulszeit"), "FB_Time_Pulse", cPulse, cPulsePins),
    type(1364, QT_TRANSLATE_NOOP("FB_Types", "Taktgeber 1"), "FB_Time_Clock_Generator_1", cClock1, cClock1Pins),
    type(103, QT_TRANSLATE_NOOP("FB_Types", "Taktgeber 2"), "FB_Time_Clock_Generator_2", cClock2, cClock2Pins),
    type(108, QT_TRANSLATE_NOOP("FB_Types", "Filter digital"), "FB_Filter_Digital", cFilterDigital, cFilterDigitalPins),
    type(1341, QT_TRANSLATE_NOOP("FB_Types", "Filter Wert"), "FB_Filter_Value", cFilterValue, cFilterValuePins),
    type(104, QT_TRANSLATE_NOOP("FB_Types", "Impuls Zeitpunkt"), "FB_Time_Pulse_At_Time", cPulseAtTime,
         cPulseAtTimePins),
    type(105, QT_TRANSLATE_NOOP("FB_Types", "Pulsweitenmodulator 1"), "FB_Time_Pulse_Width_Modulator_1", cModulator1,
         cModulator1Pins),
    type(1355, QT_TRANSLATE_NOOP("FB_Types", "Pulsweitenmodulator 2"), "FB_Time_Pulse_Width_Modulator_2", cModulator2,
         cModulator2Pins),
    withHelp(type(1331, QT_TRANSLATE_NOOP("FB_Types", "Wochenschaltuhr"), "FB_Clock_Week", cWeek, cWeekPins),
             "fb_time_clock_week.html"),
    withHelp(type(1940, QT_TRANSLATE_NOOP("FB_Types", "Feiertagschaltuhr"), "FB_Clock_Holiday", cHoliday, cHolidayPins),
             "fb_time_clock_holiday.html"),
};

} // namespace

std::span<const FB_Type> FB_Families::time() {
  return cTypes;
}
