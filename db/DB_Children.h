#pragma once

#include <QtGlobal>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

/// The records that belong to a record: an ordered list that owns them.
///
/// Children are no part of a copy of their parent: a copied list is empty, and an assigned one keeps what it holds. So
/// a copy of a page's record for the history does not copy the page's blocks.
template <class Child>
class DB_Children {
public:
  DB_Children() = default;
  DB_Children(const DB_Children&) {}
  DB_Children(DB_Children&&) noexcept = default;
  DB_Children& operator=(const DB_Children&) { return *this; }
  DB_Children& operator=(DB_Children&&) noexcept = default;
  ~DB_Children() = default;

  [[nodiscard]] qsizetype size() const { return static_cast<qsizetype>(mItems.size()); }
  [[nodiscard]] bool isEmpty() const { return mItems.empty(); }
  [[nodiscard]] Child& at(qsizetype index) const { return *mItems[static_cast<size_t>(index)]; }

  /// -1 when the child is not in this list. Quick for one near that which was asked for before, so that going through
  /// the list in its order takes linear time.
  [[nodiscard]] qsizetype indexOf(const Child* child) const {
    qsizetype below = std::min(mLastFound, size() - 1);
    qsizetype above = below + 1;
    while (below >= 0 || above < size()) {
      if (below >= 0 && &at(below) == child) {
        return mLastFound = below;
      }
      if (above < size() && &at(above) == child) {
        return mLastFound = above;
      }
      --below;
      ++above;
    }
    return -1;
  }

  Child& append(std::unique_ptr<Child> child) { return insert(size(), std::move(child)); }

  /// An index outside 0..size() appends.
  Child& insert(qsizetype index, std::unique_ptr<Child> child) {
    const bool isInside = index >= 0 && index <= size();
    const auto at = isInside ? mItems.begin() + index : mItems.end();
    return **mItems.insert(at, std::move(child));
  }

  [[nodiscard]] std::unique_ptr<Child> take(qsizetype index) {
    std::unique_ptr<Child> child = std::move(mItems[static_cast<size_t>(index)]);
    mItems.erase(mItems.begin() + index);
    return child;
  }

  void clear() { mItems.clear(); }

  /// Iterates over the owning pointers, in order.
  [[nodiscard]] auto begin() const { return mItems.cbegin(); }
  [[nodiscard]] auto end() const { return mItems.cend(); }

private:
  std::vector<std::unique_ptr<Child>> mItems;
  mutable qsizetype mLastFound = 0;
};
