#include "db/Address_Usage_Watch.h"

#include "db/Project_Session.h"

Address_Usage_Watch::Address_Usage_Watch(Project_Session& session, QObject* parent)
    : QObject(parent),
      mSession(session) {
  mTimer.setSingleShot(true);
  mTimer.setInterval(0);
  connect(&mTimer, &QTimer::timeout, this, &Address_Usage_Watch::changed);
  const ProjectDatabase& database = session.database();
  connect(&database.mAddresses, &Address_Tree::structureChanged, this, &Address_Usage_Watch::onChange);
  connect(&database.mAddresses, &Address_Tree::recordChanged, this, &Address_Usage_Watch::onChange);
  listenTo(database.mFbPages);
  listenTo(database.mWidgetPages);
  // Blocks that come, go or change are told by no list, but every edit changes the history.
  connect(&session.history(), &History::changed, this, &Address_Usage_Watch::onChange);
  connect(&session, &Project_Session::opened, this, &Address_Usage_Watch::onChange);
  connect(&session, &Project_Session::closed, this, &Address_Usage_Watch::onChange);
}

void Address_Usage_Watch::listenTo(const DB_Page_List_Signals& list) {
  connect(&list, &DB_Page_List_Signals::structureChanged, this, &Address_Usage_Watch::onChange);
  connect(&list, &DB_Page_List_Signals::pageChanged, this, &Address_Usage_Watch::onChange);
}

void Address_Usage_Watch::onChange() {
  mIsStale = true;
  mTimer.start();
}

const Address_Usage& Address_Usage_Watch::usage() {
  if (mIsStale) {
    mUsage = Address_Usage(mSession.database());
    mIsStale = false;
  }
  return mUsage;
}
