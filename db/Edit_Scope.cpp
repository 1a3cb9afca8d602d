#include "db/Edit_Scope.h"

Edit_Scope::Edit_Scope(History& history, const QString& text, Grouping grouping)
    : mHistory(history),
      mIsAllowed(history.mayEdit(&mRefusal)) {
  if (mIsAllowed) {
    mHistory.enterScope(text, grouping == Grouping::Own, 0);
  }
}

Edit_Scope::Edit_Scope(History& history, Merge merge) : mHistory(history), mIsAllowed(history.mayEdit(&mRefusal)) {
  if (mIsAllowed) {
    mHistory.enterScope(QString(), false, merge.mToken);
  }
}

Edit_Scope::~Edit_Scope() {
  if (mIsAllowed) {
    mHistory.leaveScope();
  }
}

void Edit_Scope::modified(Undo_Adapter& owner, const QUuid& id) {
  Q_ASSERT(mIsAllowed);
  std::unique_ptr<DB_Data_Base> record = owner.find(id);
  if (record) {
    mHistory.record({&owner, History::Kind::Modified, id, owner.placeOf(id), std::move(record)});
  }
}

void Edit_Scope::moved(Undo_Adapter& owner, const QUuid& id) {
  Q_ASSERT(mIsAllowed);
  std::unique_ptr<DB_Data_Base> record = owner.find(id);
  if (record) {
    mHistory.record({&owner, History::Kind::Modified, id, owner.placeOf(id), std::move(record)}, true);
  }
}

void Edit_Scope::created(Undo_Adapter& owner, const QUuid& id) {
  Q_ASSERT(mIsAllowed);
  mHistory.record({&owner, History::Kind::Created, id, -1, nullptr});
}

void Edit_Scope::deleted(Undo_Adapter& owner, const QUuid& id) {
  Q_ASSERT(mIsAllowed);
  std::unique_ptr<DB_Data_Base> record = owner.find(id);
  if (record) {
    mHistory.record({&owner, History::Kind::Deleted, id, owner.placeOf(id), std::move(record)});
  }
}

void Edit_Scope::revert() {
  Q_ASSERT(mIsAllowed);
  mHistory.revertScope();
}
