#pragma once

#include "db/DB_Children.h"

#include <QHash>
#include <QObject>
#include <QUuid>

#include <memory>

/// What a list of pages tells its listeners.
class DB_Page_List_Signals : public QObject {
  Q_OBJECT

public:
  using QObject::QObject;

signals:
  void structureAboutToChange();
  void structureChanged();
  /// The page's own record changed, not its children.
  void pageChanged(const QUuid& guid);
  /// A child's record changed, came, went or has another place on its page.
  void childChanged(const QUuid& guid);
};

/// An ordered list of pages, each with its ordered children (blocks or elements). Pages and children are found by GUID
/// in constant time. A null GUID or one that is already used is replaced by a fresh one when it comes in.
template <class Page>
class DB_Page_List : public DB_Page_List_Signals {
public:
  using Child = typename Page::Child;

  [[nodiscard]] const DB_Children<Page>& pages() const { return mPages; }
  [[nodiscard]] qsizetype childCount() const { return mChildByGuid.size(); }
  [[nodiscard]] Page* page(const QUuid& guid) const { return mPageByGuid.value(guid); }
  [[nodiscard]] Child* child(const QUuid& guid) const { return mChildByGuid.value(guid); }
  /// Index of the child on its page; -1 when there is none.
  [[nodiscard]] qsizetype placeOf(const QUuid& guid) const {
    const Child* const found = child(guid);
    return found ? page(found->mPageGuid)->mChildren.indexOf(found) : -1;
  }

  /// With the children it holds. An index outside the list appends.
  Page& insertPage(qsizetype index, std::unique_ptr<Page> page) {
    if (page->mGuid.isNull() || mPageByGuid.contains(page->mGuid)) {
      page->mGuid = QUuid::createUuid();
    }
    emit structureAboutToChange();
    Page& added = mPages.insert(index, std::move(page));
    mPageByGuid.insert(added.mGuid, &added);
    for (const auto& child : added.mChildren) {
      child->mPageGuid = added.mGuid;
      indexChild(*child);
    }
    emit structureChanged();
    return added;
  }

  Page& appendPage(std::unique_ptr<Page> page) { return insertPage(mPages.size(), std::move(page)); }

  /// With its children; null when there is none.
  std::unique_ptr<Page> takePage(const QUuid& guid) {
    Page* const found = page(guid);
    if (!found) {
      return nullptr;
    }
    emit structureAboutToChange();
    for (const auto& child : found->mChildren) {
      mChildByGuid.remove(child->mGuid);
    }
    mPageByGuid.remove(guid);
    std::unique_ptr<Page> taken = mPages.take(mPages.indexOf(found));
    emit structureChanged();
    return taken;
  }

  bool movePage(qsizetype from, qsizetype to) {
    if (from < 0 || from >= mPages.size() || to < 0 || to >= mPages.size()) {
      return false;
    }
    emit structureAboutToChange();
    mPages.insert(to, mPages.take(from));
    emit structureChanged();
    return true;
  }

  /// Onto the page that the child's record names; null (and the child is gone) when there is no such page.
  Child* insertChild(qsizetype index, std::unique_ptr<Child> child) {
    Page* const parent = page(child->mPageGuid);
    if (!parent) {
      return nullptr;
    }
    Child& added = parent->mChildren.insert(index, std::move(child));
    indexChild(added);
    emit childChanged(added.mGuid);
    return &added;
  }

  /// Null when there is none.
  std::unique_ptr<Child> takeChild(const QUuid& guid) {
    Child* const found = child(guid);
    if (!found) {
      return nullptr;
    }
    auto& siblings = page(found->mPageGuid)->mChildren;
    std::unique_ptr<Child> taken = siblings.take(siblings.indexOf(found));
    mChildByGuid.remove(guid);
    emit childChanged(guid);
    return taken;
  }

  /// Applies `change` to the child's record, which must keep its GUID and its page, and tells.
  template <class Change>
  bool changeChild(const QUuid& guid, Change&& change) {
    Child* const found = child(guid);
    if (!found) {
      return false;
    }
    change(*found);
    emit childChanged(guid);
    return true;
  }

  Child* appendChild(std::unique_ptr<Child> child) { return insertChild(-1, std::move(child)); }

  /// Applies `change` to the page's record, which must keep its GUID, and tells.
  template <class Change>
  bool changePage(const QUuid& guid, Change&& change) {
    Page* const found = page(guid);
    if (!found) {
      return false;
    }
    change(*found);
    emit pageChanged(guid);
    return true;
  }

  void clear() {
    emit structureAboutToChange();
    mPageByGuid.clear();
    mChildByGuid.clear();
    mPages.clear();
    emit structureChanged();
  }

private:
  void indexChild(Child& child) {
    if (child.mGuid.isNull() || mChildByGuid.contains(child.mGuid)) {
      child.mGuid = QUuid::createUuid();
    }
    mChildByGuid.insert(child.mGuid, &child);
  }

  DB_Children<Page> mPages;
  QHash<QUuid, Page*> mPageByGuid;
  QHash<QUuid, Child*> mChildByGuid;
};
