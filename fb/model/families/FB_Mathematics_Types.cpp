#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Formula_Declaration.h"
#include "fb/model/families/FB_Shared_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Parameter cOfSome[] = {inputCount(2, 32, "2"), cSend};
constexpr FB_Pin_Group cOfSomePins[] = {inputs(2), cResult};

constexpr FB_Type cTypes[] = {
    {1352, QT_TRANSLATE_NOOP("FB_Types", "Addition (1xE)"), "FB_Mathematics_Addition_1"},
    {.mId = 300,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Addition (2xE)"),
     .mClass = "FB_Mathematics_Addition_2",
     .mHasPins = true,
     .mParameters = cOfSome,
     .mPins = cOfSomePins},
    {1353, QT_TRANSLATE_NOOP("FB_Types", "Subtraktion (1xE)"), "FB_Mathematics_Subtraction_1"},
    {301, QT_TRANSLATE_NOOP("FB_Types", "Subtraktion (2xE)"), "FB_Mathematics_Subtraction_2"},
    {1348, QT_TRANSLATE_NOOP("FB_Types", "Multiplikation (1xE)"), "FB_Mathematics_Multiplication_1"},
    {302, QT_TRANSLATE_NOOP("FB_Types", "Multiplikation (2xE)"), "FB_Mathematics_Multiplication_2"},
    {1347, QT_TRANSLATE_NOOP("FB_Types", "Division (1xE)"), "FB_Mathematics_Division_1"},
    {303, QT_TRANSLATE_NOOP("FB_Types", "Division (2xE)"), "FB_Mathematics_Division_2"},
    {.mId = 311,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Durchschnitt"),
     .mClass = "FB_Mathematics_Average",
     .mHasPins = true,
     .mParameters = cOfSome,
     .mPins = cOfSomePins},
    {1204, QT_TRANSLATE_NOOP("FB_Types", "Durchschnitt pro Zeit"), "FB_Average_Per_Time"},
    {1398, QT_TRANSLATE_NOOP("FB_Types", "Gleitender Mittelwert *"), "FB_Mathematics_Moving_Average"},
    {304, QT_TRANSLATE_NOOP("FB_Types", "Absolutwert"), "FB_Mathematics_Absolute"},
    {1336, QT_TRANSLATE_NOOP("FB_Types", "Rundung"), "FB_Mathematics_Round"},
    {1939, QT_TRANSLATE_NOOP("FB_Types", "Potenzieren"), "FB_Mathematics_Power"},
    {1394, QT_TRANSLATE_NOOP("FB_Types", "Modulo *"), "FB_Mathematics_Modulo"},
    FB_Formula_Declaration::cType,
    {305, QT_TRANSLATE_NOOP("FB_Types", "Sonnenstand"), "FB_Sun_Position"},
    {64, QT_TRANSLATE_NOOP("FB_Types", "Multiplexer"), "FB_Multiplex"},
    {65, QT_TRANSLATE_NOOP("FB_Types", "Demultiplexer"), "FB_Demultiplex"},
    {1338, QT_TRANSLATE_NOOP("FB_Types", "Zufallszahl"), "FB_Random"},
    {1349, QT_TRANSLATE_NOOP("FB_Types", "Temperatur Umrechnung"), "FB_ConvertTemperature"},
    {312, QT_TRANSLATE_NOOP("FB_Types", "Interpolation"), "FB_Mathematics_Interpolate"},
    {.mId = 306,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Minimum"),
     .mClass = "FB_Mathematics_Minimum",
     .mHasPins = true,
     .mParameters = cOfSome,
     .mPins = cOfSomePins},
    {.mId = 307,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "Maximum"),
     .mClass = "FB_Mathematics_Maximum",
     .mHasPins = true,
     .mParameters = cOfSome,
     .mPins = cOfSomePins},
    {1933, QT_TRANSLATE_NOOP("FB_Types", "Min/Max Speicher"), "FB_Minimum_Maximum_Memory"},
    {1334, QT_TRANSLATE_NOOP("FB_Types", "Min/Max Filter"), "FB_Minimum_Maximum_Filter"},
    {1375, QT_TRANSLATE_NOOP("FB_Types", "Trend"), "FB_Trend"},
    {1346, QT_TRANSLATE_NOOP("FB_Types", "Positiv/Negativ Filter"), "FB_Positive_Negative_Filter"},
};

} // namespace

std::span<const FB_Type> FB_Families::mathematics() {
  return cTypes;
}
