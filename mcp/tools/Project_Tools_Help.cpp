#include "mcp/tools/Project_Tools_Help.h"

#include "fb/model/FB_Help.h"
#include "fb/model/FB_Lua_Functions.h"
#include "fb/model/FB_Types.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Lookup.h"

namespace {

const QString cProgram = QStringLiteral("program/");
const QString cCommon = QStringLiteral("common/");
const QString cVisu = QStringLiteral("visu/");
const QString cPageEnd = QStringLiteral(".html");

QString utf8(const char* text) {
  return QString::fromUtf8(text);
}

QString topicOf(const QString& page) {
  return (FB_Help::typeOf(page) ? cProgram : cCommon) + page.chopped(cPageEnd.size());
}

/// Empty when there is no such page.
QString pageOf(const QString& topic) {
  const QString page = topic.section(u'/', -1) + cPageEnd;
  return FB_Help::pages().contains(page) && topicOf(page) == topic ? page : QString();
}

QJsonObject entry(const QString& page) {
  return {{QStringLiteral("topic"), topicOf(page)}, {QStringLiteral("title"), FB_Help::title(page)}};
}

/// Only German pages exist: any other language is answered with them.
void noteLanguage(const MCP_Call& call, QJsonObject& result) {
  result.insert(QStringLiteral("language"), QStringLiteral("de"));
  const QString wanted = call.text("language").trimmed();
  if (!wanted.isEmpty() && !wanted.startsWith(QStringLiteral("de"), Qt::CaseInsensitive)) {
    result.insert(QStringLiteral("note"),
                  QStringLiteral("Die Hilfe gibt es nur auf Deutsch; language '%1' ist nicht verfuegbar.").arg(wanted));
  }
}

MCP_Result listTopics(MCP_Call& call) {
  QJsonArray program;
  for (const FB_Types::Category& category : FB_Types::categories()) {
    for (const FB_Type& type : category.mTypes) {
      QJsonObject topic = entry(FB_Types::helpFileName(type.mId));
      topic.insert(QStringLiteral("type"), type.mId);
      program.append(topic);
    }
  }
  QJsonArray common;
  for (const FB_Help::Topic& topic : FB_Help::topics()) {
    common.append(entry(QString::fromLatin1(topic.mPage)));
  }
  QJsonObject result{{QStringLiteral("count"), program.size() + common.size()},
                     {QStringLiteral("program"), program},
                     {QStringLiteral("common"), common}};
  noteLanguage(call, result);
  return MCP_Result::done(result);
}

MCP_Result helpText(const MCP_Call& call, const QString& page) {
  QJsonObject result = entry(page);
  result.insert(QStringLiteral("text"), FB_Help::text(page));
  noteLanguage(call, result);
  return MCP_Result::done(result);
}

MCP_Result helpOfBlock(const MCP_Call& call) {
  const MCP_Lookup::Found<DB_FB_Control> block = MCP_Lookup::block(call, "fb_guid");
  if (!block) {
    return block.mFailure;
  }
  const QString page = FB_Types::helpFileName(block->mType);
  if (!FB_Help::pages().contains(page)) {
    return MCP_Result::failed(QStringLiteral("Zum Bausteintyp %1 gibt es keine Hilfeseite (fb_guid: %2)")
                                  .arg(block->mType)
                                  .arg(call.text("fb_guid")));
  }
  return helpText(call, page);
}

MCP_Result helpOfWidget(const MCP_Call& call) {
  const QString guid = call.text("widget_guid");
  return MCP_Result::failed(
      call.database().mWidgetPages.child(MCP_Lookup::guid(guid))
          ? QStringLiteral("Zu diesem Widget gibt es keine Hilfeseite (widget_guid: %1)").arg(guid)
          : QStringLiteral("Widget nicht gefunden: %1").arg(guid));
}

MCP_Result getHelp(MCP_Call& call) {
  const QString topic = call.text("topic").trimmed();
  const auto isGiven = [&call](const char* name) { return !call.text(name).isEmpty(); };
  if (int(!topic.isEmpty()) + int(isGiven("fb_guid")) + int(isGiven("widget_guid")) != 1) {
    return MCP_Result::failed(
        QStringLiteral("Genau einer der Parameter 'topic', 'fb_guid' und 'widget_guid' ist anzugeben"));
  }
  if (isGiven("fb_guid")) {
    return helpOfBlock(call);
  }
  if (isGiven("widget_guid")) {
    return helpOfWidget(call);
  }
  const QString page = pageOf(topic);
  if (page.isEmpty()) {
    const QString which = topic.startsWith(cVisu) ? QStringLiteral("Zu Widgets gibt es keine Hilfeseiten.")
                                                  : QStringLiteral("Die vorhandenen Themen liefert list_help_topics.");
    return MCP_Result::failed(QStringLiteral("Hilfe-Thema nicht gefunden: %1. %2").arg(topic, which));
  }
  return helpText(call, page);
}

QJsonObject functionEntry(const FB_Lua_Function& function) {
  QJsonObject entry{{QStringLiteral("signature"), FB_Lua_Functions::signature(function)},
                    {QStringLiteral("description"), FB_Lua_Functions::text(function.mText)},
                    {QStringLiteral("example"), utf8(function.mExample)}};
  QJsonObject parameters;
  for (const FB_Lua_Value& parameter : function.mParameters) {
    if (*parameter.mName) {
      parameters.insert(utf8(parameter.mName), FB_Lua_Functions::text(parameter.mText));
    }
  }
  if (!parameters.isEmpty()) {
    entry.insert(QStringLiteral("parameters"), parameters);
  }
  if (*function.mResult) {
    entry.insert(QStringLiteral("returns"), FB_Lua_Functions::text(function.mResult));
  }
  return entry;
}

MCP_Result luaReference(MCP_Call& /*call*/) {
  QJsonArray groups;
  qsizetype count = 0;
  for (const FB_Lua_Group& group : FB_Lua_Functions::groups()) {
    QJsonArray functions;
    for (const FB_Lua_Function& function : group.mFunctions) {
      functions.append(functionEntry(function));
    }
    count += functions.size();
    groups.append(QJsonObject{{QStringLiteral("group"), utf8(group.mTitle)}, {QStringLiteral("functions"), functions}});
  }
  QJsonArray callbacks;
  for (const FB_Lua_Callback& callback : FB_Lua_Functions::callbacks()) {
    callbacks.append(QJsonObject{{QStringLiteral("signature"), utf8(callback.mSignature)},
                                 {QStringLiteral("description"),
                                  QStringLiteral("Wird aufgerufen %1").arg(FB_Lua_Functions::text(callback.mText))}});
  }
  return MCP_Result::done({{QStringLiteral("count"), count},
                           {QStringLiteral("groups"), groups},
                           {QStringLiteral("callbacks"), callbacks},
                           {QStringLiteral("hint"), QStringLiteral("set_lua_script setzt das Script eines Bausteins; "
                                                                   "die callbacks definiert das Script selbst.")}});
}

} // namespace

std::vector<MCP_Tool> Project_Tools_Help::all() {
  const MCP_Parameter language = MCP_Parameter::text("language", "Sprache der Hilfe, z.B. 'de' (Standard)");
  return {
      {QStringLiteral("list_help_topics"),
       QStringLiteral("Listet alle verfuegbaren Hilfe-Themen auf (topic-IDs fuer get_help). Themen sind nach Kategorie "
                      "gegliedert: 'program/fb_xxx' fuer Funktionsbausteine, 'visu/widget_xxx' fuer Widgets, "
                      "'common/variable' fuer Datentypen und Variablen und weitere 'common/xxx' fuer allgemeine "
                      "Themen. Eine Kategorie, zu der es keine Seiten gibt, fehlt in der Antwort."),
       {language},
       listTopics,
       {}},
      {QStringLiteral("get_help"),
       QStringLiteral("Ruft eine Hilfe-Seite als Klartext ab. topic-ID aus list_help_topics verwenden. Beispiele: "
                      "'program/fb_modbus_master', 'program/fb_lua_script', 'common/variable', 'common/format', "
                      "'visu/widget_block_room_controller'. Alternativ: fb_guid oder widget_guid angeben, dann kommt "
                      "die Seite zum Typ dieses Bausteins oder Widgets. Die Seite eines Bausteins nennt Zweck, Ein- "
                      "und Ausgaenge, Parameter mit Bereich und Vorgabe und Beispiele."),
       {MCP_Parameter::text("topic", "topic-ID, z.B. 'program/fb_and'"), language,
        MCP_Parameter::text("fb_guid", "GUID eines Funktionsbausteins statt topic"),
        MCP_Parameter::text("widget_guid", "GUID eines Widgets statt topic")},
       getHelp,
       {}},
      {QStringLiteral("get_lua_api_reference"),
       QStringLiteral("Gibt die vollstaendige Referenz aller Lua-API-Funktionen zurueck, die dem "
                      "Lua-Script-Funktionsbaustein zur Verfuegung stehen (Timer, KNX-Adressen, IO, serielle "
                      "Kommunikation, Netzwerk, PID-Regler, Persistenz, globale Variablen, HTTP, Debug) samt den "
                      "Callback-Funktionen, die ein Script haben kann. Je Funktion Signatur, Beschreibung, Parameter, "
                      "Rueckgabe und Beispiel. Vor set_lua_script aufrufen: andere Funktionen gibt es nicht."),
       {},
       luaReference,
       {}},
  };
}
