#include "mcp/tools/FB_Block_Links.h"

#include "db/Address_Usage.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Pins.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/tools/FB_Json.h"
#include "mcp/tools/FB_Use_Json.h"

#include <algorithm>

namespace {

using Kind = DB_Address_Binding::Kind;

constexpr FB_Side cSides[] = {FB_Side::Input, FB_Side::Output};

const DB_FB_Pin& pinAt(const DB_FB_Control& block, const FB_Pin_Ref& pin) {
  return FB_Pins::pins(block, pin.mSide)[static_cast<size_t>(pin.mIndex)];
}

template <class Visit>
void forBoundPins(const DB_FB_Control& block, Visit&& visit) {
  for (const FB_Side side : cSides) {
    int index = 0;
    for (const DB_FB_Pin& pin : FB_Pins::pins(block, side)) {
      if (pin.mBinding.mKind != Kind::None) {
        visit(FB_Pin_Ref{block.mGuid, side, index}, pin.mBinding);
      }
      ++index;
    }
  }
}

} // namespace

QJsonArray FB_Block_Links::boundPins(const ProjectDatabase& database, const Address_Usage& usage,
                                     const DB_FB_Control& block) {
  QJsonArray pins;
  qsizetype room = cMostInAll;
  forBoundPins(block, [&](const FB_Pin_Ref& pin, const DB_Address_Binding& binding) {
    QJsonObject object = FB_Use_Json::pin(block, pin.mSide, pin.mIndex);
    object.insert(QStringLiteral("binding"), FB_Json::binding(database.mAddresses, binding));
    addOthers(object, database, usage, pin, room);
    pins.append(object);
  });
  return pins;
}

void FB_Block_Links::addOthers(QJsonObject& object, const ProjectDatabase& database, const Address_Usage& usage,
                               const FB_Pin_Ref& pin, qsizetype& room) {
  const DB_FB_Control* const block = database.mFbPages.child(pin.mBlock);
  const auto uses = usage.uses(pinAt(*block, pin).mBinding.mKey);
  if (uses.size() <= 1) {
    return;
  }
  object.insert(QStringLiteral("also_bound_count"), static_cast<qint64>(uses.size()) - 1);
  if (room > 0) {
    const QJsonArray others = FB_Use_Json::others(database, uses, block->mPageGuid, {pin});
    object.insert(QStringLiteral("also_bound"), others);
    room -= others.size();
  }
}

std::vector<FB_Pin_Ref> FB_Block_Links::sharingVariables(const Address_Usage& usage, const DB_FB_Control& block) {
  std::vector<FB_Pin_Ref> pins;
  QSet<QUuid> seen;
  forBoundPins(block, [&](const FB_Pin_Ref&, const DB_Address_Binding& binding) {
    if (binding.mKind != Kind::Internal || seen.contains(binding.mKey)) {
      return;
    }
    seen.insert(binding.mKey);
    for (const Address_Use& use : usage.uses(binding.mKey)) {
      if (FB_Use_Json::isPin(use) && use.mOwnerGuid != block.mGuid) {
        pins.push_back(FB_Use_Json::pinOf(use));
      }
    }
  });
  return pins;
}

std::vector<FB_Pin_Ref> FB_Block_Links::sharingVariable(const ProjectDatabase& database,
                                                        const DB_Address_Binding& binding) {
  std::vector<FB_Pin_Ref> pins;
  if (binding.mKind == Kind::Internal) {
    const Address_Usage usage(database);
    for (const Address_Use& use : usage.uses(binding.mKey)) {
      if (FB_Use_Json::isPin(use)) {
        pins.push_back(FB_Use_Json::pinOf(use));
      }
    }
  }
  return pins;
}

QJsonArray FB_Block_Links::released(const ProjectDatabase& database, const std::vector<FB_Pin_Ref>& pins) {
  QJsonArray array;
  for (const FB_Pin_Ref& pin : pins) {
    const DB_FB_Control* const block = database.mFbPages.child(pin.mBlock);
    if (block && pinAt(*block, pin).mBinding.mKind == Kind::None && array.size() < FB_Use_Json::cMostListed) {
      array.append(FB_Use_Json::pin(*block, pin.mSide, pin.mIndex));
    }
  }
  return array;
}

void FB_Block_Links::addReleased(QJsonObject& object, const ProjectDatabase& database,
                                 const std::vector<FB_Pin_Ref>& pins) {
  if (const QJsonArray array = released(database, pins); !array.isEmpty()) {
    object.insert(QStringLiteral("released"), array);
  }
}

QJsonArray FB_Block_Links::elementsOf(const ProjectDatabase& database, const QUuid& block) {
  const QString text = block.toString(QUuid::WithoutBraces);
  QJsonArray elements;
  for (const auto& page : database.mWidgetPages.pages()) {
    for (const auto& element : page->mChildren) {
      const auto names = [&text](const QString& parameter) { return parameter.contains(text, Qt::CaseInsensitive); };
      if (std::ranges::any_of(element->mParams, names)) {
        elements.append(QJsonObject{{QStringLiteral("widget_guid"), MCP_Lookup::text(element->mGuid)},
                                    {QStringLiteral("page_guid"), MCP_Lookup::text(page->mGuid)}});
      }
    }
  }
  return elements;
}
