#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Hardware_Declarations.h"
#include "fb/model/families/FB_Modbus_Declaration.h"

namespace {

using namespace FB_Hardware;

constexpr FB_Type cTypes[] = {
    once(type(1919, QT_TRANSLATE_NOOP("FB_Types", "M8800 Bussystem"), "FB_M8800_Bus_System", cModuleBus,
              cModuleBusPins)),
    type(1918, QT_TRANSLATE_NOOP("FB_Types", "KNX Schnittstelle"), "FB_KNX_Interface", cKnx, cKnxPins),
    type(1910, QT_TRANSLATE_NOOP("FB_Types", "DMX"), "FB_DMX", cDmx, cDmxPins),
    type(1913, QT_TRANSLATE_NOOP("FB_Types", "M-BUS"), "FB_MBus", cMBus, cMBusPins),
    FB_Modbus_Declaration::cType,
    type(1915, QT_TRANSLATE_NOOP("FB_Types", "Modbus TCP Slave"), "FB_Modbus_TCP_Slave", cSlave, cSlavePins),
    once(type(1337, QT_TRANSLATE_NOOP("FB_Types", "CPU Info"), "FB_CPU_Info", cCpu, cCpuPins)),
};

} // namespace

std::span<const FB_Type> FB_Families::hardware() {
  return cTypes;
}
