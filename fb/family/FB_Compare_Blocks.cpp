#include "fb/family/FB_Compare_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Compare_Equal_1>(1360),
    row<FB_Compare_Equal_2>(204),
    row<FB_Compare_Not_Equal_1>(1361),
    row<FB_Compare_Not_Equal_2>(1340),
    row<FB_Compare_Greater_1>(1358),
    row<FB_Compare_Greater_2>(202),
    row<FB_Compare_Greater_Equal_1>(1359),
    row<FB_Compare_Greater_Equal_2>(203),
    row<FB_Compare_Less_1>(1356),
    row<FB_Compare_Less_2>(200),
    row<FB_Compare_Less_Equal_1>(1357),
    row<FB_Compare_Less_Equal_2>(201),
    row<FB_Compare_Limit>(210),
    row<FB_Compare_Limit_Time>(1937),
    row<FB_Compare_Limit_Difference>(1401),
    row<FB_State_Evaluation>(1402),
    row<FB_Measured_Value_Plausibility>(1399),
    row<FB_Measured_Value_Monitoring>(1400),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::compare() {
  return cRows;
}
