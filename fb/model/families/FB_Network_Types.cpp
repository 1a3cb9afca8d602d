#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {903, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk Eingang"), "FB_Network_Input"},
    {904, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk Ausgang"), "FB_Network_Output"},
    {1903, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk API"), "FB_Network_API"},
    {1922, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk JSON/XML"), "FB_Network_JSON_XML"},
    {905, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk Geräte überwachen"), "FB_Network_Device_Monitoring"},
    {918, QT_TRANSLATE_NOOP("FB_Types", "Wake on LAN (WOL)"), "FB_Wake_On_LAN"},
    {907, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk SNMP Eingang"), "FB_Network_SNMP_Input"},
    {1368, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk SNMP Ausgang"), "FB_Network_SNMP_Output"},
    {1916, QT_TRANSLATE_NOOP("FB_Types", "Netzwerk Brücke"), "FB_Network_Bridge"},
    {1406, QT_TRANSLATE_NOOP("FB_Types", "Verteiltes Projekt Status"), "FB_Distributed_Project_Status"},
    {1339, QT_TRANSLATE_NOOP("FB_Types", "PUSH Nachricht NTFY"), "FB_Push_NTFY"},
    {1392, QT_TRANSLATE_NOOP("FB_Types", "PUSH Nachricht Quarna APP *"), "FB_Push_Quarna_App"},
    {1377, QT_TRANSLATE_NOOP("FB_Types", "PUSH Nachricht Pushover"), "FB_Push_Pushover"},
    {1386, QT_TRANSLATE_NOOP("FB_Types", "IFTTT Webhooks"), "FB_IFTTT_Webhooks"},
    {1403, QT_TRANSLATE_NOOP("FB_Types", "Meldezentrale *"), "FB_Message_Central"},
    {1404, QT_TRANSLATE_NOOP("FB_Types", "Meldung *"), "FB_Message"},
};

} // namespace

std::span<const FB_Type> FB_Families::network() {
  return cTypes;
}
