#pragma once

#include "db/DB_Page_List.h"
#include "db/Undo_Adapter.h"

/// The elements of all visualisation pages as an owner of records in the history; `FB_Page_Undo` is that of the blocks.
template <class Page>
class Child_Undo : public Undo_Adapter {
public:
  using Child = typename Page::Child;

  explicit Child_Undo(DB_Page_List<Page>& list) : mList(list) {}

  bool apply(const QUuid& id, const DB_Data_Base& record) override {
    return mList.changeChild(id, [&record](Child& child) { child.assign(record); });
  }

  [[nodiscard]] std::unique_ptr<DB_Data_Base> find(const QUuid& id) const override {
    const Child* const child = mList.child(id);
    return child ? child->clone() : nullptr;
  }

  bool create(const DB_Data_Base& record, qsizetype place) override {
    const auto* const child = dynamic_cast<const Child*>(&record);
    return child && mList.insertChild(place, std::make_unique<Child>(*child));
  }

  bool remove(const QUuid& id) override { return mList.takeChild(id) != nullptr; }

  [[nodiscard]] qsizetype placeOf(const QUuid& id) const override { return mList.placeOf(id); }

  bool move(const QUuid& id, qsizetype place) override {
    std::unique_ptr<Child> child = mList.takeChild(id);
    return child && mList.insertChild(place, std::move(child));
  }

  [[nodiscard]] QUuid pageOf(const QUuid& id) const override {
    const Child* const child = mList.child(id);
    return child ? child->mPageGuid : QUuid();
  }

private:
  DB_Page_List<Page>& mList;
};
