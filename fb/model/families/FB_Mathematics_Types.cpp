#include "fb/model/families/FB_Arithmetic_Declarations.h"
#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Formula_Declaration.h"
#include "fb/model/families/FB_Value_Declarations.h"

namespace {

using namespace FB_Shared;

constexpr FB_Type cTypes[] = {
    type(1352, QT_TRANSLATE_NOOP("FB_Types", "Addition (1xE)"), "FB_Mathematics_Addition_1", FB_Arithmetic::cAddition1,
         FB_Arithmetic::cAddition1Pins),
    type(300, QT_TRANSLATE_NOOP("FB_Types", "Addition (2xE)"), "FB_Mathematics_Addition_2", FB_Arithmetic::cAddition2,
         FB_Arithmetic::cAddition2Pins),
    type(1353, QT_TRANSLATE_NOOP("FB_Types", "Subtraktion (1xE)"), "FB_Mathematics_Subtraction_1",
         FB_Arithmetic::cSubtraction1, FB_Arithmetic::cSubtraction1Pins),
    type(301, QT_TRANSLATE_NOOP("FB_Types", "Subtraktion (2xE)"), "FB_Mathematics_Subtraction_2",
         FB_Arithmetic::cSubtraction2, FB_Arithmetic::cSubtraction2Pins),
    type(1348, QT_TRANSLATE_NOOP("FB_Types", "Multiplikation (1xE)"), "FB_Mathematics_Multiplication_1",
         FB_Arithmetic::cMultiplication1, FB_Arithmetic::cMultiplication1Pins),
    type(302, QT_TRANSLATE_NOOP("FB_Types", "Multiplikation (2xE)"), "FB_Mathematics_Multiplication_2",
         FB_Arithmetic::cMultiplication2, FB_Arithmetic::cMultiplication2Pins),
    type(1347, QT_TRANSLATE_NOOP("FB_Types", "Division (1xE)"), "FB_Mathematics_Division_1", FB_Arithmetic::cDivision1,
         FB_Arithmetic::cDivision1Pins),
    type(303, QT_TRANSLATE_NOOP("FB_Types", "Division (2xE)"), "FB_Mathematics_Division_2", FB_Arithmetic::cDivision2,
         FB_Arithmetic::cDivision2Pins),
    type(311, QT_TRANSLATE_NOOP("FB_Types", "Durchschnitt"), "FB_Mathematics_Average", FB_Arithmetic::cAverage,
         FB_Arithmetic::cAveragePins),
    type(1204, QT_TRANSLATE_NOOP("FB_Types", "Durchschnitt pro Zeit"), "FB_Average_Per_Time",
         FB_Arithmetic::cAveragePerTime, FB_Arithmetic::cAveragePerTimePins),
    type(1398, QT_TRANSLATE_NOOP("FB_Types", "Gleitender Mittelwert *"), "FB_Mathematics_Moving_Average",
         FB_Arithmetic::cMovingAverage, FB_Arithmetic::cMovingAveragePins),
    type(304, QT_TRANSLATE_NOOP("FB_Types", "Absolutwert"), "FB_Mathematics_Absolute", FB_Arithmetic::cAbsolute,
         FB_Arithmetic::cAbsolutePins),
    type(1336, QT_TRANSLATE_NOOP("FB_Types", "Rundung"), "FB_Mathematics_Round", FB_Arithmetic::cRound,
         FB_Arithmetic::cRoundPins),
    type(1939, QT_TRANSLATE_NOOP("FB_Types", "Potenzieren"), "FB_Mathematics_Power", FB_Arithmetic::cPower,
         FB_Arithmetic::cPowerPins),
    type(1394, QT_TRANSLATE_NOOP("FB_Types", "Modulo *"), "FB_Mathematics_Modulo", FB_Arithmetic::cModulo,
         FB_Arithmetic::cModuloPins),
    FB_Formula_Declaration::cType,
    type(305, QT_TRANSLATE_NOOP("FB_Types", "Sonnenstand"), "FB_Sun_Position", FB_Value::cSunPosition,
         FB_Value::cSunPositionPins),
    type(64, QT_TRANSLATE_NOOP("FB_Types", "Multiplexer"), "FB_Multiplex", FB_Value::cMultiplex,
         FB_Value::cMultiplexPins),
    type(65, QT_TRANSLATE_NOOP("FB_Types", "Demultiplexer"), "FB_Demultiplex", FB_Value::cDemultiplex,
         FB_Value::cDemultiplexPins),
    type(1338, QT_TRANSLATE_NOOP("FB_Types", "Zufallszahl"), "FB_Random", FB_Value::cRandom, FB_Value::cRandomPins),
    type(1349, QT_TRANSLATE_NOOP("FB_Types", "Temperatur Umrechnung"), "FB_ConvertTemperature",
         FB_Value::cConvertTemperature, FB_Value::cConvertTemperaturePins),
    type(312, QT_TRANSLATE_NOOP("FB_Types", "Interpolation"), "FB_Mathematics_Interpolate", FB_Value::cInterpolate,
         FB_Value::cInterpolatePins),
    type(306, QT_TRANSLATE_NOOP("FB_Types", "Minimum"), "FB_Mathematics_Minimum", FB_Value::cMinimum,
         FB_Value::cMinimumPins),
    type(307, QT_TRANSLATE_NOOP("FB_Types", "Maximum"), "FB_Mathematics_Maximum", FB_Value::cMaximum,
         FB_Value::cMaximumPins),
    type(1933, QT_TRANSLATE_NOOP("FB_Types", "Min/Max Speicher"), "FB_Minimum_Maximum_Memory",
         FB_Value::cMinimumMaximumMemory, FB_Value::cMinimumMaximumMemoryPins),
    type(1334, QT_TRANSLATE_NOOP("FB_Types", "Min/Max Filter"), "FB_Minimum_Maximum_Filter",
         FB_Value::cMinimumMaximumFilter, FB_Value::cMinimumMaximumFilterPins),
    type(1375, QT_TRANSLATE_NOOP("FB_Types", "Trend"), "FB_Trend", FB_Value::cTrend, FB_Value::cTrendPins),
    type(1346, QT_TRANSLATE_NOOP("FB_Types", "Positiv/Negativ Filter"), "FB_Positive_Negative_Filter",
         FB_Value::cPositiveNegativeFilter, FB_Value::cPositiveNegativeFilterPins),
};

} // namespace

std::span<const FB_Type> FB_Families::mathematics() {
  return cTypes;
}
