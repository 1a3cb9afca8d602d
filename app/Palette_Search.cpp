#include "app/Palette_Search.h"

#include "db/Page_Tree_Model.h"
#include "db/ProjectDatabase.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <array>

namespace {

using Kind = Palette_Entry::Kind;

constexpr int cRankCount = 5;
constexpr int cNoRank = cRankCount;

QString tr(const char* text) {
  return QCoreApplication::translate("Palette_Search", text);
}

/// What is looked for, split once.
struct Query {
  explicit Query(const QString& text) : mText(text.simplified()), mWords(mText.split(u' ', Qt::SkipEmptyParts)) {}
  QString mText;
  QStringList mWords;
};

bool isAtWordStart(const QString& text, const QString& word) {
  for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
       at = text.indexOf(word, at + 1, Qt::CaseInsensitive)) {
    if (at == 0 || !text.at(at - 1).isLetterOrNumber()) {
      return true;
    }
  }
  return false;
}

/// 0 for the best. `rest` is what may hold a word besides the title.
int rankOf(const Query& query, const QString& title, const QString& rest) {
  bool isInTitle = true;
  bool isPartlyInTitle = false;
  bool isAtStart = true;
  for (const QString& word : query.mWords) {
    const bool isHere = title.contains(word, Qt::CaseInsensitive);
    if (!isHere && !rest.contains(word, Qt::CaseInsensitive)) {
      return cNoRank;
    }
    isInTitle = isInTitle && isHere;
    isPartlyInTitle = isPartlyInTitle || isHere;
    isAtStart = isAtStart && isHere && isAtWordStart(title, word);
  }
  if (isInTitle && title.startsWith(query.mText, Qt::CaseInsensitive)) {
    return 0;
  }
  return isAtStart ? 1 : isInTitle ? 2 : isPartlyInTitle ? 3 : 4;
}

/// The best of one kind, at most so many of a rank as are wanted of all.
class Ranked {
public:
  explicit Ranked(size_t limit) : mLimit(limit) {}
  [[nodiscard]] bool wants(int rank) const {
    return rank < cNoRank && mByRank[static_cast<size_t>(rank)].size() < mLimit;
  }
  void add(int rank, Palette_Entry entry) { mByRank[static_cast<size_t>(rank)].push_back(std::move(entry)); }
  void moveTo(std::vector<Palette_Entry>& entries) {
    size_t left = mLimit;
    for (auto& sameRank : mByRank) {
      for (size_t i = 0; i < sameRank.size() && left > 0; ++i, --left) {
        entries.push_back(std::move(sameRank[i]));
      }
    }
  }

private:
  size_t mLimit;
  std::array<std::vector<Palette_Entry>, cRankCount> mByRank;
};

/// "Visualisierung, Ausrichten"
QString menuPath(const Action_Row& row) {
  const auto rows = Action_Table::rows();
  const auto opener =
      std::find_if(rows.begin(), rows.end(), [&row](const Action_Row& other) { return other.mSubmenu == row.mMenu; });
  return opener == rows.end() ? Action_Table::menuTitle(row.mMenu).remove(u'&')
                              : menuPath(*opener) + QStringLiteral(", ") + Action_Table::text(*opener);
}

Palette_Entry entryOf(const Action_Row& row, const QString& title, const QString& reason) {
  const QString keys =
      QKeySequence(QString::fromLatin1(row.mKeys), QKeySequence::PortableText).toString(QKeySequence::NativeText);
  const QString where = keys.isEmpty() ? menuPath(row) : menuPath(row) + QStringLiteral(", ") + keys;
  return {Kind::Action,
          title,
          reason.isEmpty() ? where : reason,
          Action_Table::iconName(row),
          QString::fromLatin1(row.mSlot),
          QUuid(),
          reason.isEmpty()};
}

void findActions(const Query& query, const Action_State& state, Ranked& usable, Ranked& others) {
  for (const Action_Row& row : Action_Table::rows()) {
    if (row.mSubmenu || qstrcmp(row.mSlot, "onShowPalette") == 0) {
      continue;
    }
    const QString title = Action_Table::text(row).section(u'\t', 0, 0);
    const QString rest = menuPath(row) + u'\n' + QCoreApplication::translate("Action_Table", row.mTip);
    const int rank = rankOf(query, title, rest);
    const QString reason = Action_Table::whyDisabled(row, state);
    Ranked& found = reason.isEmpty() ? usable : others;
    if (found.wants(rank)) {
      found.add(rank, entryOf(row, title, reason));
    }
  }
}

template <class Page>
void findPages(const Query& query, const ProjectDatabase& database, const DB_Page_List<Page>& list, const QString& kind,
               Ranked& found) {
  for (const auto& page : list.pages()) {
    const int rank = rankOf(query, page->mCaption, kind);
    if (found.wants(rank)) {
      found.add(rank, {Kind::Page, page->mCaption.simplified(), kind, Page_Tree_Model::pageIcon(database, page->mGuid),
                       QString(), page->mGuid, true});
    }
  }
}

void findAddresses(const Query& query, const ProjectDatabase& database, std::vector<Palette_Entry>& entries) {
  // Printing every number while one types a name would cost more than the search itself.
  static const QRegularExpression digit(QStringLiteral("[0-9]"));
  const bool hasNumber = query.mText.contains(digit);
  Ranked found(Palette_Search::cAddressLimit);
  for (const auto& main : database.mAddresses.mainGroups()) {
    for (const auto& middle : main->mMiddleGroups) {
      const QString group = QStringLiteral("%1/%2/").arg(main->mNumber).arg(middle->mNumber);
      for (const auto& sub : middle->mSubGroups) {
        const QString address = hasNumber ? group + QString::number(sub->mNumber) : QString();
        const int rank = hasNumber ? rankOf(query, address, sub->mName) : rankOf(query, sub->mName, {});
        if (found.wants(rank)) {
          found.add(rank, {Kind::Address, group + QString::number(sub->mNumber), sub->mName.simplified(),
                           QStringLiteral("sub_group"), QString(), sub->mKey, true});
        }
      }
    }
  }
  found.moveTo(entries);
}

} // namespace

std::vector<Palette_Entry> Palette_Search::find(const QString& text, const Action_State& state,
                                                const ProjectDatabase& database) {
  const Query query(text);
  std::vector<Palette_Entry> entries;
  const bool isAll = query.mWords.isEmpty();
  Ranked usable(isAll ? Action_Table::rows().size() : cActionLimit);
  Ranked others(isAll ? 0 : cDisabledLimit);
  findActions(query, state, usable, others);
  usable.moveTo(entries);
  Ranked pages(cPageLimit);
  findPages(query, database, database.mFbPages, tr("Programmseite"), pages);
  findPages(query, database, database.mWidgetPages, tr("Visualisierungsseite"), pages);
  pages.moveTo(entries);
  if (!isAll) {
    findAddresses(query, database, entries);
  }
  others.moveTo(entries);
  return entries;
}
