#include "mcp/tools/FB_Connection_List.h"

#include "db/Address_Usage.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Connections.h"
#include "fb/model/FB_Pins.h"
#include "mcp/tools/FB_Json.h"
#include "mcp/tools/FB_Use_Json.h"

namespace {

using Kind = DB_Address_Binding::Kind;

QJsonObject entry(const Address_Tree& tree, const QString& kind, const DB_Address_Binding& binding,
                  const QJsonObject& source, const QJsonObject& target) {
  return {{QStringLiteral("kind"), kind},
          {QStringLiteral("binding"), FB_Json::binding(tree, binding)},
          {QStringLiteral("source"), source},
          {QStringLiteral("target"), target}};
}

const DB_Address_Binding& bindingOf(const DB_FB_Control& block, FB_Side side, int index) {
  return FB_Pins::pins(block, side)[static_cast<size_t>(index)].mBinding;
}

} // namespace

FB_Connection_List::FB_Connection_List(const ProjectDatabase& database, const Address_Usage& usage,
                                       const DB_FB_Page& page)
    : mDatabase(database),
      mUsage(usage),
      mPage(page) {
  addWithin();
  addPins(FB_Side::Output);
  addPins(FB_Side::Input);
}

void FB_Connection_List::addWithin() {
  for (const FB_Connections::Entry& found : FB_Connections::of(mPage)) {
    const DB_FB_Control& source = mPage.mChildren.at(found.mSource);
    const DB_FB_Control& target = mPage.mChildren.at(found.mTarget);
    const DB_Address_Binding& binding = bindingOf(source, FB_Side::Output, found.mOutput);
    const QString kind = binding.mKind == Kind::Internal ? QStringLiteral("internal") : QStringLiteral("address");
    append(mConnections,
           entry(mDatabase.mAddresses, kind, binding, FB_Use_Json::pin(source, FB_Side::Output, found.mOutput),
                 FB_Use_Json::pin(target, FB_Side::Input, found.mInput)));
    if (mIsTruncated) {
      return;
    }
  }
}

void FB_Connection_List::addPins(FB_Side side) {
  for (const auto& block : mPage.mChildren) {
    int index = 0;
    for (const DB_FB_Pin& pin : FB_Pins::pins(*block, side)) {
      if (pin.mBinding.mKind != Kind::None) {
        addToOtherPages({block->mGuid, side, index});
      }
      if (pin.mBinding.mKind == Kind::GroupAddress) {
        QJsonObject object = FB_Use_Json::pin(*block, side, index);
        object.insert(QStringLiteral("binding"), FB_Json::binding(mDatabase.mAddresses, pin.mBinding));
        append(mExternal, object);
      }
      ++index;
    }
  }
}

void FB_Connection_List::addToOtherPages(const FB_Pin_Ref& pin) {
  const DB_FB_Control& block = *mDatabase.mFbPages.child(pin.mBlock);
  const DB_Address_Binding& binding = bindingOf(block, pin.mSide, pin.mIndex);
  const QJsonObject here = FB_Use_Json::pin(block, pin.mSide, pin.mIndex);
  for (const Address_Use& use : elsewhere(binding.mKey)) {
    if (FB_Use_Json::pinOf(use).mSide == pin.mSide) {
      continue;
    }
    if (mConnections.size() == cMost) {
      mIsTruncated = true;
      return;
    }
    const QJsonObject there = FB_Use_Json::use(mDatabase, use, mPage.mGuid);
    const bool isSource = pin.mSide == FB_Side::Output;
    append(mConnections, entry(mDatabase.mAddresses, QStringLiteral("other_page"), binding, isSource ? here : there,
                               isSource ? there : here));
  }
}

/// Once for each binding: very many pins of a page may share one.
const std::vector<Address_Use>& FB_Connection_List::elsewhere(const QUuid& key) {
  const auto found = mElsewhere.constFind(key);
  if (found != mElsewhere.cend()) {
    return *found;
  }
  std::vector<Address_Use> uses;
  for (const Address_Use& use : mUsage.uses(key)) {
    if (FB_Use_Json::isPin(use) && use.mPageGuid != mPage.mGuid) {
      uses.push_back(use);
    }
  }
  return *mElsewhere.insert(key, uses);
}

void FB_Connection_List::append(QJsonArray& list, const QJsonObject& object) {
  if (list.size() < cMost) {
    list.append(object);
  } else {
    mIsTruncated = true;
  }
}
