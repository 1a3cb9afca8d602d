#include "fb/family/FB_Function_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Button_Time>(901),     row<FB_Button_Pulse>(1923), row<FB_Mail>(902),
    row<FB_Execute_Command>(906), row<FB_FTP_Upload>(1318),   row<FB_Shutter>(911),
    row<FB_Blind>(912),           row<FB_Lua_Script>(900),    row<FB_Weather_OpenWeather>(1921),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::function() {
  return cRows;
}
