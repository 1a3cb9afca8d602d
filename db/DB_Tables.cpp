#include "db/DB_Tables.h"

#include <QCoreApplication>

namespace {

using T = DB_Table;
constexpr std::array<DB_Table_Row, DB_Tables::cCount> cRows = {{
    {T::Project, "HCu5VSt/6z!!", "project", QT_TRANSLATE_NOOP("DB_Tables", "Projekt")},
    {T::Connections, "ToFQnSt/64M5nDB!", "connections", QT_TRANSLATE_NOOP("DB_Tables", "Verbindungen")},
    {T::Module_Bus, "niFJ6ijMZoupHq!!", "module_bus", QT_TRANSLATE_NOOP("DB_Tables", "Modulbus")},
    {T::Mail, "nihfnz!!", "mail", QT_TRANSLATE_NOOP("DB_Tables", "Mailserver")},
    {T::Styles, "Hcm8n4tL", "styles", QT_TRANSLATE_NOOP("DB_Tables", "Styles")},
    {T::Statistics, "Hcme64ML64M/Hq!!", "statistics", QT_TRANSLATE_NOOP("DB_Tables", "Statistik")},
    {T::Telegram_Monitor, "64taPi6lTipRniFQVZm5Hd!!", "telegram_monitor",
     QT_TRANSLATE_NOOP("DB_Tables", "Telegramm Monitor")},
    {T::Project_Generator, "HCu5VSt/6hFDPi8MHShIncG!", "project_generator",
     QT_TRANSLATE_NOOP("DB_Tables", "Projekt-Generator")},
    {T::Main_Groups, "nihfnMFDHSFpHCB!", "main_groups", QT_TRANSLATE_NOOP("DB_Tables", "Hauptgruppen")},
    {T::Middle_Groups, "niMJP4jMZo6lnctqHq!!", "middle_groups", QT_TRANSLATE_NOOP("DB_Tables", "Mittelgruppen")},
    {T::Sub_Groups, "HctxZo6lnctqHq!!", "sub_groups", QT_TRANSLATE_NOOP("DB_Tables", "Gruppenadressen")},
    {T::Visu_Pages, "6SML6tFqTi6MHq!!", "visu_pages", QT_TRANSLATE_NOOP("DB_Tables", "Visualisierungsseiten")},
    {T::Visu_Elements, "6SML6tFMn4trPi8IHq!!", "visu_elements", QT_TRANSLATE_NOOP("DB_Tables", "Bedienelemente")},
    {T::Logic_Pages, "n4FDViERH4hDPZB!", "logic_pages", QT_TRANSLATE_NOOP("DB_Tables", "Programmseiten")},
    {T::Logic_Blocks, "n4FDViERTSj5TorL", "logic_blocks", QT_TRANSLATE_NOOP("DB_Tables", "Funktionsbausteine")},
    {T::Users, "6ZEMHDB!", "users", QT_TRANSLATE_NOOP("DB_Tables", "Benutzer")},
    {T::Languages, "n4hQPctePotL", "languages", QT_TRANSLATE_NOOP("DB_Tables", "Sprachen")},
    {T::Alarms, "TijeHSpL", "alarms", QT_TRANSLATE_NOOP("DB_Tables", "Alarme")},
    {T::Schedules, "HoEwPimpn4tL", "schedules", QT_TRANSLATE_NOOP("DB_Tables", "Schaltzeiten")},
    {T::Scenes, "HoEMnStL", "scenes", QT_TRANSLATE_NOOP("DB_Tables", "Szenen")},
    {T::Logbook, "n4FDTSF5Vq!!", "logbook", QT_TRANSLATE_NOOP("DB_Tables", "Logbuch")},
    {T::Recipes, "HSt/VZKMHq!!", "recipes", QT_TRANSLATE_NOOP("DB_Tables", "Rezepte")},
    {T::Devices, "P4toViEMHq!!", "devices", QT_TRANSLATE_NOOP("DB_Tables", "Geräte")},
    {T::Resources, "HStLnctlTotL", "resources", QT_TRANSLATE_NOOP("DB_Tables", "Ressourcen")},
}};

const DB_Table_Row& row(DB_Table table) {
  return cRows[static_cast<size_t>(table)];
}

} // namespace

const std::array<DB_Table_Row, DB_Tables::cCount>& DB_Tables::all() {
  return cRows;
}

const char* DB_Tables::name(DB_Table table) {
  return row(table).mName;
}

QByteArray DB_Tables::quoted(DB_Table table) {
  return QByteArray("`") + name(table) + '`';
}

QString DB_Tables::germanName(DB_Table table) {
  return QCoreApplication::translate("DB_Tables", row(table).mGerman);
}

const char* DB_Tables::layout(DB_Table table) {
  return table == DB_Table::Resources ? cResourceLayout : cRecordLayout;
}

bool DB_Tables::isRead(DB_Table table) {
  return table < DB_Table::Users || table > DB_Table::Devices;
}
