#include "fb/model/families/FB_Families.h"

#include <QtGlobal>

namespace {

constexpr FB_Type cTypes[] = {
    {1020, QT_TRANSLATE_NOOP("FB_Types", "Alarmanlage Melder"), "FB_Alarm_Detector"},
    {1023, QT_TRANSLATE_NOOP("FB_Types", "Alarmanlage Zentrale"), "FB_Alarm_Central"},
};

} // namespace

std::span<const FB_Type> FB_Families::alarm() {
  return cTypes;
}
