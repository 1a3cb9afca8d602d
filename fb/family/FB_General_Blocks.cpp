#include "fb/family/FB_General_Blocks.h"

#include "fb/FB_Comment.h"
#include "fb/FB_Constant_Value.h"
#include "fb/FB_Debug_SetValue.h"
#include "fb/FB_Debug_ShowValue.h"
#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Constant_Value>(11),  row<FB_Initialisation>(68),   row<FB_Comment>(10),
    row<FB_Debug_ShowValue>(12), row<FB_Debug_SetValue>(1330),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::general() {
  return cRows;
}
