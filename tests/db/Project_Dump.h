#pragma once

#include "db/ProjectDatabase.h"

#include <QCryptographicHash>

/// The whole project as readable text, one line per item, so that two states are compared by one QCOMPARE and a
/// difference can be read. Records that their owner does not find by key or number are marked.
namespace Project_Dump {

inline void append(QByteArray& dump, const QByteArray& title, const DB_Data_Base& record, bool isFound = true) {
  QByteArray data = record.toData();
  data.replace(DB_Data_Reader::cKeyEnd, " = ").replace(DB_Data_Reader::cValueEnd, "\n  ");
  dump += title + (isFound ? "\n  " : " NOT FOUND BY ITS KEY\n  ") + data.trimmed() + '\n';
}

inline void appendAddresses(QByteArray& dump, const Address_Tree& tree) {
  for (const auto& main : tree.mainGroups()) {
    append(dump, "main group", *main, tree.mainGroup(main->mKey) == main.get() && tree.mainGroup(main->mNumber));
    for (const auto& middle : main->mMiddleGroups) {
      const bool isFound = tree.middleGroup(middle->mKey) == middle.get() && middle->mMainKey == main->mKey &&
                           tree.middleGroup(main->mNumber, middle->mNumber);
      append(dump, "middle group", *middle, isFound);
      for (const auto& sub : middle->mSubGroups) {
        const Group_Address address(main->mNumber, middle->mNumber, sub->mNumber);
        const bool isSubFound = tree.subGroup(sub->mKey) == sub.get() && sub->mMiddleKey == middle->mKey &&
                                tree.subGroup(address) && tree.addressOf(*sub) == address;
        append(dump, "group address", *sub, isSubFound);
      }
    }
  }
}

template <class Page>
void appendPages(QByteArray& dump, const DB_Page_List<Page>& list, const QByteArray& page, const QByteArray& child) {
  qsizetype count = 0;
  for (const auto& item : list.pages()) {
    append(dump, page, *item, list.page(item->mGuid) == item.get());
    for (const auto& record : item->mChildren) {
      append(dump, child, *record, list.child(record->mGuid) == record.get() && record->mPageGuid == item->mGuid);
      ++count;
    }
  }
  if (count != list.childCount()) {
    dump += child + ": the index holds another number\n";
  }
}

/// `withResources` adds name, size and digest of each resource of the open file.
inline QByteArray project(ProjectDatabase& store, bool withResources = true) {
  QByteArray dump;
  for (const ProjectDatabase::Single& single : store.singles()) {
    append(dump, DB_Tables::all()[static_cast<size_t>(single.mTable)].mPlainName, *single.mRecord);
  }
  appendAddresses(dump, store.mAddresses);
  appendPages(dump, store.mWidgetPages, "visualisation page", "element");
  appendPages(dump, store.mFbPages, "logic page", "block");
  QStringList names;
  if (withResources && store.isOpen()) {
    store.ressourceList(names);
  }
  for (const QString& name : names) {
    QByteArray bytes;
    store.ressourceReadRaw(name, bytes);
    dump += "resource " + name.toUtf8() + ' ' + QByteArray::number(bytes.size()) + ' ' +
            QCryptographicHash::hash(bytes, QCryptographicHash::Sha1).toHex() + '\n';
  }
  return dump;
}

} // namespace Project_Dump
