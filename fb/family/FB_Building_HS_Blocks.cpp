#include "fb/family/FB_Building_HS_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_HS_Central>(914),
    row<FB_HS_HMLO>(915),
    row<FB_HS_Motion_Detector>(916),
    row<FB_HS_Blind>(920),
    row<FB_HS_Curtain>(1363),
    row<FB_HS_Room_Controller>(921),
    row<FB_HS_Shading>(922),
    row<FB_HS_Dimmer>(923),
    row<FB_HS_Color_RGBW>(932),
    row<FB_HS_Color_RGBW_Sequence>(933),
    row<FB_HS_Time_Switch>(937),
    row<FB_HS_Scene_Single>(927),
    row<FB_HS_Scene_Sequence>(1116),
    row<FB_HS_Scene_Group>(924),
    row<FB_HS_Weather_Station_Safety>(925),
    row<FB_HS_Weather_Station_Display>(926),
    row<FB_HS_News>(936),
    row<FB_HS_Code_Switch>(928),
    row<FB_HS_Code_Switch_Simple>(930),
    row<FB_HS_Code_Switch_S_US>(929),
    row<FB_HS_Code_Switch_On_Off>(931),
    row<FB_HS_Energy_Monitor>(1024),
    row<FB_HS_Energy_Ranking>(935),
    row<FB_HS_Constant_Light>(1025),
    row<FB_HS_Presence_Simulation>(934),
    row<FB_HS_Color_Temperature>(938),
    row<FB_HS_TRIVUM>(1372),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::buildingHs() {
  return cRows;
}
