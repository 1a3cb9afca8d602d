#pragma once

#include "db/DB_Scramble.h"
#include "db/ProjectDatabase.h"
#include "tests/db/Record_Kinds.h"

#include <QFile>

/// Projects for tests of the store, and looks into the file behind the store's back.
namespace Project_Sample {

template <class Record>
std::unique_ptr<Record> filled(int seed) {
  const auto& kinds = Record_Kinds::all();
  const auto kind = std::find_if(kinds.cbegin(), kinds.cend(), [](const Record_Kinds::Kind& kind) {
    return kind.mMake == Record_Kinds::make<Record>;
  });
  auto record = std::make_unique<Record>();
  record->setData(Record_Kinds::filled(*kind, seed));
  return record;
}

inline void addAddresses(ProjectDatabase& store, int mains, int middles, int subs) {
  for (int i = 0; i < mains; ++i) {
    auto main = filled<DB_Address_MainGroup>(i);
    main->mNumber = i;
    const QUuid mainKey = main->mKey = QUuid::createUuid();
    store.mAddresses.add(std::move(main));
    for (int j = 0; j < middles; ++j) {
      auto middle = filled<DB_Address_Middle_Group>(j);
      middle->mNumber = j;
      middle->mMainKey = mainKey;
      const QUuid middleKey = middle->mKey = QUuid::createUuid();
      store.mAddresses.add(std::move(middle));
      for (int k = 0; k < subs; ++k) {
        auto sub = filled<DB_Address_Sub_Group>(k);
        sub->mNumber = k;
        sub->mName = QStringLiteral("Adresse %1/%2/%3").arg(i).arg(j).arg(k);
        sub->mMiddleKey = middleKey;
        sub->mKey = QUuid::createUuid();
        store.mAddresses.add(std::move(sub));
      }
    }
  }
}

template <class Page>
void addPages(DB_Page_List<Page>& list, int pages, int children) {
  for (int i = 0; i < pages; ++i) {
    auto page = filled<Page>(i);
    page->mCaption = QStringLiteral("Seite %1").arg(i);
    const QUuid guid = page->mGuid = QUuid::createUuid();
    list.appendPage(std::move(page));
    for (int j = 0; j < children; ++j) {
      auto child = filled<typename Page::Child>(j);
      child->mGuid = QUuid::createUuid();
      child->mPageGuid = guid;
      child->mName = QStringLiteral("Teil %1-%2").arg(i).arg(j);
      list.appendChild(std::move(child));
    }
  }
}

/// Something of every kind, every field with a value of its own.
inline void fill(ProjectDatabase& store) {
  for (const ProjectDatabase::Single& single : store.singles()) {
    // The kinds begin with the eight single records, in the order of their tables.
    single.mRecord->setData(Record_Kinds::filled(Record_Kinds::all()[static_cast<int>(single.mTable)]));
  }
  addAddresses(store, 2, 2, 3);
  addPages(store.mWidgetPages, 3, 2);
  addPages(store.mFbPages, 2, 3);
}

inline QByteArray quoted(DB_Table table) {
  return QByteArray("`") + DB_Tables::name(table) + '`';
}

/// First column of every row, as it stands in the file.
inline QByteArrayList rawRows(const QString& path, const QByteArray& table) {
  DB_Sqlite database;
  database.open(path, DB_Sqlite::Mode::Immutable);
  DB_Statement select = database.prepare("SELECT * FROM " + table);
  QByteArrayList rows;
  while (select.isValid() && select.step() == DB_Statement::Step::Row) {
    rows.append(select.text(0).toByteArray());
  }
  return rows;
}

/// Their DATA texts.
inline QByteArrayList rows(const QString& path, DB_Table table) {
  QByteArrayList rows = rawRows(path, quoted(table));
  for (QByteArray& row : rows) {
    row = DB_Scramble::unscramble(row);
  }
  return rows;
}

/// Runs SQL on a file that no store has open.
inline bool run(const QString& path, const QByteArray& sql) {
  DB_Sqlite database;
  return database.open(path, DB_Sqlite::Mode::Create) && database.execute(sql);
}

/// "INSERT" of one row with that DATA text.
inline QByteArray insertion(DB_Table table, const QByteArray& data) {
  return "INSERT INTO " + quoted(table) + "(DATA) VALUES('" + DB_Scramble::scramble(data) + "');";
}

inline QByteArray bytesOf(const QString& path) {
  QFile file(path);
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline bool writeFile(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  return file.open(QIODevice::WriteOnly | QIODevice::Truncate) && file.write(bytes) == bytes.size();
}

} // namespace Project_Sample
