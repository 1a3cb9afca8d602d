#include "db/FB_Page_Undo.h"

void FB_Page_Undo::reset() {}

bool FB_Page_Undo::apply(const QUuid& id, const DB_Data_Base& record) {
  return mPages.changeChild(id, [&record](DB_FB_Control& block) { block.assign(record); });
}

std::unique_ptr<DB_Data_Base> FB_Page_Undo::find(const QUuid& id) const {
  const DB_FB_Control* const block = mPages.child(id);
  return block ? block->clone() : nullptr;
}

bool FB_Page_Undo::create(const DB_Data_Base& record, qsizetype place) {
  const auto* const block = dynamic_cast<const DB_FB_Control*>(&record);
  return block && mPages.insertChild(place, std::make_unique<DB_FB_Control>(*block));
}

bool FB_Page_Undo::remove(const QUuid& id) {
  return mPages.takeChild(id) != nullptr;
}

bool FB_Page_Undo::isEqual(const DB_Data_Base& a, const DB_Data_Base& b) const {
  const auto* const first = dynamic_cast<const DB_FB_Control*>(&a);
  const auto* const second = dynamic_cast<const DB_FB_Control*>(&b);
  // Most blocks of a large step were moved, which is seen without making their texts.
  return first && second && first->mX == second->mX && first->mY == second->mY && a.isEqual(b);
}

void FB_Page_Undo::finish() {}

qsizetype FB_Page_Undo::placeOf(const QUuid& id) const {
  return mPages.placeOf(id);
}

bool FB_Page_Undo::move(const QUuid& id, qsizetype place) {
  std::unique_ptr<DB_FB_Control> block = mPages.takeChild(id);
  return block && mPages.insertChild(place, std::move(block));
}

QUuid FB_Page_Undo::pageOf(const QUuid& id) const {
  const DB_FB_Control* const block = mPages.child(id);
  return block ? block->mPageGuid : QUuid();
}
