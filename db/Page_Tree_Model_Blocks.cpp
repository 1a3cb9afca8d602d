// The blocks in the tree: what is shown of them, and how the rows follow the pages without losing what is selected or
// expanded.
#include "db/DB_Text.h"
#include "db/Page_Tree_Model.h"
#include "db/Project_Session.h"

#include <QHash>

#include <algorithm>
#include <iterator>
#include <utility>

namespace {

constexpr qsizetype cMostCharacters = 80; // of a title; a comment may be a whole page

QList<QUuid> childrenOf(const DB_FB_Page& page) {
  QList<QUuid> blocks;
  blocks.reserve(page.mChildren.size());
  for (const auto& block : page.mChildren) {
    blocks.append(block->mGuid);
  }
  return blocks;
}

} // namespace

const QList<QUuid>& Page_Tree_Model::blocksOf(const DB_FB_Page& page) const {
  auto found = mShown.find(page.mGuid);
  if (found == mShown.end()) {
    found = mShown.emplace(page.mGuid, childrenOf(page)).first;
  }
  return found->second;
}

QString Page_Tree_Model::blockText(const DB_FB_Control& block) const {
  const QString type = mTexts.mType(block.mType);
  QString title = mTexts.mTitle(block).left(4 * cMostCharacters).simplified();
  if (title.size() > cMostCharacters) {
    title = title.left(cMostCharacters - 1) + u'…';
  }
  return title.isEmpty() || title == type.simplified() ? type : QStringLiteral("%1 (%2)").arg(title, type);
}

QString Page_Tree_Model::blockToolTip(const DB_FB_Control& block) const {
  const int number = mTexts.mExecution(mSession.database(), block.mGuid);
  QStringList lines{QStringLiteral("<b>%1</b>").arg(DB_Text::rich(blockText(block))),
                    number > 0 ? tr("Ausführung: als %1. Baustein der Steuerung").arg(number) : tr("Ausführung: nie")};
  if (block.mDisabled) {
    lines.append(tr("Der Baustein ist deaktiviert."));
  }
  return lines.join(QLatin1String("<br>"));
}

void Page_Tree_Model::onBlockChanged(const QUuid& guid) {
  if (!mShown.empty()) {
    mChanged.insert(guid);
    mFollow.start();
  }
}

void Page_Tree_Model::followBlocks() {
  mFollow.stop();
  for (const auto& page : mSession.database().mFbPages.pages()) {
    if (const auto shown = mShown.find(page->mGuid); shown != mShown.end()) {
      followBlocksOf(*page, shown->second);
    }
  }
  mChanged.clear();
}

void Page_Tree_Model::followBlocksOf(const DB_FB_Page& page, QList<QUuid>& shown) {
  const QList<QUuid> wanted = childrenOf(page);
  const QModelIndex parent = indexOf(page.mGuid);
  if (shown != wanted) {
    removeBlocks(parent, shown, QSet<QUuid>(wanted.begin(), wanted.end()));
    orderBlocks(parent, shown, wanted);
    insertBlocks(parent, shown, wanted);
  }
  tellChanged(parent, shown);
}

/// Those that are not wanted any more, in runs.
void Page_Tree_Model::removeBlocks(const QModelIndex& page, QList<QUuid>& shown, const QSet<QUuid>& wanted) {
  for (qsizetype last = shown.size() - 1; last >= 0; --last) {
    if (wanted.contains(shown.at(last))) {
      continue;
    }
    qsizetype first = last;
    while (first > 0 && !wanted.contains(shown.at(first - 1))) {
      --first;
    }
    beginRemoveRows(page, static_cast<int>(first), static_cast<int>(last));
    shown.remove(first, last - first + 1);
    endRemoveRows();
    last = first;
  }
}

/// Brings those that stay into their order.
void Page_Tree_Model::orderBlocks(const QModelIndex& page, QList<QUuid>& shown, const QList<QUuid>& wanted) {
  const QSet<QUuid> staying(shown.begin(), shown.end());
  QList<QUuid> ordered;
  std::copy_if(wanted.begin(), wanted.end(), std::back_inserter(ordered),
               [&staying](const QUuid& guid) { return staying.contains(guid); });
  if (ordered == shown) {
    return;
  }
  emit layoutAboutToBeChanged({page});
  QHash<QUuid, int> rows;
  for (qsizetype i = 0; i < ordered.size(); ++i) {
    rows.insert(ordered.at(i), static_cast<int>(i));
  }
  const QList<QUuid> before = std::exchange(shown, ordered);
  for (const QModelIndex& old : persistentIndexList()) {
    if (old.parent() == page) {
      changePersistentIndex(old, index(rows.value(before.value(old.row())), 0, page));
    }
  }
  emit layoutChanged({page});
}

/// Those that are new, in runs.
void Page_Tree_Model::insertBlocks(const QModelIndex& page, QList<QUuid>& shown, const QList<QUuid>& wanted) {
  const QSet<QUuid> known(shown.begin(), shown.end());
  for (qsizetype first = 0; first < wanted.size(); ++first) {
    qsizetype end = first;
    while (end < wanted.size() && !known.contains(wanted.at(end))) {
      ++end;
    }
    if (end == first) {
      continue;
    }
    beginInsertRows(page, static_cast<int>(first), static_cast<int>(end - 1));
    shown = shown.first(first) + wanted.sliced(first, end - first) + shown.sliced(first);
    endInsertRows();
    first = end - 1;
  }
}

/// Once for all rows between the first and the last one that changed.
void Page_Tree_Model::tellChanged(const QModelIndex& page, const QList<QUuid>& shown) {
  const auto isChanged = [this](const QUuid& guid) { return mChanged.contains(guid); };
  const auto first = std::find_if(shown.begin(), shown.end(), isChanged);
  if (first != shown.end()) {
    const auto last = std::find_if(shown.rbegin(), shown.rend(), isChanged);
    emit dataChanged(index(static_cast<int>(first - shown.begin()), 0, page),
                     index(static_cast<int>(shown.rend() - last) - 1, 0, page));
  }
}
