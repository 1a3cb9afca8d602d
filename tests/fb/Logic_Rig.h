#pragma once

#include "fb/model/FB_Connections.h"
#include "fb/model/FB_Page_Edits.h"
#include "tests/db/Project_Dump.h"
#include "tests/db/Session_Rig.h"

/// A project with two empty logic pages and the group addresses 1/2/3 and 1/2/4.
class Logic_Rig : public Session_Rig {
public:
  Logic_Rig() {
    create();
    DB_Page_List<DB_FB_Page>& pages = mSession.database().mFbPages;
    pages.clear();
    for (QUuid* const page : {&mPage, &mOther}) {
      *page = pages.appendPage(std::make_unique<DB_FB_Page>()).mGuid;
    }
    mLight = addAddress({1, 2, 3}, QStringLiteral("Licht"))->mKey;
    mBlind = addAddress({1, 2, 4}, QStringLiteral("Jalousie"))->mKey;
  }

  QUuid add(int type = cAnd, const QPointF& position = {}, const QUuid& page = {}) {
    const FB_Page_Edits::Result made = FB_Page_Edits::create(mSession, page.isNull() ? mPage : page, type, position);
    return made ? made.mBlocks.first() : QUuid();
  }

  [[nodiscard]] const DB_FB_Control& block(const QUuid& guid) { return *mSession.database().mFbPages.child(guid); }
  [[nodiscard]] const DB_Address_Binding& input(const QUuid& guid, size_t index = 0) {
    return block(guid).mInputs.at(index).mBinding;
  }
  [[nodiscard]] const DB_Address_Binding& output(const QUuid& guid) { return block(guid).mOutputs.at(0).mBinding; }
  [[nodiscard]] std::vector<FB_Connections::Entry> wires(const QUuid& page = {}) {
    return FB_Connections::of(*mSession.database().mFbPages.page(page.isNull() ? mPage : page));
  }
  [[nodiscard]] QByteArray dump() { return Project_Dump::project(mSession.database(), false); }
  [[nodiscard]] History& history() { return mSession.history(); }

  static constexpr int cAnd = 50;
  static constexpr int cOnce = 1337;
  QUuid mPage;
  QUuid mOther;
  QUuid mLight;
  QUuid mBlind;
};
