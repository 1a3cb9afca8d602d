#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Shared_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Parameter cRetrigger =
    check(QT_TRANSLATE_NOOP("FB_Types", "Nachtriggern"),
          QT_TRANSLATE_NOOP("FB_Types", "Jedes weitere Ein am Eingang beginnt die Zeit von vorn"), "1");
constexpr FB_Parameter cDelay[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Verzögerung"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, um die der Ausgang dem Eingang folgt"), "10"),
    cRetrigger,
};
constexpr FB_Pin_Group cDelayPins[] = {cInput, cOutput};

constexpr FB_Parameter cPulse[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Impulsdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden, die der Ausgang Ein bleibt"), "1", 0.1),
    cRetrigger,
};

constexpr FB_Parameter cStaircase[] = {
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Leuchtdauer"),
            QT_TRANSLATE_NOOP("FB_Types", "Zeit in Sekunden vom letzten Einschalten bis zum Ausschalten"), "180", 1),
    seconds(QT_TRANSLATE_NOOP("FB_Types", "Vorwarnzeit"),
            QT_TRANSLATE_NOOP("FB_Types", "So viele Sekunden vor dem Ausschalten wird die Vorwarnung Ein"), "20"),
    cRetrigger,
    check(QT_TRANSLATE_NOOP("FB_Types", "Vorzeitig ausschaltbar"),
          QT_TRANSLATE_NOOP("FB_Types", "Ein Aus am Eingang schaltet sofort aus")),
};
constexpr FB_Pin_Group cStaircasePins[] = {
    cInput, input(QT_TRANSLATE_NOOP("FB_Types", "Dauerlicht"), QT_TRANSLATE_NOOP("FB_Types", "D")), cOutput,
    output(QT_TRANSLATE_NOOP("FB_Types", "Vorwarnung"), QT_TRANSLATE_NOOP("FB_Types", "V"))};

constexpr FB_Type cTypes[] = {
    {.mId = 100,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Einschaltverzögerung"),
     .mClass = "FB_Time_On_Delay",
     .mHasPins = true,
     .mParameters = cDelay,
     .mPins = cDelayPins},
    {.mId = 101,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Ausschaltverzögerung"),
     .mClass = "FB_Time_Off_Delay",
     .mHasPins = true,
     .mParameters = cDelay,
     .mPins = cDelayPins},
    {1938, QT_TRANSLATE_NOOP("FB_Types", "Ein-Ausschaltverzögerung"), "FB_Time_On_Off_Delay"},
    {.mId = 110,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Treppenhausverzögerung"),
     .mClass = "FB_Time_Staircase",
     .mHasPins = true,
     .mParameters = cStaircase,
     .mPins = cStaircasePins},
    {1405, QT_TRANSLATE_NOOP("FB_Types", "Einschaltbegrenzung *"), "FB_Time_Switch_On_Limit"},
    {.mId = 102,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Impulszeit"),
     .mClass = "FB_Time_Pulse",
     .mHasPins = true,
     .mParameters = cPulse,
     .mPins = cDelayPins},
    {1364, QT_TRANSLATE_NOOP("FB_Types", "Taktgeber 1"), "FB_Time_Clock_Generator_1"},
    {103, QT_TRANSLATE_NOOP("FB_Types", "Taktgeber 2"), "FB_Time_Clock_Generator_2"},
    {108, QT_TRANSLATE_NOOP("FB_Types", "Filter digital"), "FB_Filter_Digital"},
    {1341, QT_TRANSLATE_NOOP("FB_Types", "Filter Wert"), "FB_Filter_Value"},
    {104, QT_TRANSLATE_NOOP("FB_Types", "Impuls Zeitpunkt"), "FB_Time_Pulse_At_Time"},
    {105, QT_TRANSLATE_NOOP("FB_Types", "Pulsweitenmodulator 1"), "FB_Time_Pulse_Width_Modulator_1"},
    {1355, QT_TRANSLATE_NOOP("FB_Types", "Pulsweitenmodulator 2"), "FB_Time_Pulse_Width_Modulator_2"},
    {.mId = 1331,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Wochenschaltuhr"),
     .mClass = "FB_Clock_Week",
     .mHelp = "fb_time_clock_week.html"},
    {.mId = 1940,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Feiertagschaltuhr"),
     .mClass = "FB_Clock_Holiday",
     .mHelp = "fb_time_clock_holiday.html"},
};

} // namespace

std::span<const FB_Type> FB_Families::time() {
  return cTypes;
}
