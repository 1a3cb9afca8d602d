#include "fb/model/FB_Execution_Order.h"

#include "db/ProjectDatabase.h"
#include "fb/model/FB_Types.h"

#include <algorithm>

namespace {

bool isExecuted(const DB_FB_Page& page, const DB_FB_Control& block) {
  return page.mActive && block.mType != FB_Types::cComment;
}

/// Of the controller that executes the page; 0 for the main one.
int controllerOf(const DB_Project& project, const DB_FB_Page& page) {
  const auto& all = project.mControllers;
  const auto found = std::ranges::find(all, page.mControllerIndex, &DB_Controller::mNumber);
  return found == all.end() || found->mIsMain ? 0 : found->mNumber;
}

} // namespace

std::vector<int> FB_Execution_Order::ofPage(const ProjectDatabase& database, const DB_FB_Page& page) {
  const int controller = controllerOf(database.mProject, page);
  int last = 0;
  for (const auto& before : database.mFbPages.pages()) {
    if (before->mGuid == page.mGuid) {
      break;
    }
    if (controllerOf(database.mProject, *before) == controller) {
      const auto& blocks = before->mChildren;
      last += static_cast<int>(std::count_if(blocks.begin(), blocks.end(),
                                             [&before](const auto& block) { return isExecuted(*before, *block); }));
    }
  }
  std::vector<int> numbers;
  numbers.reserve(static_cast<size_t>(page.mChildren.size()));
  for (const auto& block : page.mChildren) {
    const bool isCounted = isExecuted(page, *block);
    last += isCounted ? 1 : 0;
    numbers.push_back(!isCounted ? 0 : block->mExecutionNumber > 0 ? block->mExecutionNumber : last);
  }
  return numbers;
}

int FB_Execution_Order::ofBlock(const ProjectDatabase& database, const QUuid& block) {
  const DB_FB_Control* const record = database.mFbPages.child(block);
  const DB_FB_Page* const page = record ? database.mFbPages.page(record->mPageGuid) : nullptr;
  if (!page) {
    return 0;
  }
  return ofPage(database, *page).at(static_cast<size_t>(page->mChildren.indexOf(record)));
}
