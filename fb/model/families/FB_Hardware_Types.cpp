#include "fb/model/families/FB_Families.h"
#include "fb/model/families/FB_Modbus_Declaration.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {.mId = 1919,
     .mName = QT_TRANSLATE_NOOP("FB_Types", "M8800 Bussystem"),
     .mClass = "FB_M8800_Bus_System",
     .mIsOnce = true},
    {1918, QT_TRANSLATE_NOOP("FB_Types", "KNX Schnittstelle"), "FB_KNX_Interface"},
    {1910, QT_TRANSLATE_NOOP("FB_Types", "DMX"), "FB_DMX"},
    {1913, QT_TRANSLATE_NOOP("FB_Types", "M-BUS"), "FB_MBus"},
    FB_Modbus_Declaration::cType,
    {1915, QT_TRANSLATE_NOOP("FB_Types", "Modbus TCP Slave"), "FB_Modbus_TCP_Slave"},
    {.mId = 1337, .mName = QT_TRANSLATE_NOOP("FB_Types", "CPU Info"), .mClass = "FB_CPU_Info", .mIsOnce = true},
};

} // namespace

std::span<const FB_Type> FB_Families::hardware() {
  return cTypes;
}
