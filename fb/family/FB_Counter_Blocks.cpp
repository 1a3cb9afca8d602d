#include "fb/family/FB_Counter_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Consumption>(1201),    row<FB_Consumption_Tariff>(1310), row<FB_Pulse_Count>(1202),
    row<FB_Operating_Time>(1203), row<FB_Up_Down_Counter>(1205),    row<FB_CSV_File>(1200),
    row<FB_Power>(1206),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::counter() {
  return cRows;
}
