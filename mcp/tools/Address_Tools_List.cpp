#include "base/Text_Search.h"
#include "db/ProjectDatabase.h"
#include "mcp/MCP_Address_Json.h"
#include "mcp/MCP_Call.h"
#include "mcp/tools/Address_Tools.h"

#include <QRegularExpression>

#include <algorithm>

namespace {

constexpr qsizetype cMostAddresses = 500;
constexpr int cAll = -1;
constexpr int cMostNumber = 65'535;

/// A word of the filter: stands in the texts of an address, or names it or the groups around it.
class Word {
public:
  explicit Word(const QString& text) : mSearch(text) {
    static const QRegularExpression numbers(
        QStringLiteral("^(\\d{1,5})/(?:(?:(\\d{1,5})(?:/(?:(\\d{1,5})|\\*)?)?)|\\*)?$"));
    const QRegularExpressionMatch match = numbers.match(text);
    for (int level = 0; match.hasMatch() && level < 3; ++level) {
      mLevels[level] = match.capturedLength(level + 1) > 0 ? match.capturedView(level + 1).toInt() : cAll;
    }
  }

  [[nodiscard]] bool isIn(const Group_Address& address, const DB_Address_Sub_Group& group) const {
    return names(address) || mSearch.count(group.mName) > 0 || mSearch.count(group.mDescription) > 0;
  }

private:
  [[nodiscard]] bool names(const Group_Address& address) const {
    const auto fits = [](int wanted, int number) { return wanted == cAll || wanted == number; };
    return mLevels[0] != cAll && mLevels[0] == address.main() && fits(mLevels[1], address.middle()) &&
           fits(mLevels[2], address.sub());
  }

  Text_Search mSearch;
  int mLevels[3] = {cAll, cAll, cAll};
};

/// Collects what passes; of what does not nothing is made.
class Lister {
public:
  explicit Lister(const MCP_Call& call)
      : mMain(call.integer("main_group", cAll)),
        mMiddle(call.integer("middle_group", cAll)) {
    for (const QString& word : call.text("filter").split(u' ', Qt::SkipEmptyParts)) {
      mWords.emplace_back(word.trimmed());
    }
  }

  [[nodiscard]] QJsonObject list(const Address_Tree& tree) {
    QJsonArray mains;
    for (const auto& main : tree.mainGroups()) {
      if (mMain == cAll || mMain == main->mNumber) {
        addMain(mains, *main);
      }
    }
    QJsonObject object{{QStringLiteral("main_groups"), mains},
                       {QStringLiteral("count"), mCount},
                       {QStringLiteral("total"), mTotal},
                       {QStringLiteral("truncated"), mTotal > mCount}};
    if (mTotal > mCount) {
      object.insert(
          QStringLiteral("hint"),
          QStringLiteral("Nur die ersten %1 von %2 Untergruppen stehen in der Antwort. Mit filter, main_group "
                         "oder middle_group eingrenzen.")
              .arg(mCount)
              .arg(mTotal));
    } else if (mTotal == 0) {
      object.insert(QStringLiteral("hint"),
                    tree.subGroupCount() == 0
                        ? QStringLiteral("Das Projekt hat noch keine Adressen (create_address, import_knx_addresses).")
                        : QStringLiteral("Keine Adresse passt; ohne filter sind es %1.").arg(tree.subGroupCount()));
    }
    return object;
  }

private:
  template <class Group>
  [[nodiscard]] static QJsonObject texts(const char* level, const Group& group) {
    QJsonObject object{{QLatin1String(level), group.mNumber}, {QStringLiteral("comment"), group.mName}};
    if (!group.mDescription.isEmpty()) {
      object.insert(QStringLiteral("description"), group.mDescription);
    }
    return object;
  }

  void addMain(QJsonArray& mains, const DB_Address_MainGroup& main) {
    QJsonArray middles;
    for (const auto& middle : main.mMiddleGroups) {
      if (mMiddle == cAll || mMiddle == middle->mNumber) {
        addMiddle(middles, main.mNumber, *middle);
      }
    }
    if (!middles.isEmpty() || showsEmpty()) {
      QJsonObject object = texts("main", main);
      object.insert(QStringLiteral("middle_groups"), middles);
      mains.append(object);
    }
  }

  void addMiddle(QJsonArray& middles, int main, const DB_Address_Middle_Group& middle) {
    QJsonArray subs;
    qsizetype found = 0;
    for (const auto& sub : middle.mSubGroups) {
      const Group_Address address(main, middle.mNumber, sub->mNumber);
      if (std::ranges::all_of(mWords, [&](const Word& word) { return word.isIn(address, *sub); })) {
        ++found;
        if (mCount < cMostAddresses) {
          subs.append(MCP_Address_Json::of(address, *sub));
          ++mCount;
        }
      }
    }
    mTotal += found;
    if (found > 0 || showsEmpty()) {
      QJsonObject object = texts("middle", middle);
      object.insert(QStringLiteral("address_count"), found);
      object.insert(QStringLiteral("addresses"), subs);
      middles.append(object);
    }
  }

  /// Groups without addresses are told where nothing is looked for.
  [[nodiscard]] bool showsEmpty() const { return mWords.empty() && mMiddle == cAll; }

  int mMain;
  int mMiddle;
  std::vector<Word> mWords;
  qsizetype mCount = 0; ///< in the answer
  qsizetype mTotal = 0; ///< that pass
};

MCP_Result listAddresses(MCP_Call& call) {
  return MCP_Result::done(Lister(call).list(call.database().mAddresses));
}

} // namespace

MCP_Tool Address_Tools::list() {
  return {QStringLiteral("list_addresses"),
          QStringLiteral(
              "Gibt die KNX-Adresshierarchie (Hauptgruppen, Mittelgruppen, Untergruppen) zurueck. Bei grossen "
              "Projekten (viele Adressen) unbedingt Filter verwenden, um die Antwortgroesse zu begrenzen. filter: Nur "
              "Untergruppen ausgeben deren Bezeichnung (comment), Beschreibung (description) oder Adresse den Text "
              "enthaelt. Hoechstens 500 Untergruppen je Antwort: total nennt alle passenden, address_count die je "
              "Mittelgruppe. data_type = Haupt*1000+Unter (9001 = 9.001), 0 = keiner. Die Schalter read_at_start, "
              "read_cyclic (sonst false), write und active (sonst true) stehen nur dabei, wenn sie abweichen."),
          {MCP_Parameter::text("filter", "Text ohne Gross-/Kleinschreibung; mehrere Woerter muessen alle vorkommen; "
                                         "\"1/2\" waehlt eine Mittelgruppe. Standard: alle"),
           MCP_Parameter::integer("main_group", "Nur diese Hauptgruppe. Standard -1 = alle").within(cAll, cMostNumber),
           MCP_Parameter::integer("middle_group", "Nur Mittelgruppen dieser Nummer. Standard -1 = alle")
               .within(cAll, cMostNumber)},
          listAddresses,
          {}};
}
