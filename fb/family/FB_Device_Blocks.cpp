#include "fb/family/FB_Device_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Sonos_Local>(1379),
    row<FB_Alexa_Local>(1380),
    row<FB_Matter_Device>(1381),
    row<FB_Doorbird>(1382),
    row<FB_Siemens_Guarto_3000>(1383),
    row<FB_IP_Camera>(1914),
    row<FB_Weather_Station>(910),
    row<FB_Sentiotec>(917),
    row<FB_Alarm_ABI>(919),
    row<FB_Alarm_Jablotron>(913),
    row<FB_EKEY_UDP>(908),
    row<FB_EKEY_UDP_Trigger>(1908),
    row<FB_LAN_Master_IO>(1342),
    row<FB_CAN_Master_IO>(1344),
    row<FB_CAN_ESD_IO>(1345),
    row<FB_Kostal_Pico_TCP>(1332),
    row<FB_Philips_Hue_Lamp>(2129),
    row<FB_Philips_Hue_Group>(2130),
    row<FB_KLF_200>(2132),
    row<FB_Home_Connect>(2133),
    row<FB_Husqvarna_Automower>(1385),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::device() {
  return cRows;
}
