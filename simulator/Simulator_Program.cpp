#include "simulator/Simulator_Program.h"

#include "db/DB_Address_Groups.h"
#include "db/Project_Image.h"

#include <optional>

namespace {

constexpr int cScriptType = 900;

template <class Record>
Record recordOf(const Project_Image::Row& row) {
  Record record;
  record.setData(row.mContent);
  return record;
}

} // namespace

Simulator_Program Simulator_Program::read(const QByteArray& bytes) {
  Simulator_Program program;
  QHash<QUuid, int> mains;
  QHash<QUuid, Group_Address> middles;
  const std::optional<Project_Image> image = Project_Image::fromBytes(bytes);
  if (!image) {
    return program;
  }
  // Parents stand before their children.
  for (const Project_Image::Row& row : image->mRows) {
    if (row.mTable == DB_Table::Main_Groups) {
      const auto main = recordOf<DB_Address_MainGroup>(row);
      mains.insert(main.mKey, main.mNumber);
    } else if (row.mTable == DB_Table::Middle_Groups) {
      const auto middle = recordOf<DB_Address_Middle_Group>(row);
      if (mains.contains(middle.mMainKey)) {
        middles.insert(middle.mKey, {mains.value(middle.mMainKey), middle.mNumber, 0});
      }
    } else if (row.mTable == DB_Table::Sub_Groups) {
      const auto sub = recordOf<DB_Address_Sub_Group>(row);
      if (middles.contains(sub.mMiddleKey)) {
        const Group_Address middle = middles.value(sub.mMiddleKey);
        program.mAddresses.append({{middle.main(), middle.middle(), sub.mNumber}, sub.mDpt});
      }
    } else if (row.mTable == DB_Table::Logic_Blocks) {
      const auto block = recordOf<DB_FB_Control>(row);
      if (block.mType == cScriptType) {
        program.mScripts.insert(block.mGuid, block);
      }
    }
  }
  return program;
}
