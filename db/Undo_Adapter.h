#pragma once

#include "db/DB_Data_Base.h"

#include <QUuid>

#include <memory>

/// What the history needs of the owner of some records (a page's blocks, the list of pages, the address tree, a single
/// record) to take changes back. It lives longer than the history's steps.
class Undo_Adapter {
public:
  virtual ~Undo_Adapter() = default;

  /// Before a step is applied.
  virtual void reset() {}
  /// Puts the stored record in the place of the one with that id. Fields that saving and the controller write stay.
  virtual bool apply(const QUuid& id, const DB_Data_Base& record) = 0;
  /// A copy of the record with that id; null when there is none.
  [[nodiscard]] virtual std::unique_ptr<DB_Data_Base> find(const QUuid& id) const = 0;
  /// Makes a record again, at that index of its list.
  virtual bool create(const DB_Data_Base& record, qsizetype place) = 0;
  virtual bool remove(const QUuid& id) = 0;
  /// True when going from one to the other would be no change.
  [[nodiscard]] virtual bool isEqual(const DB_Data_Base& a, const DB_Data_Base& b) const { return a.isEqual(b); }

  /// After a step was applied.
  virtual void finish() {}
  /// Index of the record in its list; -1 where there is no order.
  [[nodiscard]] virtual qsizetype placeOf(const QUuid& id) const = 0;
  /// Moves the record to that index of its list.
  virtual bool move(const QUuid& id, qsizetype place) = 0;
  /// The page that the record belongs to, or is; null where there is none.
  [[nodiscard]] virtual QUuid pageOf(const QUuid&) const { return {}; }
};
