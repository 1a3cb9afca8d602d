#include "fb/family/FB_Energy_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_PV_Hot_Water>(1324),    row<FB_PV_Load>(1301),          row<FB_PV_Running_Time>(1309),
    row<FB_Constant_Light>(1308),  row<FB_Wallbox_General>(1365),  row<FB_Wallbox_KEBA>(1322),
    row<FB_Wallbox_NRGkick>(1323), row<FB_Wallbox_GoE>(1376),      row<FB_OCPP_Wallbox>(1391),
    row<FB_OCPP_Central>(1390),    row<FB_Marstek_Storage>(1374),  row<FB_Wallbox_Load_Management>(1333),
    row<FB_Awattar>(1924),         row<FB_Day_Ahead_Prices>(1367), row<FB_EFriends>(1388),
    row<FB_PV_Forecast>(1351),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::energy() {
  return cRows;
}
