#include "fb/family/FB_MQTT_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_MQTT_Input>(2051),
    row<FB_MQTT_Output>(2068),
    row<FB_MQTT_Addresses>(2127),
    row<FB_MQTT_ALAN>(2076),
    row<FB_MQTT_GDAS>(1384),
    row<FB_MQTT_NUKI>(2080),
    row<FB_Weather_Ecowitt_WS90>(2093),
    row<FB_Weather_Ecowitt_WN67_WN69>(2094),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::mqtt() {
  return cRows;
}
