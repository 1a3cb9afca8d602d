#pragma once

#include "db/DB_FB_Page.h"
#include "db/DB_Page_List.h"
#include "db/Undo_Adapter.h"

/// The blocks of all logic pages as an owner of records in the history.
///
/// It changes records; the pages that are shown follow the list's signals, and `History::stepApplied` tells them what
/// to select.
class FB_Page_Undo : public Undo_Adapter {
public:
  explicit FB_Page_Undo(DB_Page_List<DB_FB_Page>& pages) : mPages(pages) {}

  void reset() override;
  bool apply(const QUuid& id, const DB_Data_Base& record) override;
  [[nodiscard]] std::unique_ptr<DB_Data_Base> find(const QUuid& id) const override;
  bool create(const DB_Data_Base& record, qsizetype place) override;
  bool remove(const QUuid& id) override;
  /// The whole record counts; positions are compared as numbers.
  [[nodiscard]] bool isEqual(const DB_Data_Base& a, const DB_Data_Base& b) const override;

  void finish() override;
  [[nodiscard]] qsizetype placeOf(const QUuid& id) const override;
  bool move(const QUuid& id, qsizetype place) override;
  [[nodiscard]] QUuid pageOf(const QUuid& id) const override;

private:
  DB_Page_List<DB_FB_Page>& mPages;
};
