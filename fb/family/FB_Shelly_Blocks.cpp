#include "fb/family/FB_Shelly_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Shelly_1>(2050),
    row<FB_Shelly_Plus_1>(2062),
    row<FB_Shelly_1PM>(2073),
    row<FB_Shelly_Plus_1PM>(2057),
    row<FB_Shelly_Plus_1PM_Mini>(2083),
    row<FB_Shelly_1_Mini>(2082),
    row<FB_Shelly_PM_Mini>(2081),
    row<FB_Shelly_Plus_Smoke>(2074),
    row<FB_Shelly_25_Relay>(2053),
    row<FB_Shelly_25_Shutter>(2054),
    row<FB_Shelly_Plus_2PM_Relay>(2060),
    row<FB_Shelly_Plus_2PM_Shutter>(2061),
    row<FB_Shelly_DALI_Dimmer>(2090),
    row<FB_Shelly_Pro_3>(2088),
    row<FB_Shelly_Pro_4PM>(2072),
    row<FB_Shelly_Dimmer_2>(2055),
    row<FB_Shelly_RGBW_2>(2077),
    row<FB_Shelly_Plus_RGBW_PM>(2096),
    row<FB_Shelly_Plug_S>(2056),
    row<FB_Shelly_Plus_Plug_S>(2075),
    row<FB_Shelly_Plug_M>(2100),
    row<FB_Shelly_Motion>(2059),
    row<FB_Shelly_Flood>(2067),
    row<FB_Shelly_Flood_Gen_3>(2097),
    row<FB_Shelly_Presence>(2098),
    row<FB_Shelly_HT>(2070),
    row<FB_Shelly_Plus_HT>(2071),
    row<FB_Shelly_3EM>(2049),
    row<FB_Shelly_Pro_3EM>(2079),
    row<FB_Shelly_EM>(2052),
    row<FB_Shelly_2DW>(2058),
    row<FB_Shelly_I3>(2063),
    row<FB_Shelly_I4>(2065),
    row<FB_Shelly_Wall_Display>(2078),
    row<FB_Shelly_Button_1>(2066),
    row<FB_Shelly_TRV>(2069),
    row<FB_Shelly_UNI>(2064),
    row<FB_Shelly_Plus_UNI>(2089),
    row<FB_Shelly_BLU_Button_1>(2084),
    row<FB_Shelly_BLU_RC_Button_4>(2092),
    row<FB_Shelly_BLU_Door_Window>(2085),
    row<FB_Shelly_BLU_Motion>(2086),
    row<FB_Shelly_BLU_HT>(2087),
    row<FB_Shelly_BLU_TRV>(2091),
    row<FB_Shelly_BLU_Ecowitt_WS90>(2099),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::shelly() {
  return cRows;
}
