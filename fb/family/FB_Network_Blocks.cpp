#include "fb/family/FB_Network_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Network_Input>(903),
    row<FB_Network_Output>(904),
    row<FB_Network_API>(1903),
    row<FB_Network_JSON_XML>(1922),
    row<FB_Network_Device_Monitoring>(905),
    row<FB_Wake_On_LAN>(918),
    row<FB_Network_SNMP_Input>(907),
    row<FB_Network_SNMP_Output>(1368),
    row<FB_Network_Bridge>(1916),
    row<FB_Distributed_Project_Status>(1406),
    row<FB_Push_NTFY>(1339),
    row<FB_Push_Quarna_App>(1392),
    row<FB_Push_Pushover>(1377),
    row<FB_IFTTT_Webhooks>(1386),
    row<FB_Message_Central>(1403),
    row<FB_Message>(1404),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::network() {
  return cRows;
}
