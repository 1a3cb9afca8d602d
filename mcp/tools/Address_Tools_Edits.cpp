#include "db/Address_Edits.h"
#include "db/Address_Usage.h"
#include "db/ProjectDatabase.h"
#include "db/Statistic_Edits.h"
#include "fb/model/FB_Types.h"
#include "mcp/MCP_Address_Json.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Data_Type.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/tools/Address_Tools.h"

#include <algorithm>

namespace {

using Field = Address_Edits::Field;

constexpr size_t cMostUses = 20;

MCP_Result answer(const MCP_Call& call, const Group_Address& address) {
  return MCP_Result::done(MCP_Address_Json::of(address, *call.database().mAddresses.subGroup(address)));
}

/// The argument `data_type`; none when the studio does not know it.
std::optional<Datapoint_Id> typeOf(const MCP_Call& call) {
  return MCP_Data_Type::parse(call.integer("data_type"));
}

MCP_Result unknownType(const MCP_Call& call) {
  return MCP_Result::failed(MCP_Data_Type::refusal("data_type", call.integer("data_type")));
}

MCP_Result createAddress(MCP_Call& call) {
  const MCP_Lookup::Address wanted = MCP_Lookup::address(call.arguments());
  if (!wanted) {
    return wanted.mFailure;
  }
  const std::optional<Datapoint_Id> type = typeOf(call);
  if (!type) {
    return unknownType(call);
  }
  const Group_Address& address = wanted.mAddress;
  const Address_Tree& tree = call.database().mAddresses;
  QJsonArray groups;
  if (!tree.mainGroup(address.main())) {
    groups.append(Group_Address::mainGroupText(address.main()));
  }
  if (!tree.middleGroup(address.main(), address.middle())) {
    groups.append(Group_Address::middleGroupText(address.main(), address.middle()));
  }
  const Edit_Result added = Address_Edits::add(call.session(), address, {call.text("comment"), {}, *type});
  if (!added) {
    return MCP_Result::failed(added.mError);
  }
  if (address == Group_Address()) {
    call.warn(
        QStringLiteral("0/0/0 ist auf dem Bus den Rundrufen vorbehalten; Werte lassen sich nicht dorthin senden."));
  }
  MCP_Result result = answer(call, address);
  if (!groups.isEmpty()) {
    result.mObject.insert(QStringLiteral("created_groups"), groups);
  }
  return result;
}

MCP_Result updateAddress(MCP_Call& call) {
  const auto group = MCP_Lookup::groupAddress(call, call.arguments());
  if (!group) {
    return group.mFailure;
  }
  if (!call.has("comment") && !call.has("data_type")) {
    return MCP_Result::failed(QStringLiteral("Nichts zu aendern: comment oder data_type angeben"));
  }
  const std::optional<Datapoint_Id> type = typeOf(call);
  if (!type) {
    return unknownType(call);
  }
  const Group_Address address = call.database().mAddresses.addressOf(*group);
  const QUuid key = group->mKey;
  Edit_Result edit = Edit_Result::done();
  if (call.has("comment")) {
    edit = Address_Edits::set(call.session(), {key}, Field::Name, call.text("comment"));
  }
  if (edit && call.has("data_type")) {
    edit = Address_Edits::set(call.session(), {key}, Field::Type, type->toString());
  }
  return edit ? answer(call, address) : MCP_Result::failed(edit.mError);
}

/// Those that point to nothing when the address is gone.
QJsonArray textsOf(const ProjectDatabase& database, const Address_Usage& usage, const QUuid& key) {
  QJsonArray texts;
  const std::span<const Address_Use> uses = usage.uses(key);
  for (const Address_Use& use : uses.first(std::min(uses.size(), cMostUses))) {
    const bool isElement = use.mPlace == Address_Use::Place::Element;
    texts.append(QJsonObject{
        {QStringLiteral("text"), Address_Usage::text(database, use, FB_Types::name).toString()},
        {isElement ? QStringLiteral("widget_guid") : QStringLiteral("fb_guid"), MCP_Lookup::text(use.mOwnerGuid)}});
  }
  return texts;
}

/// Those that record nothing any more when the address is gone.
void addRecordings(MCP_Call& call, const QUuid& key, QJsonObject& object) {
  QJsonArray recordings;
  for (const int index : Statistic_Edits::recordingsOf(call.database(), key)) {
    const DB_Statistic::Recording& recording = call.database().mStatistic.mRecordings[static_cast<size_t>(index)];
    recordings.append(QJsonObject{{QStringLiteral("index"), index}, {QStringLiteral("name"), recording.mName}});
  }
  if (recordings.isEmpty()) {
    return;
  }
  object.insert(QStringLiteral("recordings"), recordings);
  call.warn(
      QStringLiteral("Aufzeichnungen, deren Adresse es jetzt nicht mehr gibt: %1 (update_statistic_recording oder "
                     "delete_statistic_recording).")
          .arg(recordings.size()));
}

MCP_Result deleteAddress(MCP_Call& call) {
  const auto group = MCP_Lookup::groupAddress(call, call.arguments());
  if (!group) {
    return group.mFailure;
  }
  const QUuid key = group->mKey;
  const Address_Usage usage(call.database());
  QJsonObject object{
      {QStringLiteral("deleted"), MCP_Address_Json::of(call.database().mAddresses.addressOf(*group), *group)},
      {QStringLiteral("binding_count"), usage.count(key)}};
  if (usage.count(key) > 0) {
    object.insert(QStringLiteral("bindings"), textsOf(call.database(), usage, key));
    call.warn(QStringLiteral("Verknuepfungen, die jetzt auf keine Adresse mehr zeigen: %1.").arg(usage.count(key)));
  }
  addRecordings(call, key, object);
  return MCP_Result::of(Address_Edits::remove(call.session(), {key}), object);
}

} // namespace

std::vector<MCP_Tool> Address_Tools::edits() {
  return {{QStringLiteral("create_address"),
           QStringLiteral("Legt eine neue KNX-Adresse in der Adressliste an. Hauptgruppe/Mittelgruppe werden bei "
                          "Bedarf automatisch erstellt."),
           withAddress({MCP_Parameter::text("comment", "Bezeichnung, hoechstens 255 Zeichen").required(),
                        MCP_Parameter::integer("data_type", MCP_Data_Type::cDescription)}),
           createAddress, QStringLiteral("Adresse anlegen")},
          {QStringLiteral("update_address"),
           QStringLiteral("Aendert Bezeichnung oder Datentyp einer bestehenden KNX-Adresse."),
           withAddress({MCP_Parameter::text("comment", "Neue Bezeichnung, hoechstens 255 Zeichen"),
                        MCP_Parameter::integer("data_type", MCP_Data_Type::cDescription)}),
           updateAddress, QStringLiteral("Adresse ändern")},
          {QStringLiteral("delete_address"), QStringLiteral("Loescht eine KNX-Adresse aus der Adressliste."),
           withAddress(), deleteAddress, QStringLiteral("Adresse löschen")}};
}
