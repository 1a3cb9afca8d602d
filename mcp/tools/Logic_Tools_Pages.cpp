#include "db/DB_Text.h"
#include "db/ProjectDatabase.h"
#include "fb/model/FB_Page_List_Edits.h"
#include "fb/model/FB_Types.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/tools/FB_Json.h"
#include "mcp/tools/Logic_Tools_Parts.h"

#include <algorithm>
#include <map>

namespace {

QJsonArray typeCounts(const DB_FB_Page& page) {
  std::map<int, int> counts;
  for (const auto& block : page.mChildren) {
    ++counts[block->mType];
  }
  QJsonArray types;
  for (const auto& [type, count] : counts) {
    types.append(QJsonObject{{QStringLiteral("type"), type},
                             {QStringLiteral("type_name"), FB_Types::name(type)},
                             {QStringLiteral("count"), count}});
  }
  return types;
}

MCP_Result listPages(MCP_Call& call) {
  const bool hasSummary = call.flag("include_summary");
  QJsonArray pages;
  for (const auto& page : call.database().mFbPages.pages()) {
    QJsonObject object = FB_Json::page(call.database(), *page);
    if (hasSummary) {
      object.insert(QStringLiteral("types"), typeCounts(*page));
    }
    pages.append(object);
  }
  return MCP_Result::done({{QStringLiteral("count"), pages.size()}, {QStringLiteral("pages"), pages}});
}

MCP_Result getPage(MCP_Call& call) {
  const auto page = MCP_Lookup::logicPage(call, "guid");
  if (!page) {
    return page.mFailure;
  }
  QJsonArray blocks;
  for (const auto& block : page->mChildren) {
    blocks.append(FB_Json::block(call.database().mAddresses, *block, FB_Json::Pins::Brief));
  }
  QJsonObject object = FB_Json::page(call.database(), *page);
  object.insert(QStringLiteral("function_blocks"), blocks);
  return MCP_Result::done(object);
}

MCP_Result addPage(MCP_Call& call) {
  const QString caption = DB_Text::singleLine(call.text("caption"));
  if (caption.isEmpty()) {
    return MCP_Result::failed(QStringLiteral("Parameter 'caption' ist leer: die Seite braucht einen Namen"));
  }
  const auto& pages = call.database().mFbPages.pages();
  if (std::any_of(pages.begin(), pages.end(), [&](const auto& page) { return page->mCaption == caption; })) {
    call.warn(
        QStringLiteral("Eine Programmseite \"%1\" gibt es schon; beide unterscheidet nur die GUID.").arg(caption));
  }
  const FB_Page_List_Edits::Result made = FB_Page_List_Edits::create(call.session(), caption);
  const DB_FB_Page* const page = call.database().mFbPages.page(made.mPage);
  return page ? MCP_Result::done(FB_Json::page(call.database(), *page)) : MCP_Result::of(made);
}

/// Refuses a number that no controller of the list has.
MCP_Result checkController(const ProjectDatabase& database, int number) {
  QStringList allowed{QStringLiteral("0 (Hauptsteuerung)")};
  bool isKnown = number == 0;
  for (const DB_Controller& controller : database.mProject.mControllers) {
    allowed.append(QStringLiteral("%1 (%2)").arg(controller.mNumber).arg(controller.mName));
    isKnown = isKnown || controller.mNumber == number;
  }
  return isKnown
             ? MCP_Result::done()
             : MCP_Result::failed(QStringLiteral("controller_index %1 steht nicht in der Steuerungsliste. Erlaubt: %2")
                                      .arg(number)
                                      .arg(allowed.join(QStringLiteral(", "))));
}

MCP_Result setController(MCP_Call& call) {
  const auto page = MCP_Lookup::logicPage(call, "page_guid");
  if (!page) {
    return page.mFailure;
  }
  const int number = call.integer("controller_index");
  if (MCP_Result check = checkController(call.database(), number); !check) {
    return check;
  }
  FB_Page_List_Edits::Properties properties = FB_Page_List_Edits::properties(call.session(), page->mGuid);
  properties.mController = number;
  const Edit_Result edit = FB_Page_List_Edits::setProperties(call.session(), QUuid(page->mGuid), properties);
  return edit ? MCP_Result::done(FB_Json::page(call.database(), *page)) : MCP_Result::of(edit);
}

} // namespace

std::vector<MCP_Tool> Logic_Tools::pages() {
  return {
      {QStringLiteral("list_fb_pages"),
       QStringLiteral(
           "Listet alle Programm-Seiten (Funktionsbausteinseiten). Mit include_summary=true werden FB-Typen je Seite "
           "aggregiert (type, type_name, count). Spart den nachgelagerten get_fb_page-Aufruf wenn nur Typen benoetigt "
           "werden."),
       {MCP_Parameter::integer("include_summary", "true (oder 1): FB-Typen je Seite mitliefern. Standard: false")
            .orFlag()},
       listPages,
       {}},
      {QStringLiteral("get_fb_page"),
       QStringLiteral("Gibt Details einer Programmseite inkl. aller Funktionsbausteine zurueck."),
       {MCP_Parameter::text("guid", "GUID der Programmseite (list_fb_pages)").required()},
       getPage,
       {}},
      {QStringLiteral("add_fb_page"),
       QStringLiteral("Erstellt eine neue Programmseite (Funktionsbausteinseite)."),
       {MCP_Parameter::text("caption", "Name der Seite, 1 bis 255 Zeichen").required()},
       addPage,
       QStringLiteral("Programmseite anlegen")},
      {QStringLiteral("set_fb_page_controller"),
       QStringLiteral(
           "Legt fest, welche Steuerung eine Programmseite ausfuehrt (Steuerungsverbund). Angegeben wird die Nummer "
           "aus der Steuerungsliste. Eine Seite laeuft immer auf genau EINER Steuerung; alle anderen legen ihre "
           "Bausteine gar nicht erst an. 0 = Hauptsteuerung (Standard jeder Seite). Die Nummern nennt "
           "get_controller_list. Wirkt, sobald das Projekt zur Steuerung geschrieben ist."),
       {MCP_Parameter::text("page_guid", "GUID der Programmseite (list_fb_pages)").required(),
        MCP_Parameter::integer("controller_index", "Nummer aus der Steuerungsliste; 0 = Hauptsteuerung").required()},
       setController,
       QStringLiteral("Steuerung der Programmseite")},
  };
}
