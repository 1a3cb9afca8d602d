#include "db/History.h"

#include <algorithm>
#include <set>
#include <utility>

History::History(Session_State& state, QObject* parent) : QObject(parent), mState(state) {
  mTimer.setSingleShot(true);
  mTimer.setInterval(0);
  connect(&mTimer, &QTimer::timeout, this, &History::commit);
}

QString History::undoText() const {
  if (!mPending.empty()) {
    return mPendingText;
  }
  return mPosition > 0 ? mSteps[mPosition - 1].mText : QString();
}

QString History::redoText() const {
  return canRedo() ? mSteps[mPosition].mText : QString();
}

bool History::mayEdit(QString* refusal) const {
  const bool isRefused = mState.operatingMode();
  if (isRefused && refusal) {
    *refusal = Session_State::operatingModeRefusal();
  }
  return !isRefused;
}

void History::record(Entry entry, bool isAgain) {
  // One copy, from before the first change, tells all; a record made in this step needs none.
  const auto known = std::pair(entry.mOwner, entry.mId);
  if (entry.mKind == Kind::Modified && !isAgain && mPendingKnown.contains(known)) {
    return;
  }
  if (entry.mKind == Kind::Deleted) {
    mPendingKnown.remove(known);
  } else {
    mPendingKnown.insert(known);
  }
  mPending.push_back(std::move(entry));
  if (mPending.size() == 1) {
    emit changed();
  }
}

void History::enterScope(const QString& text, bool isOwn, quint64 merge) {
  if (mScopeDepth == 0) {
    if (isOwn || merge != mPendingMerge) {
      commit(); // what the turn did before is a step of its own
    }
    mOwnScope = isOwn;
    if (mPending.empty()) {
      mPendingText = text;
      mPendingMerge = merge;
    }
  } else if (mPendingText.isEmpty()) {
    mPendingText = text;
  }
  ++mScopeDepth;
}

void History::leaveScope() {
  if (--mScopeDepth > 0) {
    return;
  }
  if (mOwnScope) {
    mOwnScope = false;
    commit();
  } else if (!mPending.empty()) {
    mTimer.start();
  }
}

/// Its own step holds nothing from before it.
void History::revertScope() {
  Q_ASSERT(mOwnScope);
  Step step{mPendingText, std::exchange(mPending, {}), 0};
  mPendingKnown.clear();
  static_cast<void>(applyStep(step)); // nobody is led anywhere
  emit changed();
}

/// Of an entry that modified a record and left it at its place.
bool History::isWithoutEffect(const Entry& entry) {
  const std::unique_ptr<DB_Data_Base> present = entry.mOwner->find(entry.mId);
  return present && entry.mOwner->isEqual(*entry.mRecord, *present);
}

/// Of an owner whose order changed every entry stays: a record may be back at its place only because others moved.
void History::dropWithoutEffect(Entries& entries) {
  std::set<Undo_Adapter*> reordered;
  for (const Entry& entry : entries) {
    if (entry.mKind != Kind::Modified || entry.mPlace != entry.mOwner->placeOf(entry.mId)) {
      reordered.insert(entry.mOwner);
    }
  }
  const auto isDropped = [&reordered](const Entry& entry) {
    return !reordered.contains(entry.mOwner) && isWithoutEffect(entry);
  };
  entries.erase(std::remove_if(entries.begin(), entries.end(), isDropped), entries.end());
}

bool History::isOnlyModified(const Entries& entries) {
  return std::ranges::all_of(entries, [](const Entry& entry) { return entry.mKind == Kind::Modified; });
}

bool History::continuesStep(const Entries& entries, quint64 merge) const {
  return merge != 0 && merge == mOpenMerge && isOnlyModified(entries) && isOnlyModified(mSteps.back().mEntries);
}

void History::joinStep(Entries& entries) {
  Step step = std::move(mSteps.back());
  mSteps.pop_back();
  --mPosition;
  mEntryCount -= step.mEntries.size();
  QSet<std::pair<Undo_Adapter*, QUuid>> known;
  for (const Entry& entry : step.mEntries) {
    known.insert({entry.mOwner, entry.mId});
  }
  // The copies from before the first edit tell all.
  for (Entry& entry : entries) {
    if (!known.contains({entry.mOwner, entry.mId})) {
      step.mEntries.push_back(std::move(entry));
    }
  }
  entries = std::move(step.mEntries);
  mPendingText = step.mText;
}

/// The latest step stays, however large it is.
void History::keepToLimits() {
  while (mSteps.size() > cLimit || (mEntryCount > cEntryLimit && mSteps.size() > 1)) {
    mFirstState = mSteps.front().mId;
    mEntryCount -= mSteps.front().mEntries.size();
    mSteps.pop_front();
    mSavedPosition = std::max<qsizetype>(mSavedPosition - 1, cSavedGone);
  }
}

void History::commit() {
  if (mScopeDepth > 0 || mPending.empty()) {
    return;
  }
  mTimer.stop();
  Entries entries = std::move(mPending);
  mPending.clear();
  mPendingKnown.clear();
  const quint64 merge = std::exchange(mPendingMerge, 0);
  const bool isJoined = continuesStep(entries, merge);
  if (isJoined) {
    joinStep(entries);
  }
  dropWithoutEffect(entries);
  if (!entries.empty() || isJoined) {
    mOpenMerge = entries.empty() ? 0 : merge;
  }
  if (!entries.empty()) {
    if (mSavedPosition > static_cast<qsizetype>(mPosition)) {
      mSavedPosition = cSavedGone;
    }
    while (mSteps.size() > mPosition) {
      mEntryCount -= mSteps.back().mEntries.size();
      mSteps.pop_back();
    }
    mEntryCount += entries.size();
    mSteps.push_back({mPendingText, std::move(entries), ++mLastId});
    keepToLimits();
    mPosition = mSteps.size();
  }
  emit changed();
}

/// Applies the entry and yields its inverse.
History::Entry History::applyEntry(const Entry& entry) {
  Undo_Adapter& owner = *entry.mOwner;
  Entry inverse{entry.mOwner, entry.mKind, entry.mId, owner.placeOf(entry.mId), nullptr};
  switch (entry.mKind) {
  case Kind::Modified:
    inverse.mRecord = owner.find(entry.mId);
    owner.apply(entry.mId, *entry.mRecord);
    if (owner.placeOf(entry.mId) != entry.mPlace) {
      owner.move(entry.mId, entry.mPlace);
    }
    break;
  case Kind::Created:
    inverse.mKind = Kind::Deleted;
    inverse.mRecord = owner.find(entry.mId);
    owner.remove(entry.mId);
    break;
  case Kind::Deleted:
    inverse.mKind = Kind::Created;
    owner.create(*entry.mRecord, entry.mPlace);
    break;
  }
  return inverse;
}

/// Turns a step into its inverse by applying it.
std::vector<History::Applied> History::applyStep(Step& step) {
  std::set<Undo_Adapter*> owners;
  for (const Entry& entry : step.mEntries) {
    owners.insert(entry.mOwner);
  }
  for (Undo_Adapter* const owner : owners) {
    owner->reset();
  }
  Entries inverse;
  inverse.reserve(step.mEntries.size());
  std::vector<Applied> applied;
  applied.reserve(step.mEntries.size());
  for (auto entry = step.mEntries.crbegin(); entry != step.mEntries.crend(); ++entry) {
    const QUuid page = entry->mOwner->pageOf(entry->mId);
    inverse.push_back(applyEntry(*entry));
    applied.push_back({entry->mOwner, entry->mId, page.isNull() ? entry->mOwner->pageOf(entry->mId) : page});
  }
  step.mEntries = std::move(inverse);
  for (Undo_Adapter* const owner : owners) {
    owner->finish();
  }
  return applied;
}

bool History::undo(QString* refusal) {
  if (!mayEdit(refusal) || mScopeDepth > 0) {
    return false;
  }
  commit();
  if (mPosition == 0) {
    return false;
  }
  mOpenMerge = 0;
  const std::vector<Applied> applied = applyStep(mSteps[mPosition - 1]);
  --mPosition;
  emit changed();
  emit stepApplied(applied);
  return true;
}

bool History::redo(QString* refusal) {
  if (!mayEdit(refusal) || mScopeDepth > 0) {
    return false;
  }
  commit();
  if (mPosition == mSteps.size()) {
    return false;
  }
  mOpenMerge = 0;
  const std::vector<Applied> applied = applyStep(mSteps[mPosition]);
  ++mPosition;
  emit changed();
  emit stepApplied(applied);
  return true;
}

void History::setSaved() {
  commit();
  mOpenMerge = 0;
  mSavedPosition = static_cast<qsizetype>(mPosition);
  mChangedOutside = false;
  emit changed();
}

void History::setChangedOutside() {
  mChangedOutside = true;
  ++mOutsideChanges;
  emit changed();
}

History::State History::state() const {
  return {mPosition > 0 ? mSteps[mPosition - 1].mId : mFirstState, mOutsideChanges};
}

bool History::isModified() const {
  return !mPending.empty() || mChangedOutside || mSavedPosition != static_cast<qsizetype>(mPosition);
}

void History::clear() {
  mTimer.stop();
  mPending.clear();
  mPendingKnown.clear();
  mPendingMerge = 0;
  mOpenMerge = 0;
  mSteps.clear();
  mEntryCount = 0;
  mFirstState = ++mLastId;
  mPosition = 0;
  mSavedPosition = 0;
  mChangedOutside = false;
  emit changed();
}
