#pragma once

#include "db/DB_Address_Groups.h"
#include "db/DB_Connections.h"
#include "db/DB_Controller_Informations.h"
#include "db/DB_FB_Page.h"
#include "db/DB_M8800.h"
#include "db/DB_Project.h"
#include "db/DB_Project_Generator.h"
#include "db/DB_SMTP_Mail.h"
#include "db/DB_Statistic.h"
#include "db/DB_Style.h"
#include "db/DB_TgmMon.h"
#include "db/DB_Widget_Page.h"

#include <QHash>
#include <QList>

#include <memory>

/// Every kind of record, for tests that walk all of them, and ways to fill one without naming its fields.
namespace Record_Kinds {

struct Kind {
  const char* mName;
  std::unique_ptr<DB_Data_Base> (*mMake)();
};

template <class Record>
std::unique_ptr<DB_Data_Base> make() {
  return std::make_unique<Record>();
}

inline const QList<Kind>& all() {
  static const QList<Kind> kinds = {
      {"project", make<DB_Project>},
      {"connections", make<DB_Connections>},
      {"module bus", make<DB_M8800>},
      {"mail", make<DB_SMTP_Mail>},
      {"style", make<DB_Style>},
      {"statistic", make<DB_Statistic>},
      {"telegram monitor", make<DB_TgmMon>},
      {"project generator", make<DB_Project_Generator>},
      {"main group", make<DB_Address_MainGroup>},
      {"middle group", make<DB_Address_Middle_Group>},
      {"sub group", make<DB_Address_Sub_Group>},
      {"visualisation page", make<DB_Widget_Page>},
      {"element", make<DB_Widget>},
      {"logic page", make<DB_FB_Page>},
      {"block", make<DB_FB_Control>},
      {"controller informations", make<DB_Controller_Informations>},
  };
  return kinds;
}

struct Item {
  QByteArray mKey;
  QByteArray mValue;
  friend bool operator==(const Item&, const Item&) = default;
};

inline QList<Item> items(const QByteArray& data) {
  QList<Item> items;
  for (const QByteArray& item : data.split(DB_Data_Reader::cValueEnd)) {
    const qsizetype keyEnd = item.indexOf(DB_Data_Reader::cKeyEnd);
    if (keyEnd >= 0) {
      items.append({item.first(keyEnd), item.mid(keyEnd + 1)});
    }
  }
  return items;
}

inline QByteArray text(const QList<Item>& items) {
  QByteArray data;
  for (const Item& item : items) {
    data += item.mKey + DB_Data_Reader::cKeyEnd + item.mValue + DB_Data_Reader::cValueEnd;
  }
  return data;
}

/// The record's own DATA text with `elements` elements in every list, those of nested lists included.
inline QByteArray withLists(const Kind& kind, int elements) {
  constexpr int cDeepestList = 4;
  const std::unique_ptr<DB_Data_Base> record = kind.mMake();
  const DB_Fields::Keys keys = DB_Fields::keys(*record);
  QList<Item> offered;
  for (const QByteArray& stem : keys.mLists) {
    // How deep a list lies is not known from its key, so every depth is offered; what does not fit is left out.
    const int deepest = qMin<int>(cDeepestList, static_cast<int>(stem.count('.')) + 1);
    QList<QByteArray> suffixed = {stem};
    for (int depth = 1; depth <= deepest; ++depth) {
      QList<QByteArray> deeper;
      for (const QByteArray& key : std::as_const(suffixed)) {
        for (int i = 0; i < elements; ++i) {
          deeper.append(key + '_' + QByteArray::number(i));
          offered.append({deeper.last(), {}});
        }
      }
      suffixed = deeper;
    }
  }
  record->setData(text(offered));
  return record->toData();
}

/// A DATA text in which every item has a value of its own that is not the default, with three elements in every list.
/// `seed` above 0 makes another one.
inline QByteArray filled(const Kind& kind, int seed = 0) {
  static QHash<std::pair<QByteArray, int>, QByteArray> known;
  if (QByteArray data = known.value({kind.mName, seed}); !data.isEmpty()) {
    return data;
  }
  const std::unique_ptr<DB_Data_Base> record = kind.mMake();
  const QList<Item> defaults = items(withLists(kind, 3));
  QList<Item> result = defaults;
  QList<bool> isAccepted(defaults.size(), false);
  // What a field reads back as it was offered fits its type; the strictest reader takes what is left.
  const auto offer = [&](const auto& valueOf) {
    QList<Item> offered = result;
    for (qsizetype i = 0; i < offered.size(); ++i) {
      offered[i].mValue = isAccepted[i] ? result[i].mValue : valueOf(i);
    }
    record->setData(text(offered));
    const QList<Item> read = items(record->toData());
    for (qsizetype i = 0; i < offered.size(); ++i) {
      if (!isAccepted[i] && read.value(i) == offered[i] && offered[i] != defaults[i]) {
        isAccepted[i] = true;
        result[i] = offered[i];
      }
    }
  };
  const auto number = [seed](qsizetype i) { return QByteArray::number(i + 1000 + qsizetype(10'000) * seed); };
  offer([&](qsizetype i) { return "Wert " + number(i) + " äß€"; });
  offer([&](qsizetype i) { return "01234567-89ab-4cde-8f01-" + number(i).rightJustified(12, '0'); });
  offer([&](qsizetype i) { return number(i) + ".25"; });
  offer([&](qsizetype i) { return '-' + number(i); });
  offer([](qsizetype) { return QByteArray("2"); });
  offer([](qsizetype) { return QByteArray("1"); });
  offer([](qsizetype) { return QByteArray("0"); });
  return known[{kind.mName, seed}] = isAccepted.contains(false) ? QByteArray() : text(result);
}

} // namespace Record_Kinds
