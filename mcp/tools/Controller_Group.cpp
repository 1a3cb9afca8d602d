#include "mcp/tools/Controller_Group.h"

#include "db/Controller_Edits.h"
#include "db/ProjectDatabase.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/MCP_Members.h"

#include <QHash>

#include <algorithm>

namespace {

constexpr int cHighestNumber = 255;

using Controllers = std::vector<DB_Controller>;

int mainIndex(const Controllers& controllers) {
  const auto main = std::ranges::find_if(controllers, &DB_Controller::mIsMain);
  return main == controllers.end() ? 0 : main->mNumber;
}

QJsonArray pagesOf(const QList<const DB_FB_Page*>& pages) {
  QJsonArray list;
  for (const DB_FB_Page* const page : pages) {
    list.append(QJsonObject{{QStringLiteral("guid"), MCP_Lookup::text(page->mGuid)},
                            {QStringLiteral("caption"), page->mCaption},
                            {QStringLiteral("controller_index"), page->mControllerIndex}});
  }
  return list;
}

/// By the number of the controller that executes them; pages of no controller are the main one's.
QHash<int, QList<const DB_FB_Page*>> pagesByNumber(const ProjectDatabase& database) {
  QHash<int, QList<const DB_FB_Page*>> pages;
  const int main = mainIndex(database.mProject.mControllers);
  for (const auto& page : database.mFbPages.pages()) {
    pages[page->mControllerIndex == 0 ? main : page->mControllerIndex].append(page.get());
  }
  return pages;
}

/// `controllers`, `count`, `main_index`, and the pages that each executes.
QJsonObject listOf(MCP_Call& call) {
  const Controllers& controllers = call.database().mProject.mControllers;
  QHash<int, QList<const DB_FB_Page*>> pages = pagesByNumber(call.database());
  QJsonArray list;
  for (const DB_Controller& controller : controllers) {
    list.append(QJsonObject{{QStringLiteral("index"), controller.mNumber},
                            {QStringLiteral("name"), controller.mName},
                            {QStringLiteral("address"), controller.mAddress},
                            {QStringLiteral("is_main"), controller.mIsMain},
                            {QStringLiteral("pages"), pagesOf(pages.take(controller.mNumber))}});
  }
  QJsonObject object{{QStringLiteral("controllers"), list},
                     {QStringLiteral("count"), list.size()},
                     {QStringLiteral("main_index"), mainIndex(controllers)}};
  pages.remove(0);
  if (pages.isEmpty()) {
    return object;
  }
  QJsonArray orphans;
  for (const auto& page : call.database().mFbPages.pages()) {
    if (pages.contains(page->mControllerIndex)) {
      const QJsonArray one = pagesOf({page.get()});
      orphans.append(one.first());
    }
  }
  object.insert(QStringLiteral("pages_without_controller"), orphans);
  call.warn(QStringLiteral("Seiten in pages_without_controller nennen eine Nummer, die nicht in der Steuerungsliste "
                           "steht - im Verbund fuehrt sie keine Steuerung aus (set_fb_page_controller)."));
  return object;
}

MCP_Result getControllerList(MCP_Call& call) {
  QJsonObject object = listOf(call);
  if (call.database().mProject.mControllers.empty()) {
    object.insert(QStringLiteral("note"),
                  QStringLiteral("Die Liste ist leer: ein gewoehnliches Projekt fuer eine einzige Steuerung."));
  }
  return MCP_Result::done(object);
}

const MCP_Members& members() {
  static const MCP_Members members(
      {MCP_Parameter::integer("index", "Nummer der Steuerung, 1 bis 255, jede nur einmal")
           .required()
           .within(1, cHighestNumber),
       MCP_Parameter::text("name", "Name der Steuerung").required(),
       MCP_Parameter::text("address", "IP-Adresse oder Rechnername, bei Bedarf mit ':' und Port").required(),
       MCP_Parameter::flag("is_main", "true bei genau einer Steuerung (Standard: false)")});
  return members;
}

MCP_Result setControllerList(MCP_Call& call) {
  const QJsonArray list = call.list("controllers");
  if (list.size() > cHighestNumber) {
    return MCP_Result::failed(QStringLiteral("Parameter 'controllers' hat zu viele Eintraege: %1 (Maximum: %2)")
                                  .arg(list.size())
                                  .arg(cHighestNumber));
  }
  MCP_Members::Entries entries = members().of(call, "controllers");
  if (!entries) {
    return entries.mFailure;
  }
  Controllers controllers;
  controllers.reserve(entries.mEntries.size());
  for (const MCP_Call& entry : entries.mEntries) {
    controllers.push_back({entry.integer("index"), entry.text("name"), entry.text("address"), entry.flag("is_main")});
  }
  if (const auto faults = Controller_Edits::faultsOf(controllers); !faults.empty()) {
    return MCP_Result::failed(MCP_Members::place("controllers", faults.front().mRow) + faults.front().mText);
  }
  if (const Edit_Result set = Controller_Edits::setControllers(call.session(), std::move(controllers)); !set) {
    return MCP_Result::failed(set.mError);
  }
  QJsonObject object = listOf(call);
  object.insert(QStringLiteral("hint"),
                QStringLiteral("Die Liste gehoert zu den Projektdaten: sie wirkt auf der Steuerung erst nach "
                               "write_project_to_controller."));
  return MCP_Result::done(object);
}

} // namespace

std::vector<MCP_Tool> Controller_Group::all() {
  return {
      {QStringLiteral("get_controller_list"),
       QStringLiteral(
           "Steuerungsverbund: liest die Steuerungsliste des Projektes. Ein Projekt kann auf mehreren "
           "Steuerungen laufen; je Programmseite legt mControllerIndex fest, welche Steuerung sie ausfuehrt. "
           "Rueckgabe: controllers, count, main_index, je Steuerung index (ihre Nummer), name, address, "
           "is_main und pages, die Programmseiten, die sie ausfuehrt. Seiten ohne Zuordnung "
           "(controller_index 0) fuehrt die Hauptsteuerung aus. Eine leere Liste: Ein-Steuerungs-Projekt."),
       {},
       getControllerList,
       {}},
      {QStringLiteral("set_controller_list"),
       QStringLiteral(
           "Steuerungsverbund: ersetzt die Steuerungsliste des Projektes. Eine leere Liste macht daraus wieder "
           "ein gewoehnliches Ein-Steuerungs-Projekt. Genau eine Steuerung muss is_main tragen - sie fuehrt "
           "alle Seiten aus, die keiner anderen zugeordnet sind (set_fb_page_controller). Die Seiten behalten "
           "ihre Zuordnung. Wirkt auf der Steuerung erst nach write_project_to_controller; die eigene Nummer "
           "bekommt jedes Geraet mit set_controller_index."),
       {MCP_Parameter::list("controllers", "Alle Steuerungen des Verbunds, hoechstens 255; leer = kein Verbund",
                            members().properties(), members().required())
            .required()},
       setControllerList,
       QStringLiteral("Steuerungsliste ändern")},
  };
}
