#pragma once

#include <QByteArray>
#include <QString>

#include <array>

/// The 24 tables of a project file, in the order in which they are created.
///
/// Their names in the file are the plain names in scrambled form, as constants, because they stand in the SQL texts.
enum class DB_Table {
  Project,
  Connections,
  Module_Bus,
  Mail,
  Styles,
  Statistics,
  Telegram_Monitor,
  Project_Generator,
  Main_Groups,
  Middle_Groups,
  Sub_Groups,
  Visu_Pages,
  Visu_Elements,
  Logic_Pages,
  Logic_Blocks,
  Users,
  Languages,
  Alarms,
  Schedules,
  Scenes,
  Logbook,
  Recipes,
  Devices,
  Resources,
};

struct DB_Table_Row {
  DB_Table mTable;
  const char* mName;      ///< in the file, to be put between back-quotes
  const char* mPlainName; ///< also the name in files of the older layout
  const char* mGerman;    ///< for messages, to be translated
};

namespace DB_Tables {

constexpr int cCount = 24;
constexpr const char* cRecordLayout = "DATA TEXT";
constexpr const char* cResourceLayout = "FILENAME TEXT PRIMARY KEY,DATA BLOB";

[[nodiscard]] const std::array<DB_Table_Row, cCount>& all();
[[nodiscard]] const char* name(DB_Table table);
/// The name between back-quotes, as it stands in SQL texts.
[[nodiscard]] QByteArray quoted(DB_Table table);
/// What a user calls the table's content, such as "Gruppenadressen".
[[nodiscard]] QString germanName(DB_Table table);
[[nodiscard]] const char* layout(DB_Table table);
/// False for the eight tables that the studio only creates.
[[nodiscard]] bool isRead(DB_Table table);

} // namespace DB_Tables
