#include "mcp/MCP_Address_Json.h"

#include "db/DB_Address_Binding.h"
#include "db/DB_Address_Groups.h"
#include "mcp/MCP_Data_Type.h"

namespace {

void addType(QJsonObject& object, const DB_Address_Sub_Group& group) {
  MCP_Data_Type::add(object, group.mDpt);
  if (group.mDptGuessed) {
    object.insert(QStringLiteral("data_type_guessed"), true);
  }
  if (group.mDpt.isNone() && !group.mDptRaw.isEmpty()) {
    object.insert(QStringLiteral("data_type_imported"), group.mDptRaw);
  }
}

void addFlags(QJsonObject& object, const DB_Address_Sub_Group& group) {
  const DB_Address_Sub_Group usual;
  const auto add = [&](const char* name, bool DB_Address_Sub_Group::*flag) {
    if (group.*flag != usual.*flag) {
      object.insert(QLatin1String(name), group.*flag);
    }
  };
  add("read_at_start", &DB_Address_Sub_Group::mReadAtStart);
  add("read_cyclic", &DB_Address_Sub_Group::mReadCyclic);
  add("write", &DB_Address_Sub_Group::mWrite);
  add("active", &DB_Address_Sub_Group::mActive);
}

} // namespace

QJsonObject MCP_Address_Json::of(const Group_Address& address) {
  return {{QStringLiteral("main"), address.main()},
          {QStringLiteral("middle"), address.middle()},
          {QStringLiteral("sub"), address.sub()},
          {QStringLiteral("address"), address.toString()}};
}

QJsonObject MCP_Address_Json::of(const Group_Address& address, const DB_Address_Sub_Group& group) {
  QJsonObject object = of(address);
  object.insert(QStringLiteral("comment"), group.mName);
  if (!group.mDescription.isEmpty()) {
    object.insert(QStringLiteral("description"), group.mDescription);
  }
  addType(object, group);
  addFlags(object, group);
  return object;
}

QJsonObject MCP_Address_Json::of(const DB_Address_Binding& binding) {
  QJsonObject object;
  if (binding.mKind == DB_Address_Binding::Kind::GroupAddress) {
    object = of(Group_Address(binding.mMain, binding.mMiddle, binding.mSub));
    object.insert(QStringLiteral("comment"), binding.mName);
    MCP_Data_Type::add(object, binding.mDpt);
    object.insert(QStringLiteral("kind"), QStringLiteral("address"));
  } else if (binding.mKind == DB_Address_Binding::Kind::Internal) {
    object = {{QStringLiteral("kind"), QStringLiteral("internal")}, {QStringLiteral("variable"), binding.mName}};
  } else {
    object = {{QStringLiteral("kind"), QStringLiteral("none")}};
  }
  return object;
}
