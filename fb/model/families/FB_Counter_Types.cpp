#include "fb/model/families/FB_Counter_Declarations.h"
#include "fb/model/families/FB_Families.h"

namespace {

using namespace FB_Shared;

constexpr FB_Type cTypes[] = {
    type(1201, QT_TRANSLATE_NOOP("FB_Types", "Verbrauch"), "FB_Consumption", FB_Counter::cConsumption,
         FB_Counter::cConsumptionPins),
    type(1310, QT_TRANSLATE_NOOP("FB_Types", "Verbrauch Tarif"), "FB_Consumption_Tariff",
         FB_Counter::cConsumptionTariff, FB_Counter::cConsumptionTariffPins),
    type(1202, QT_TRANSLATE_NOOP("FB_Types", "Anzahl Impulse"), "FB_Pulse_Count", FB_Counter::cPulseCount,
         FB_Counter::cPulseCountPins),
    type(1203, QT_TRANSLATE_NOOP("FB_Types", "Einschaltzeit"), "FB_Operating_Time", FB_Counter::cOperatingTime,
         FB_Counter::cOperatingTimePins),
    type(1205, QT_TRANSLATE_NOOP("FB_Types", "Plus/Minus Zähler"), "FB_Up_Down_Counter", FB_Counter::cUpDownCounter,
         FB_Counter::cUpDownCounterPins),
    type(1200, QT_TRANSLATE_NOOP("FB_Types", "CSV Datei"), "FB_CSV_File", FB_Counter::cCSVFile,
         FB_Counter::cCSVFilePins),
    type(1206, QT_TRANSLATE_NOOP("FB_Types", "Leistung"), "FB_Power", FB_Counter::cPower, FB_Counter::cPowerPins),
};

} // namespace

std::span<const FB_Type> FB_Families::counter() {
  return cTypes;
}
