#include "db/Address_Values.h"

#include <utility>

Address_Values::Address_Values(QObject* parent) : QObject(parent) {
  mTell.setSingleShot(true);
  mTell.setInterval(cTellMs);
  connect(&mTell, &QTimer::timeout, this, [this] { emit changed(std::exchange(mChanged, {})); });
}

const Address_Value* Address_Values::find(const QUuid& key) const {
  const auto it = mValues.constFind(key);
  return it == mValues.cend() ? nullptr : &*it;
}

void Address_Values::set(const QUuid& key, Address_Value value) {
  mValues[key] = std::move(value);
  note(key);
}

void Address_Values::setAllStale() {
  for (auto it = mValues.begin(); it != mValues.end(); ++it) {
    if (!it->mIsStale) {
      it->mIsStale = true;
      note(it.key());
    }
  }
}

void Address_Values::remove(const QUuid& key) {
  if (mValues.remove(key)) {
    note(key);
  }
}

void Address_Values::clear() {
  for (auto it = mValues.cbegin(); it != mValues.cend(); ++it) {
    note(it.key());
  }
  mValues.clear();
}

void Address_Values::note(const QUuid& key) {
  mChanged.insert(key);
  if (!mTell.isActive()) {
    mTell.start();
  }
}
