#include "fb/model/FB_Type_Text.h"
#include "fb/model/FB_Types.h"
#include "mcp/MCP_Call.h"
#include "mcp/tools/FB_Json.h"
#include "mcp/tools/FB_Parameter_Json.h"
#include "mcp/tools/Logic_Tools_Parts.h"

#include <QHash>

namespace {

QString categoryOf(int type) {
  static const QHash<int, const char*> cTitles = [] {
    QHash<int, const char*> titles;
    for (const FB_Types::Category& category : FB_Types::categories()) {
      for (const FB_Type& one : category.mTypes) {
        titles.insert(one.mId, category.mTitle);
      }
    }
    return titles;
  }();
  const char* const title = cTitles.value(type, "");
  return *title ? FB_Types::text(title) : QString();
}

/// What tells a type from others.
QJsonObject brief(const FB_Type& type) {
  QJsonObject object{{QStringLiteral("type"), type.mId},
                     {QStringLiteral("type_hex"), FB_Json::typeHex(type.mId)},
                     {QStringLiteral("type_name"), FB_Types::name(type.mId)}};
  if (const QString category = categoryOf(type.mId); !category.isEmpty()) {
    object.insert(QStringLiteral("category"), category);
  }
  if (type.mIsOnce) {
    object.insert(QStringLiteral("once_per_project"), true);
  }
  if (!type.mHasPins) {
    object.insert(QStringLiteral("pins_unknown"), true);
  }
  return object;
}

QJsonArray pinsOf(const FB_Type& type, FB_Side side) {
  QJsonArray pins;
  for (const FB_Pin_Group& group : type.mPins) {
    if (group.mSide != side) {
      continue;
    }
    QJsonObject object{{QStringLiteral("name"), FB_Type_Text::longName(group)},
                       {QStringLiteral("short_name"), FB_Type_Text::shortName(group)},
                       {QStringLiteral("description"), FB_Types::text(group.mDescription)}};
    if (group.mParameter < 0) {
      object.insert(QStringLiteral("count"), group.mCount);
    } else {
      object.insert(QStringLiteral("count_parameter"), group.mParameter);
    }
    if (*group.mDpt) {
      object.insert(QStringLiteral("dpt"), QString::fromLatin1(group.mDpt));
    }
    pins.append(object);
  }
  return pins;
}

MCP_Result listTypes(MCP_Call& /*call*/) {
  QJsonArray types;
  for (const FB_Type* const type : FB_Types::all()) {
    types.append(brief(*type));
  }
  return MCP_Result::done(
      {{QStringLiteral("count"), types.size()},
       {QStringLiteral("types"), types},
       {QStringLiteral("note"),
        QStringLiteral(
            "once_per_project: hoechstens einmal im Projekt. pins_unknown: Ein-/Ausgaenge und Parameter sind "
            "dem Studio nicht bekannt. Ohne category: Typ aus aelteren Projekten.")}});
}

MCP_Result typeInfo(MCP_Call& call) {
  if (!call.has("type")) {
    return MCP_Result::failed(QStringLiteral("Parameter 'type' fehlt"));
  }
  const FB_Type* const type = FB_Types::find(call.integer("type"));
  if (!type) {
    return MCP_Result::failed(
        QStringLiteral("Unbekannter Bausteintyp: %1. list_fb_types nennt alle Typen.").arg(call.integer("type")));
  }
  QJsonObject object = brief(*type);
  object.insert(QStringLiteral("class"), QString::fromLatin1(type->mClass));
  object.insert(QStringLiteral("inputs"), pinsOf(*type, FB_Side::Input));
  object.insert(QStringLiteral("outputs"), pinsOf(*type, FB_Side::Output));
  object.insert(QStringLiteral("parameters"), FB_Parameter_Json::ofType(*type));
  if (type->mHasRegisterPins) {
    object.insert(QStringLiteral("note"),
                  QStringLiteral("Jedes Modbus-Register bringt weitere Ein-/Ausgaenge (add_modbus_master_register)."));
  }
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Logic_Tools::types() {
  return {
      {QStringLiteral("get_fb_type_info"),
       QStringLiteral("Gibt den Bezeichner eines Funktionsbaustein-Typs anhand seines numerischen Typwerts zurueck."),
       {MCP_Parameter::integer("type", "Typwert als Dezimalzahl (list_fb_types)")},
       typeInfo,
       {}},
      {QStringLiteral("list_fb_types"),
       QStringLiteral("Gibt die vollstaendige Liste aller bekannten Funktionsbaustein-Typen zurueck (type=Dezimalwert, "
                      "type_hex=Hex-Wert, type_name=Bezeichnung). Aufrufen bevor add_function_block, um den korrekten "
                      "Typ-Wert zu ermitteln. Beispiel: type=50, type_hex=0x0032, type_name=Und. Einzelheiten eines "
                      "Typs: get_fb_type_info."),
       {},
       listTypes,
       {}},
  };
}
