#include "fb/family/FB_Time_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Time_On_Delay>(100),
    row<FB_Time_Off_Delay>(101),
    row<FB_Time_On_Off_Delay>(1938),
    row<FB_Time_Staircase>(110),
    row<FB_Time_Switch_On_Limit>(1405),
    row<FB_Time_Pulse>(102),
    row<FB_Time_Clock_Generator_1>(1364),
    row<FB_Time_Clock_Generator_2>(103),
    row<FB_Filter_Digital>(108),
    row<FB_Filter_Value>(1341),
    row<FB_Time_Pulse_At_Time>(104),
    row<FB_Time_Pulse_Width_Modulator_1>(105),
    row<FB_Time_Pulse_Width_Modulator_2>(1355),
    row<FB_Clock_Week>(1331),
    row<FB_Clock_Holiday>(1940),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::time() {
  return cRows;
}
