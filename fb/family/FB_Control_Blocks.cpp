#include "fb/family/FB_Control_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Heating_Curve>(1104),
    row<FB_Heating_Cooling_Curve>(1113),
    row<FB_Heating_Circuit>(1408),
    row<FB_Heat_Generator>(1409),
    row<FB_Heat_Demand>(1410),
    row<FB_Circulation_Pump>(1411),
    row<FB_Hot_Water_Charging>(1412),
    row<FB_Heating_Cooling_Changeover>(1110),
    row<FB_Mixer>(1106),
    row<FB_Mixer_Return_Limit>(1112),
    row<FB_Mixer_KNX_Output>(1326),
    row<FB_Two_Point_Controller>(1100),
    row<FB_Two_Point_Controller_On_Off>(1101),
    row<FB_Three_Point_Controller>(1107),
    row<FB_Three_Point_Controller_Hysteresis>(1115),
    row<FB_PID_Controller>(1102),
    row<FB_Dew_Point>(1105),
    row<FB_Solar_Buffer>(1121),
    row<FB_Solar_Buffer_Top_Bottom>(1327),
    row<FB_Solar_1_Boiler>(1328),
    row<FB_Solar_2_Boilers>(1329),
    row<FB_Irrigation>(1172),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::control() {
  return cRows;
}
