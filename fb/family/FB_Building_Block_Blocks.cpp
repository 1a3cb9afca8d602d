#include "fb/family/FB_Building_Block_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Block_Presence>(1313),
    row<FB_Block_Switch>(1319),
    row<FB_Block_Switch_Step>(1932),
    row<FB_Block_Setpoint>(1929),
    row<FB_Block_Light_Dimmer>(1311),
    row<FB_Block_Color_Temperature>(1934),
    row<FB_Block_Color_RGBW>(1314),
    row<FB_Block_Motion_Detector>(1315),
    row<FB_Block_Shutter_Blind>(1312),
    row<FB_Block_Shutter_Blind_Safety>(1936),
    row<FB_Block_Weather_Station>(1944),
    row<FB_Block_Shading>(1316),
    row<FB_Block_Room_Controller>(1946),
    row<FB_Block_Style>(1321),
    row<FB_Block_Scene>(1317),
    row<FB_Block_Scene_Group>(1928),
    row<FB_Block_Scene_Sequence>(1320),
    row<FB_Block_Scene_Color_RGBW>(1930),
    row<FB_Block_Statistics>(1920),
    row<FB_Block_Energy_Monitor>(1325),
    row<FB_Block_Energy_Manager>(1354),
    row<FB_Block_Storage_Optimiser>(1389),
    row<FB_Block_Time_Switch>(1925),
    row<FB_Block_KNX_Code_Switch>(1931),
    row<FB_Block_Alarm_Memory_Single>(1927),
    row<FB_Block_Alarm_Memory_Multiple>(1366),
    row<FB_Block_Contact_Monitoring>(1945),
    row<FB_Block_Sun_Position>(1935),
    row<FB_Block_Ventilation>(1947),
    row<FB_Block_Exhaust_Air>(1948),
    row<FB_Block_Irrigation>(1949),
    row<FB_Block_Gate_Control>(1950),
    row<FB_Block_Air_Conditioner>(1951),
    row<FB_Block_Pool>(1952),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::buildingBlock() {
  return cRows;
}
