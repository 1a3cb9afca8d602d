#include "mcp/tools/FB_Json.h"

#include "base/Group_Address.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Geometry.h"
#include "fb/model/FB_Pin_Types.h"
#include "fb/model/FB_Pins.h"
#include "fb/model/FB_Types.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/tools/FB_Parameter_Json.h"

#include <algorithm>

namespace {

using Kind = DB_Address_Binding::Kind;

constexpr int cHexDigits = 4;

void addText(QJsonObject& object, const QString& name, const QString& text) {
  if (!text.isEmpty()) {
    object.insert(name, text);
  }
}

QJsonArray pins(const Address_Tree& tree, const DB_FB_Control& block, FB_Side side, FB_Json::Pins detail) {
  QJsonArray array;
  const auto count = static_cast<int>(FB_Pins::pins(block, side).size());
  for (int i = 0; i < count; ++i) {
    array.append(FB_Json::pin(tree, block, side, i, detail));
  }
  return array;
}

/// A binding goes by its key; one without, of an older project, by its number.
bool isMissing(const Address_Tree& tree, const DB_Address_Binding& binding, const Group_Address& address) {
  return binding.mKey.isNull() ? !tree.subGroup(address) : !tree.subGroup(binding.mKey);
}

} // namespace

QString FB_Json::typeHex(int type) {
  return QStringLiteral("0x%1").arg(type, cHexDigits, 16, QLatin1Char('0'));
}

QJsonObject FB_Json::binding(const Address_Tree& tree, const DB_Address_Binding& binding) {
  if (binding.mKind == Kind::None) {
    return {};
  }
  if (binding.mKind == Kind::Internal) {
    return {{QStringLiteral("kind"), QStringLiteral("internal")}, {QStringLiteral("variable"), binding.mName}};
  }
  const Group_Address address(binding.mMain, binding.mMiddle, binding.mSub);
  QJsonObject object{{QStringLiteral("kind"), QStringLiteral("address")},
                     {QStringLiteral("address"), address.toString()}};
  addText(object, QStringLiteral("comment"), binding.mName);
  addText(object, QStringLiteral("dpt"), binding.mDpt.toString());
  if (isMissing(tree, binding, address)) {
    object.insert(QStringLiteral("missing"), true);
  }
  return object;
}

QString FB_Json::bindingText(const DB_Address_Binding& binding) {
  const Group_Address address(binding.mMain, binding.mMiddle, binding.mSub);
  return binding.mKind == Kind::Internal ? QStringLiteral("interne Variable \"%1\"").arg(binding.mName)
                                         : (address.toString() + u' ' + binding.mName).trimmed();
}

QJsonObject FB_Json::page(const ProjectDatabase& database, const DB_FB_Page& page) {
  QJsonObject object{{QStringLiteral("guid"), MCP_Lookup::text(page.mGuid)},
                     {QStringLiteral("caption"), page.mCaption},
                     {QStringLiteral("active"), page.mActive},
                     {QStringLiteral("controller_index"), page.mControllerIndex},
                     {QStringLiteral("width"), page.mWidth},
                     {QStringLiteral("height"), page.mHeight},
                     {QStringLiteral("block_count"), page.mChildren.size()}};
  addText(object, QStringLiteral("comment"), page.mComment);
  const auto& controllers = database.mProject.mControllers;
  const auto found = std::ranges::find(controllers, page.mControllerIndex, &DB_Controller::mNumber);
  if (found != controllers.end()) {
    addText(object, QStringLiteral("controller_name"), found->mName);
  }
  return object;
}

QJsonObject FB_Json::pin(const Address_Tree& tree, const DB_FB_Control& block, FB_Side side, int index, Pins detail) {
  const DB_FB_Pin& pin = FB_Pins::pins(block, side)[static_cast<size_t>(index)];
  QJsonObject object{{QStringLiteral("index"), index}, {QStringLiteral("name"), pin.mLongName}};
  if (pin.mBinding.mKind != Kind::None) {
    object.insert(QStringLiteral("binding"), binding(tree, pin.mBinding));
  }
  if (detail == Pins::Full) {
    addText(object, QStringLiteral("short_name"), pin.mShortName);
    addText(object, QStringLiteral("dpt"), FB_Pin_Types::usual(block, side, index).toString());
    if (const FB_Pin_Group* const group = FB_Pin_Types::group(block, side, index)) {
      addText(object, QStringLiteral("description"), FB_Types::text(group->mDescription));
    }
  }
  return object;
}

QJsonObject FB_Json::head(const DB_FB_Control& block) {
  QJsonObject object{{QStringLiteral("guid"), MCP_Lookup::text(block.mGuid)},
                     {QStringLiteral("type"), block.mType},
                     {QStringLiteral("type_name"), FB_Types::name(block.mType)},
                     {QStringLiteral("caption"), FB_Geometry::title(block)}};
  if (block.mOriginalType != 0) {
    object.insert(QStringLiteral("unknown_type"), block.mOriginalType);
  }
  return object;
}

QJsonObject FB_Json::block(const Address_Tree& tree, const DB_FB_Control& block, Pins detail) {
  QJsonObject object = head(block);
  const QSizeF size = FB_Geometry::size(block);
  object.insert(QStringLiteral("x"), block.mX);
  object.insert(QStringLiteral("y"), block.mY);
  object.insert(QStringLiteral("width"), size.width());
  object.insert(QStringLiteral("height"), size.height());
  addText(object, QStringLiteral("comment"), block.mComment);
  object.insert(QStringLiteral("comment_use_as_caption"), block.mCommentAsCaption);
  if (block.mDisabled) {
    object.insert(QStringLiteral("disabled"), true);
  }
  object.insert(QStringLiteral("inputs"), pins(tree, block, FB_Side::Input, detail));
  object.insert(QStringLiteral("outputs"), pins(tree, block, FB_Side::Output, detail));
  return object;
}

void FB_Json::warnOfPlace(MCP_Call& call, const DB_FB_Page& page, const DB_FB_Control& block) {
  if (!QRectF(0, 0, page.mWidth, page.mHeight).contains(FB_Geometry::rect(block))) {
    call.warn(QStringLiteral("Der Baustein liegt nicht ganz auf der Seite (%1 x %2 Pixel).")
                  .arg(page.mWidth)
                  .arg(page.mHeight));
  }
}

QJsonObject FB_Json::withParameters(const Address_Tree& tree, const DB_FB_Control& block) {
  QJsonObject object = FB_Json::block(tree, block, Pins::Full);
  object.insert(QStringLiteral("page_guid"), MCP_Lookup::text(block.mPageGuid));
  object.insert(QStringLiteral("parameters"), FB_Parameter_Json::ofBlock(block));
  return object;
}
