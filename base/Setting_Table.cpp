#include "base/Setting_Table.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

using Kind = Setting_Row::Kind;
using Group = Setting_Group;

// clang-format off
constexpr Setting_Row cRows[] = {
    {Setting::AutosaveProject, "mAutosaveProject", Group::Project, Kind::Switch, 1, 0, 1, u's',
     QT_TRANSLATE_NOOP("Setting_Table", "Arbeitsstand alle 3 Minuten sichern"),
     QT_TRANSLATE_NOOP("Setting_Table", "Nach einem Absturz bietet das Studio den gesicherten Stand an. Die Projektdatei "
                                        "ändert nur \"Speichern\".")},

    {Setting::ShowGrid, "mShowGrid", Group::Pages, Kind::Switch, 1, 0, 1, u'R',
     QT_TRANSLATE_NOOP("Setting_Table", "Raster anzeigen"),
     QT_TRANSLATE_NOOP("Setting_Table", "Zeigt die Rasterpunkte der Seiten")},
    {Setting::GridSize, "mGridSize", Group::Pages, Kind::Number, 8, 1, 128, u'w',
     QT_TRANSLATE_NOOP("Setting_Table", "Rasterweite"),
     QT_TRANSLATE_NOOP("Setting_Table", "Abstand der Rasterpunkte, an denen Seiten ausrichten, 1 bis 128 Pixel"),
     QT_TRANSLATE_NOOP("Setting_Table", "Pixel")},
    {Setting::FBWireStyle, "mFBWireStyle", Group::Pages, Kind::Choice, 0, 0, 1, u'L',
     QT_TRANSLATE_NOOP("Setting_Table", "Linienstil der Verbindungen"),
     QT_TRANSLATE_NOOP("Setting_Table", "Wie die Verbindungen zwischen Bausteinen gezeichnet werden"), "",
     QT_TRANSLATE_NOOP("Setting_Table", "Geschwungen|Rechtwinklig")},
    {Setting::FBCopyPasteKeepIO, "mFBCopyPasteKeepIO", Group::Pages, Kind::Switch, 0, 0, 1, u'B',
     QT_TRANSLATE_NOOP("Setting_Table", "Beim Kopieren Ausgänge beibehalten"),
     QT_TRANSLATE_NOOP("Setting_Table", "Kopierte Bausteine behalten die Verknüpfungen ihrer Ausgänge")},
    {Setting::FBDebugToolTip, "mFBDebugToolTip", Group::Pages, Kind::Switch, 0, 0, 1, u'G',
     QT_TRANSLATE_NOOP("Setting_Table", "Ausführungsnummer und GUID im Tooltip der Bausteine"),
     QT_TRANSLATE_NOOP("Setting_Table", "Zeigt im Tooltip eines Bausteins auch, wann er ausgeführt wird und wer er ist")},
    {Setting::ShowHsBlocks, "mShowHsBlocks", Group::Pages, Kind::Switch, 0, 0, 1, u'H',
     QT_TRANSLATE_NOOP("Setting_Table", "HS-Bausteine im Katalog anzeigen"),
     QT_TRANSLATE_NOOP("Setting_Table", "Der Katalog zeigt auch seine Kategorie der HS-Bausteine")},
    {Setting::LanguageUsr, "LanguageUsr", Group::Pages, Kind::Text, 0, 0, 0, u'z',
     QT_TRANSLATE_NOOP("Setting_Table", "Sprache, in der die Visualisierung gezeigt wird"),
     QT_TRANSLATE_NOOP("Setting_Table", "Kürzel der Sprache wie \"de\" oder \"en\"; leer für die des Studios"), "", "",
     QT_TRANSLATE_NOOP("Setting_Table", "Die Sprache der Visualisierung wirkt, sobald diese gezeichnet wird.")},

    {Setting::AppDefaultConnection, "mAppDefaultConnection", Group::Controller, Kind::Text, 0, 0, 0, u'N',
     QT_TRANSLATE_NOOP("Setting_Table", "Name der Verbindung neuer Projekte"),
     QT_TRANSLATE_NOOP("Setting_Table", "Verbindung, mit der ein neues Projekt beginnt; leer für \"Steuerung\"")},
    {Setting::DiscoveryAddresses, "mDiscoveryAddresses", Group::Controller, Kind::Text, 0, 0, 0, u'c',
     QT_TRANSLATE_NOOP("Setting_Table", "Adressen für die Suche nach Steuerungen"),
     QT_TRANSLATE_NOOP("Setting_Table", "IPv4-Adressen, durch Komma getrennt; leer für alle Netze dieses Rechners")},
    {Setting::AskBeforeWriteBootProject, "mAskBeforeWriteBootProject", Group::Controller, Kind::Switch, 1, 0, 1, u'V',
     QT_TRANSLATE_NOOP("Setting_Table", "Vor dem Erzeugen des Bootprojekts fragen"),
     QT_TRANSLATE_NOOP("Setting_Table", "Fragt, bevor das Projekt permanent auf der Steuerung gespeichert wird")},

    {Setting::McpPort, "mMcpPort", Group::Assistant, Kind::Number, 0, 0, 65535, u'P',
     QT_TRANSLATE_NOOP("Setting_Table", "MCP-Server Port (0 = deaktiviert, Neustart nötig)"),
     QT_TRANSLATE_NOOP("Setting_Table", "Über diesen Port dieses Rechners bedient ein KI-Assistent das Studio, 0 bis "
                                        "65535")},
    {Setting::McpDebug, "mMcpDebug", Group::Assistant, Kind::Choice, 0, 0, 1, u'D',
     QT_TRANSLATE_NOOP("Setting_Table", "MCP-Server Debug"),
     QT_TRANSLATE_NOOP("Setting_Table", "Schreibt jeden Aufruf des KI-Assistenten in das Protokoll des Programms"), "",
     QT_TRANSLATE_NOOP("Setting_Table", "Aus|Ein")},
    {Setting::McpCheckOrigin, "mMcpCheckOrigin", Group::Assistant, Kind::Switch, 1, 0, 1, u'f',
     QT_TRANSLATE_NOOP("Setting_Table", "Anfragen aus Webseiten abweisen"),
     QT_TRANSLATE_NOOP("Setting_Table", "Eine Webseite im Browser dieses Rechners erreicht den MCP-Server dann nicht")},
};
// clang-format on

} // namespace

std::span<const Setting_Row> Setting_Table::rows() {
  return cRows;
}

const Setting_Row& Setting_Table::row(Setting setting) {
  return *std::ranges::find(cRows, setting, &Setting_Row::mSetting);
}

QString Setting_Table::text(const char* germanText) {
  return QCoreApplication::translate("Setting_Table", germanText);
}

QString Setting_Table::groupTitle(Setting_Group group) {
  switch (group) {
  case Group::Project:
    return text(QT_TRANSLATE_NOOP("Setting_Table", "Projekt"));
  case Group::Pages:
    return text(QT_TRANSLATE_NOOP("Setting_Table", "Seiten"));
  case Group::Controller:
    return text(QT_TRANSLATE_NOOP("Setting_Table", "Steuerung"));
  case Group::Assistant:
    return text(QT_TRANSLATE_NOOP("Setting_Table", "KI-Assistent"));
  }
  return {};
}

int Setting_Table::valid(Setting setting, int value) {
  const Setting_Row& of = row(setting);
  return value >= of.mMinimum && value <= of.mMaximum ? value : of.mDefault;
}
