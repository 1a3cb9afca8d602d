#include "fb/family/FB_Older_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Block_Room_Controller_Obsolete>(1103),
    row<FB_Boiler_Charging>(1120),
    row<FB_PV_Hot_Water_SW_1>(1300),
    row<FB_MQTT_Well>(1343),
    row<FB_Wallbox_Easee>(1362),
    row<FB_Sonos_Cloud>(1378),
    row<FB_Sonos_Obsolete>(1911),
    row<FB_Alexa_Obsolete>(1912),
    row<FB_ZEV_Central>(1942),
    row<FB_ZEV_Participant>(1943),
    row<FB_Shelly_Trigger>(2048),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::older() {
  return cRows;
}
