#include "fb/family/FB_Alarm_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Alarm_Detector>(1020),
    row<FB_Alarm_Central>(1023),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::alarm() {
  return cRows;
}
