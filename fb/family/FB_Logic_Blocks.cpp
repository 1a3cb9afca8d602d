#include "fb/family/FB_Logic_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_INV>(53),
    row<FB_INV_1N>(1373),
    row<FB_AND>(50),
    row<FB_OR>(51),
    row<FB_XOR>(52),
    row<FB_Set_Reset>(62),
    row<FB_Edge_Evaluation>(1941),
    row<FB_Assign_To_1_1_Digital>(54),
    row<FB_Assign_To_1_N_Digital>(55),
    row<FB_Input_Switch>(60),
    row<FB_Output_Switch>(63),
    row<FB_Manual_Automatic>(61),
    row<FB_Step>(71),
    row<FB_Step_Chain>(1407),
    row<FB_Binary_Encoder>(1395),
    row<FB_Binary_Decoder>(1396),
    row<FB_Shift_Register>(1397),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::logic() {
  return cRows;
}
