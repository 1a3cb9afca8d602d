#pragma once

#include "db/DB_Page_List.h"
#include "db/Undo_Adapter.h"

/// A list of pages as an owner of records in the history: the pages' own records and their order, without their blocks
/// or elements, which have owners of their own.
template <class Page>
class Page_Undo : public Undo_Adapter {
public:
  explicit Page_Undo(DB_Page_List<Page>& list) : mList(list) {}

  bool apply(const QUuid& id, const DB_Data_Base& record) override {
    return mList.changePage(id, [&record](Page& page) { page.assign(record); });
  }

  [[nodiscard]] std::unique_ptr<DB_Data_Base> find(const QUuid& id) const override {
    const Page* const page = mList.page(id);
    return page ? page->clone() : nullptr;
  }

  bool create(const DB_Data_Base& record, qsizetype place) override {
    const auto* const page = dynamic_cast<const Page*>(&record);
    if (page) {
      mList.insertPage(place, std::make_unique<Page>(*page));
    }
    return page != nullptr;
  }

  bool remove(const QUuid& id) override { return mList.takePage(id) != nullptr; }

  [[nodiscard]] qsizetype placeOf(const QUuid& id) const override {
    const Page* const page = mList.page(id);
    return page ? mList.pages().indexOf(page) : -1;
  }

  bool move(const QUuid& id, qsizetype place) override { return mList.movePage(placeOf(id), place); }

  [[nodiscard]] QUuid pageOf(const QUuid& id) const override { return mList.page(id) ? id : QUuid(); }

private:
  DB_Page_List<Page>& mList;
};
