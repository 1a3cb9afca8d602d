#include "fb/family/FB_Telegram_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Assign_To_1_1_KNX>(74),       row<FB_Assign_To_1_N_KNX>(75),
    row<FB_Assign_To_1_N_KNX_Value>(76), row<FB_Telegram_Monitoring>(106),
    row<FB_Feedback_Monitoring>(1387),   row<FB_KNX_Telegram_Input>(66),
    row<FB_KNX_Telegram_Output>(67),     row<FB_KNX_Cyclic_Read>(107),
    row<FB_KNX_Cyclic_Send>(112),        row<FB_KNX_Read_Trigger>(9107),
    row<FB_KNX_Time_Server>(109),        row<FB_KNX_Time_Decoder>(939),
    row<FB_KNX_Time_Client>(111),        row<FB_KNX_Gate>(69),
    row<FB_KNX_Partition_Wall>(70),      row<FB_KNX_Dimmer_4_Bit>(1335),
    row<FB_KNX_RGBW_Converter>(1369),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::telegram() {
  return cRows;
}
