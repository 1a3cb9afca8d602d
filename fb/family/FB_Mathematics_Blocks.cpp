#include "fb/family/FB_Mathematics_Blocks.h"

#include "fb/family/FB_Block_Rows.h"

namespace {

using FB_Block_Rows::row;

constexpr FB_Block_Rows::Row cRows[] = {
    row<FB_Mathematics_Addition_1>(1352),
    row<FB_Mathematics_Addition_2>(300),
    row<FB_Mathematics_Subtraction_1>(1353),
    row<FB_Mathematics_Subtraction_2>(301),
    row<FB_Mathematics_Multiplication_1>(1348),
    row<FB_Mathematics_Multiplication_2>(302),
    row<FB_Mathematics_Division_1>(1347),
    row<FB_Mathematics_Division_2>(303),
    row<FB_Mathematics_Average>(311),
    row<FB_Average_Per_Time>(1204),
    row<FB_Mathematics_Moving_Average>(1398),
    row<FB_Mathematics_Absolute>(304),
    row<FB_Mathematics_Round>(1336),
    row<FB_Mathematics_Power>(1939),
    row<FB_Mathematics_Modulo>(1394),
    row<FB_Formula>(1393),
    row<FB_Sun_Position>(305),
    row<FB_Multiplex>(64),
    row<FB_Demultiplex>(65),
    row<FB_Random>(1338),
    row<FB_ConvertTemperature>(1349),
    row<FB_Mathematics_Interpolate>(312),
    row<FB_Mathematics_Minimum>(306),
    row<FB_Mathematics_Maximum>(307),
    row<FB_Minimum_Maximum_Memory>(1933),
    row<FB_Minimum_Maximum_Filter>(1334),
    row<FB_Trend>(1375),
    row<FB_Positive_Negative_Filter>(1346),
};

} // namespace

std::span<const FB_Block_Rows::Row> FB_Block_Rows::mathematics() {
  return cRows;
}
