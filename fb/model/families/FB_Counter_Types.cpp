#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {1201, QT_TRANSLATE_NOOP("FB_Types", "Verbrauch"), "FB_Consumption"},
    {1310, QT_TRANSLATE_NOOP("FB_Types", "Verbrauch Tarif"), "FB_Consumption_Tariff"},
    {1202, QT_TRANSLATE_NOOP("FB_Types", "Anzahl Impulse"), "FB_Pulse_Count"},
    {1203, QT_TRANSLATE_NOOP("FB_Types", "Einschaltzeit"), "FB_Operating_Time"},
    {1205, QT_TRANSLATE_NOOP("FB_Types", "Plus/Minus Zähler"), "FB_Up_Down_Counter"},
    {1200, QT_TRANSLATE_NOOP("FB_Types", "CSV Datei"), "FB_CSV_File"},
    {1206, QT_TRANSLATE_NOOP("FB_Types", "Leistung"), "FB_Power"},
};

} // namespace

std::span<const FB_Type> FB_Families::counter() {
  return cTypes;
}
