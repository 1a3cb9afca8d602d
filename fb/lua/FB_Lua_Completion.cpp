#include "fb/lua/FB_Lua_Completion.h"

#include "fb/lua/FB_Lua_Text_Edits.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QHeaderView>
#include <QSet>
#include <QTreeView>

#include <algorithm>

namespace {

constexpr int cNameRole = FB_Lua_Word_Model::cNameRole;
constexpr int cShortestWord = 3;
constexpr int cMostWords = 2'000; // of a script
constexpr int cWidth = 960;       // pixels of the list, at most
constexpr int cRows = 12;

QTreeView* makePopup() {
  auto* const popup = new QTreeView;
  popup->setRootIsDecorated(false);
  popup->setUniformRowHeights(true);
  popup->setHeaderHidden(true);
  popup->setSelectionBehavior(QAbstractItemView::SelectRows);
  popup->header()->setResizeContentsPrecision(2 * cRows);
  popup->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  popup->setAccessibleName(QCoreApplication::translate("FB_Lua_Completion", "Vorschläge"));
  return popup;
}

} // namespace

FB_Lua_Completion::FB_Lua_Completion(QWidget& edit) : QCompleter(&edit) {
  setModel(&mModel);
  setWidget(&edit);
  setPopup(makePopup());
  setCompletionRole(cNameRole);
  setCompletionColumn(0);
  setCaseSensitivity(Qt::CaseInsensitive);
  setFilterMode(Qt::MatchContains);
  setMaxVisibleItems(cRows);
}

void FB_Lua_Completion::setScript(const QString& script) {
  QSet<QStringView> words;
  const QStringView all(script);
  for (qsizetype i = 0; i < all.size() && words.size() < cMostWords; ++i) {
    const qsizetype start = i;
    while (i < all.size() && FB_Lua_Text_Edits::isOfWord(all[i])) {
      ++i;
    }
    if (i - start >= cShortestWord && !all[start].isDigit()) {
      words.insert(all.sliced(start, i - start));
    }
  }
  QStringList list;
  for (const QStringView word : words) {
    list.append(word.toString());
  }
  mModel.setScriptWords(list);
}

void FB_Lua_Completion::offer(const QString& prefix, const QRect& at) {
  setCompletionPrefix(prefix);
  const bool isOnlyItself = completionCount() == 1 && currentCompletion() == prefix;
  if (completionCount() == 0 || isOnlyItself) {
    popup()->hide();
    return;
  }
  auto* const list = static_cast<QTreeView*>(popup());
  list->resizeColumnToContents(0);
  list->resizeColumnToContents(1);
  QRect place = at;
  place.setWidth(std::min(cWidth, list->columnWidth(0) + list->columnWidth(1) + list->sizeHintForRow(0)));
  complete(place);
  // What begins with the text comes before what only holds it.
  int best = 0;
  for (int row = 0; row < completionCount(); ++row) {
    if (completionModel()->index(row, 0).data(cNameRole).toString().startsWith(prefix, Qt::CaseInsensitive)) {
      best = row;
      break;
    }
  }
  list->setCurrentIndex(completionModel()->index(best, 0));
}

bool FB_Lua_Completion::isShown() const {
  return popup()->isVisible();
}

QString FB_Lua_Completion::current() const {
  const QModelIndex index = popup()->currentIndex();
  return index.isValid() ? index.siblingAtColumn(0).data(cNameRole).toString() : QString();
}
