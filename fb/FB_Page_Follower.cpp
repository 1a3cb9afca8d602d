#include "fb/FB_Page_Follower.h"

#include "db/DB_Page_List.h"

#include <utility>

FB_Page_Follower::FB_Page_Follower(const DB_Page_List_Signals& list, QObject* parent) : QObject(parent) {
  mTimer.setSingleShot(true);
  connect(&mTimer, &QTimer::timeout, this, &FB_Page_Follower::flush);
  const auto onPages = [this] {
    mArePagesChanged = true;
    onChange();
  };
  connect(&list, &DB_Page_List_Signals::pageChanged, this, onPages);
  connect(&list, &DB_Page_List_Signals::structureChanged, this, onPages);
  connect(&list, &DB_Page_List_Signals::childChanged, this, [this](const QUuid& guid) {
    mBlocks.insert(guid);
    onChange();
  });
}

void FB_Page_Follower::onChange() {
  if (!mTimer.isActive()) {
    mTimer.start(0);
  }
}

void FB_Page_Follower::flush() {
  mTimer.stop();
  const bool arePagesChanged = std::exchange(mArePagesChanged, false);
  if (arePagesChanged || !mBlocks.isEmpty()) {
    emit changed(std::exchange(mBlocks, {}), arePagesChanged);
  }
}
