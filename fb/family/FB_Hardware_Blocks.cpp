#include "fb/family/FB_Hardware_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_M8800_Bus_System>(1919), row<FB_KNX_Interface>(1918),    row<FB_DMX>(1910),      row<FB_MBus>(1913),
    row<FB_Modbus_Master>(1917),    row<FB_Modbus_TCP_Slave>(1915), row<FB_CPU_Info>(1337),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::hardware() {
  return cRows;
}
