#include "fb/model/FB_Help_Search.h"

#include "fb/model/FB_Catalogue_Search.h"
#include "fb/model/FB_Help.h"
#include "fb/model/FB_Help_Page.h"
#include "fb/model/FB_Type.h"

#include <array>

namespace {

enum Rank { Exact, Title, Purpose, Anywhere, Ranks };

/// The line that holds most of what was searched for.
QString excerpt(const QString& text, const QString& purpose, const QString& searched, Rank rank) {
  if (rank == Anywhere) {
    const FB_Catalogue_Search whole(searched);
    const FB_Catalogue_Search first(searched.simplified().section(u' ', 0, 0));
    const QStringList lines = text.split(u'\n').mid(1); // the first is the title
    for (const FB_Catalogue_Search* const search : {&whole, &first}) {
      for (const QString& line : lines) {
        if (search->areWordsIn(line)) {
          return line;
        }
      }
    }
  }
  return purpose.section(u'\n', 0, 0);
}

} // namespace

FB_Help_Search::FB_Help_Search() {
  for (const QString& page : FB_Help::pages()) {
    const FB_Type* const type = FB_Help::typeOf(page);
    mEntries.append({page, FB_Help::title(page), type ? QString::number(type->mId) : QString(),
                     FB_Help::plain(FB_Help_Page::purpose(FB_Help::fragment(page))), FB_Help::text(page)});
  }
}

QList<FB_Help_Search::Hit> FB_Help_Search::find(const QString& text) const {
  const FB_Catalogue_Search search(text);
  if (search.isEmpty()) {
    return {};
  }
  std::array<QList<Hit>, Ranks> hits;
  for (const Entry& entry : mEntries) {
    if (!search.areWordsIn(entry.mText)) {
      continue;
    }
    const bool isExact = search.text() == entry.mId || search.text().compare(entry.mTitle, Qt::CaseInsensitive) == 0;
    const bool isTitle = search.areWordsIn(entry.mTitle);
    const bool isPurpose = search.areWordsIn(entry.mTitle + u' ' + entry.mPurpose);
    const Rank rank = isExact ? Exact : isTitle ? Title : isPurpose ? Purpose : Anywhere;
    hits.at(rank).append({entry.mPage, entry.mTitle, excerpt(entry.mText, entry.mPurpose, search.text(), rank)});
  }
  QList<Hit> all;
  for (const QList<Hit>& ranked : hits) {
    all += ranked;
  }
  return all;
}
