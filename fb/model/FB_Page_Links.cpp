#include "fb/model/FB_Page_Links.h"

#include "db/Project_Session.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"

#include <algorithm>

namespace {

constexpr qsizetype cNamedPages = 2;

bool isOnLogicPage(const Address_Use& use) {
  return use.mPlace != Address_Use::Place::Element;
}

bool isWriting(const Address_Use& use) {
  return use.mPlace == Address_Use::Place::Output;
}

} // namespace

FB_Page_Links::FB_Page_Links(Project_Session& session, QObject* parent)
    : QObject(parent),
      mSession(session),
      mWatch(session) {
  connect(&mWatch, &Address_Usage_Watch::changed, this, [this] {
    mTexts.clear();
    emit changed();
  });
}

std::vector<Address_Use> FB_Page_Links::linked(const FB_Pin_Ref& pin) {
  const DB_FB_Control* const block = mSession.database().mFbPages.child(pin.mBlock);
  const std::vector<DB_FB_Pin>* const pins = block ? &FB_Pins::pins(*block, pin.mSide) : nullptr;
  if (!pins || pin.mIndex < 0 || pin.mIndex >= static_cast<int>(pins->size())) {
    return {};
  }
  std::vector<Address_Use> counterparts;
  std::vector<Address_Use> others;
  const auto addFirstOfPage = [](std::vector<Address_Use>& uses, const Address_Use& use) {
    if (uses.empty() || uses.back().mPageGuid != use.mPageGuid) { // those of a page stand beside each other
      uses.push_back(use);
    }
  };
  for (const Address_Use& use : mWatch.usage().uses((*pins)[static_cast<size_t>(pin.mIndex)].mBinding.mKey)) {
    if (isOnLogicPage(use) && use.mPageGuid != block->mPageGuid) {
      addFirstOfPage(isWriting(use) == (pin.mSide == FB_Side::Input) ? counterparts : others, use);
    }
  }
  return counterparts.empty() ? others : counterparts;
}

QList<FB_Page_Links::Target> FB_Page_Links::targets(const FB_Pin_Ref& pin) {
  QList<Target> targets;
  const ProjectDatabase& database = mSession.database();
  for (const Address_Use& use : linked(pin)) {
    const Address_Usage::Use_Text text = Address_Usage::text(database, use, FB_Types::name);
    const FB_Side side = isWriting(use) ? FB_Side::Output : FB_Side::Input;
    targets.push_back({use.mPageGuid,
                       text.mPage,
                       {use.mOwnerGuid, side, use.mIndex},
                       QStringLiteral("%1: %2").arg(text.mOwner, text.mPlace)});
  }
  return targets;
}

QString FB_Page_Links::text(const FB_Pin_Ref& pin) {
  if (const auto known = mTexts.constFind(pin); known != mTexts.cend()) {
    return *known;
  }
  const std::vector<Address_Use> uses = linked(pin);
  QStringList names;
  for (const Address_Use& use : uses) {
    if (names.size() == cNamedPages) {
      names.append(QStringLiteral("+%1").arg(static_cast<qsizetype>(uses.size()) - cNamedPages));
      break;
    }
    const DB_FB_Page* const page = mSession.database().mFbPages.page(use.mPageGuid);
    names.append(page ? page->mCaption.simplified() : QString());
  }
  return *mTexts.insert(pin, names.join(QStringLiteral(", ")));
}
