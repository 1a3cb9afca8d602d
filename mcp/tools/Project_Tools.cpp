#include "mcp/tools/Project_Tools.h"

#include "base/File_Copy.h"
#include "db/DB_Text.h"
#include "mcp/MCP_Call.h"
#include "mcp/MCP_Lookup.h"
#include "mcp/MCP_Studio.h"
#include "mcp/tools/Project_Tools_Help.h"
#include "mcp/tools/Project_Tools_Path.h"
#include "net/Controller_Link.h"

#include <QDateTime>
#include <QFileInfo>

namespace {

template <class Page>
qsizetype childCount(const DB_Page_List<Page>& list) {
  qsizetype count = 0;
  for (const auto& page : list.pages()) {
    count += page->mChildren.size();
  }
  return count;
}

template <class Page>
QJsonArray pageList(const DB_Page_List<Page>& list) {
  QJsonArray pages;
  for (const auto& page : list.pages()) {
    pages.append(QJsonObject{{QStringLiteral("guid"), MCP_Lookup::text(page->mGuid)},
                             {QStringLiteral("caption"), page->mCaption}});
  }
  return pages;
}

/// File, version and time of the open project.
QJsonObject projectHead(const MCP_Call& call) {
  const DB_Project& project = call.database().mProject;
  QJsonObject head{{QStringLiteral("filename"), call.session().path()},
                   {QStringLiteral("name"), QFileInfo(call.session().path()).completeBaseName()},
                   {QStringLiteral("version"), project.mVersion},
                   {QStringLiteral("timestamp"), project.mTimestamp},
                   {QStringLiteral("modified"), call.session().isModified()}};
  if (project.mTimestamp > 0) {
    head.insert(QStringLiteral("timestamp_text"),
                QDateTime::fromSecsSinceEpoch(project.mTimestamp).toString(Qt::ISODate));
  }
  return head;
}

void addConnection(const MCP_Call& call, QJsonObject& info) {
  const Controller_Link* const link = call.studio().link();
  const bool isOnline = link && link->isOnline();
  info.insert(QStringLiteral("connected"), isOnline);
  const DB_Connections& connections = call.database().mConnections;
  if (connections.mSelected >= 0 && connections.mSelected < qsizetype(connections.mItems.size())) {
    info.insert(QStringLiteral("connection"), connections.mItems.at(connections.mSelected).mName);
  }
}

MCP_Result projectInfo(MCP_Call& call) {
  const ProjectDatabase& database = call.database();
  QJsonObject info = projectHead(call);
  info.insert(QStringLiteral("fb_pages"), database.mFbPages.pages().size());
  info.insert(QStringLiteral("function_blocks"), childCount(database.mFbPages));
  info.insert(QStringLiteral("widget_pages"), database.mWidgetPages.pages().size());
  info.insert(QStringLiteral("widgets"), childCount(database.mWidgetPages));
  info.insert(QStringLiteral("addresses"), database.mAddresses.subGroupCount());
  info.insert(QStringLiteral("connections"), qsizetype(database.mConnections.mItems.size()));
  info.insert(QStringLiteral("controllers"), qsizetype(database.mProject.mControllers.size()));
  info.insert(QStringLiteral("play_mode"), call.session().state().operatingMode());
  addConnection(call, info);
  for (const auto& [name, text] :
       {std::pair("author", database.mProject.mAuthor), std::pair("description", database.mProject.mDescription)}) {
    if (!text.isEmpty()) {
      info.insert(QLatin1String(name), text);
    }
  }
  if (call.session().isModified()) {
    info.insert(QStringLiteral("hint"), QStringLiteral("Nicht gespeicherte Aenderungen: save_project speichert sie."));
  }
  return MCP_Result::done(info);
}

MCP_Result failedFor(const QString& text, const QString& reason) {
  MCP_Result result = MCP_Result::failed(text);
  result.mObject.insert(QStringLiteral("reason"), reason);
  return result;
}

/// What the assistant works on from now on.
MCP_Result opened(const MCP_Call& call) {
  MCP_Result result = MCP_Result::done({{QStringLiteral("project"), projectHead(call)},
                                        {QStringLiteral("fb_pages"), pageList(call.database().mFbPages)},
                                        {QStringLiteral("widget_pages"), pageList(call.database().mWidgetPages)}});
  if (call.database().loadReport().isDamaged()) {
    result.mObject.insert(QStringLiteral("damage"), QJsonArray::fromStringList(call.database().loadReport().lines()));
  }
  return result;
}

MCP_Result saveProject(MCP_Call& call) {
  const Edit_Result saved = call.studio().saveProject();
  return saved ? MCP_Result::done(projectHead(call))
               : failedFor(QStringLiteral("Projekt konnte nicht gespeichert werden: %1").arg(call.session().path()),
                           saved.mError);
}

MCP_Result openProject(MCP_Call& call) {
  const QString path = call.text("filename");
  if (const QString fault = Project_Tools_Path::fault(path); !fault.isEmpty()) {
    return MCP_Result::failed(fault);
  }
  if (!QFileInfo::exists(path)) {
    return MCP_Result::failed(QStringLiteral("Datei nicht gefunden: %1").arg(path));
  }
  if (!call.studio().hasWindow()) {
    return MCP_Result::failed(QStringLiteral("Studio-Fenster nicht verfuegbar"));
  }
  const Edit_Result result =
      QFileInfo(path).isFile() ? call.studio().openProject(path) : Edit_Result::refused(QStringLiteral("Keine Datei"));
  return result ? opened(call)
                : failedFor(QStringLiteral("Projekt konnte nicht geoeffnet werden: %1").arg(path), result.mError);
}

MCP_Result saveProjectAs(MCP_Call& call) {
  const QString path = Project_Tools_Path::withExtension(call.text("filename"));
  if (const QString fault = Project_Tools_Path::faultOfTarget(path); !fault.isEmpty()) {
    return MCP_Result::failed(fault);
  }
  const bool isSame = File_Copy::isSamePath(path, call.session().path());
  if (QFileInfo::exists(path) && !isSame) {
    return MCP_Result::failed(QStringLiteral("Datei ist bereits vorhanden: %1").arg(path));
  }
  const Edit_Result saved = call.studio().saveProjectAs(path);
  return saved ? MCP_Result::done(projectHead(call))
               : failedFor(QStringLiteral("Projekt konnte nicht gespeichert werden: %1").arg(path), saved.mError);
}

New_Project::Options optionsOf(const MCP_Call& call) {
  return {DB_Text::singleLine(call.text("fb_page_caption")), call.text("connection_ip").trimmed(),
          DB_Text::singleLine(call.text("connection_name"))};
}

QString faultOfNew(const MCP_Call& call, const QString& path) {
  QString fault = Project_Tools_Path::faultOfTarget(path);
  if (!fault.isEmpty()) {
    return fault;
  }
  if (call.session().isOpen() && File_Copy::isSamePath(path, call.session().path())) {
    return QStringLiteral("Das geoeffnete Projekt kann nicht durch ein neues ersetzt werden: %1").arg(path);
  }
  if (Working_Copy::stateOf(path) == Working_Copy::State::InUse) {
    return QStringLiteral("Die Datei ist in einem anderen Studio geoeffnet: %1").arg(path);
  }
  if (QFileInfo::exists(path) && !call.flag("overwrite")) {
    return QStringLiteral("Datei ist bereits vorhanden: %1 (overwrite:true ersetzt sie)").arg(path);
  }
  const New_Project::Options options = optionsOf(call);
  return Project_Tools_Path::faultOfOptions(options.mFbPageCaption, options.mConnectionName, options.mConnectionIp);
}

MCP_Result newProject(MCP_Call& call) {
  const QString path = Project_Tools_Path::withExtension(call.text("filename"));
  if (const QString fault = faultOfNew(call, path); !fault.isEmpty()) {
    return MCP_Result::failed(fault);
  }
  if (!call.studio().hasWindow()) {
    return MCP_Result::failed(QStringLiteral("Studio-Fenster nicht verfuegbar"));
  }
  const Edit_Result made = call.studio().createProject(path, optionsOf(call));
  if (!made) {
    return failedFor(QStringLiteral("Projekt konnte nicht angelegt werden: %1").arg(path), made.mError);
  }
  MCP_Result result = opened(call);
  const DB_Connections::ITEM& connection = call.database().mConnections.mItems.front();
  result.mObject.insert(QStringLiteral("connection"), QJsonObject{{QStringLiteral("index"), 0},
                                                                  {QStringLiteral("name"), connection.mName},
                                                                  {QStringLiteral("ip"), connection.mAddress}});
  return result;
}

MCP_Result navigate(MCP_Call& call) {
  const QString text = call.text("page_guid");
  const QUuid guid = MCP_Lookup::guid(text);
  const DB_FB_Page* const logic = call.database().mFbPages.page(guid);
  const DB_Widget_Page* const visu = call.database().mWidgetPages.page(guid);
  if (!logic && !visu) {
    return MCP_Result::failed(QStringLiteral("Seite nicht gefunden: %1").arg(text));
  }
  const QJsonObject shown{{QStringLiteral("page_guid"), MCP_Lookup::text(guid)},
                          {QStringLiteral("caption"), logic ? logic->mCaption : visu->mCaption},
                          {QStringLiteral("kind"), logic ? QStringLiteral("fb_page") : QStringLiteral("widget_page")}};
  return MCP_Result::of(call.studio().showPage(guid), shown);
}

std::vector<MCP_Tool> fileTools() {
  using Needs = MCP_Tool::Needs;
  return {
      {QStringLiteral("get_project_info"),
       QStringLiteral("Gibt Projektname, Dateiname und Zeitstempel zurueck."),
       {},
       projectInfo,
       {}},
      {QStringLiteral("save_project"),
       QStringLiteral("Speichert das aktuelle Projekt auf die Festplatte."),
       {},
       saveProject,
       {}},
      {QStringLiteral("open_project"),
       QStringLiteral("Oeffnet ein Projekt von der Festplatte. Ein bereits geoeffnetes Projekt wird zuvor gespeichert "
                      "und geschlossen. filename muss der vollstaendige Pfad zu einer .zpro-Datei sein."),
       {MCP_Parameter::text("filename", "Vollstaendiger Pfad der .zpro-Datei").required()},
       openProject,
       {},
       Needs::Nothing},
      {QStringLiteral("save_project_as"),
       QStringLiteral("Speichert das aktuelle Projekt unter einem neuen Dateinamen (Speichern unter). filename ist der "
                      "vollstaendige Zielpfad; fehlt die Endung .zpro, wird sie ergaenzt. Nach dem Speichern ist das "
                      "neue Projekt geoeffnet."),
       {MCP_Parameter::text("filename", "Vollstaendiger Zielpfad einer Datei, die es noch nicht gibt").required()},
       saveProjectAs,
       {}},
      {QStringLiteral("new_project"),
       QStringLiteral("Legt ein neues Projekt an und oeffnet es - entspricht \"Datei -> Neu\", nur mit dem Dateinamen "
                      "als Parameter statt ueber den Dateidialog. Erzeugt wie dort eine erste Programmseite, zwei "
                      "Visualisierungsseiten (hoch und quer) und eine Standardverbindung. Ein bereits geoeffnetes "
                      "Projekt wird zuvor gespeichert und geschlossen. Eine vorhandene Datei wird nur mit "
                      "overwrite:true ersetzt. Die Antwort nennt die GUIDs der Seiten."),
       {MCP_Parameter::text("filename", "Vollstaendiger Pfad; fehlt die Endung .zpro, wird sie ergaenzt").required(),
        MCP_Parameter::flag("overwrite", "true ersetzt eine vorhandene Datei (Standard: false)"),
        MCP_Parameter::text("fb_page_caption", "Name der ersten Programmseite (Standard: 'Programm 1')"),
        MCP_Parameter::text("connection_ip", "Adresse der Steuerung, bei Bedarf mit :Port (Standard: 172.31.1.100)"),
        MCP_Parameter::text("connection_name", "Name der Verbindung (Standard: der der Einstellungen, 'Steuerung')")},
       newProject,
       {},
       Needs::Nothing},
      {QStringLiteral("ui_navigate"),
       QStringLiteral("Navigiert die Studio-Anzeige zur angegebenen Seite und synchronisiert Sidebar und Tab-Anzeige. "
                      "Behebt das Problem dass Seitenanzeige und Navigation nach API-Aenderungen auseinanderlaufen. "
                      "Automatische Erkennung ob FB-Seite oder Visualisierungsseite."),
       {MCP_Parameter::text("page_guid", "GUID der Seite (list_fb_pages, list_widget_pages)").required()},
       navigate,
       {}},
  };
}

} // namespace

std::vector<MCP_Tool> Project_Tools::all() {
  std::vector<MCP_Tool> tools = fileTools();
  for (MCP_Tool& tool : Project_Tools_Help::all()) {
    tools.push_back(std::move(tool));
  }
  return tools;
}
