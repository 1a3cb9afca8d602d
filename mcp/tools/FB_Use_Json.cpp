#include "mcp/tools/FB_Use_Json.h"

#include "db/ProjectDatabase.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pins.h"
#include "mcp/MCP_Lookup.h"

#include <algorithm>

namespace {

using Place = Address_Use::Place;

QJsonObject element(const ProjectDatabase& database, const Address_Use& use) {
  QJsonObject object{{QStringLiteral("widget_guid"), MCP_Lookup::text(use.mOwnerGuid)},
                     {QStringLiteral("io_index"), use.mIndex},
                     {QStringLiteral("page_guid"), MCP_Lookup::text(use.mPageGuid)}};
  const DB_Widget* const widget = database.mWidgetPages.child(use.mOwnerGuid);
  if (widget && !widget->mName.isEmpty()) {
    object.insert(QStringLiteral("widget"), widget->mName);
  }
  return object;
}

QJsonObject disabling(const DB_FB_Control& block) {
  return {{QStringLiteral("fb_guid"), MCP_Lookup::text(block.mGuid)},
          {QStringLiteral("fb"), FB_Geometry::title(block)},
          {QStringLiteral("disable_address"), true}};
}

} // namespace

QJsonObject FB_Use_Json::pin(const DB_FB_Control& block, FB_Side side, int index) {
  return {{QStringLiteral("fb_guid"), MCP_Lookup::text(block.mGuid)},
          {QStringLiteral("fb"), FB_Geometry::title(block)},
          {QStringLiteral("io_type"), side == FB_Side::Output ? 1 : 0},
          {QStringLiteral("io_index"), index},
          {QStringLiteral("io"), FB_Pins::pins(block, side)[static_cast<size_t>(index)].mLongName}};
}

QJsonObject FB_Use_Json::use(const ProjectDatabase& database, const Address_Use& use, const QUuid& page) {
  if (use.mPlace == Place::Element) {
    return element(database, use);
  }
  const DB_FB_Control* const block = database.mFbPages.child(use.mOwnerGuid);
  if (!block) {
    return {};
  }
  const FB_Pin_Ref ref = pinOf(use);
  QJsonObject object = isPin(use) ? pin(*block, ref.mSide, ref.mIndex) : disabling(*block);
  if (use.mPageGuid != page) {
    object.insert(QStringLiteral("page_guid"), MCP_Lookup::text(use.mPageGuid));
    object.insert(QStringLiteral("page"), database.mFbPages.page(use.mPageGuid)->mCaption);
  }
  return object;
}

QJsonArray FB_Use_Json::others(const ProjectDatabase& database, std::span<const Address_Use> uses, const QUuid& page,
                               std::initializer_list<FB_Pin_Ref> without) {
  QJsonArray array;
  for (const Address_Use& one : uses) {
    const bool isLeftOut = isPin(one) && std::ranges::find(without, pinOf(one)) != without.end();
    if (!isLeftOut) {
      array.append(use(database, one, page));
    }
    if (array.size() == cMostListed) {
      break;
    }
  }
  return array;
}

bool FB_Use_Json::isPin(const Address_Use& use) {
  return use.mPlace == Place::Input || use.mPlace == Place::Output;
}

FB_Pin_Ref FB_Use_Json::pinOf(const Address_Use& use) {
  return {use.mOwnerGuid, use.mPlace == Place::Output ? FB_Side::Output : FB_Side::Input, use.mIndex};
}
