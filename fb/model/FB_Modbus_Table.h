#pragma once

#include "db/DB_FB_Control.h"

#include <QString>
#include <QStringList>

#include <vector>

/// Modbus registers as a table of text, as spreadsheets put it on the clipboard. Columns are divided by tabs, by ";"
/// when there is no tab. A first row with titles (those of the register editor, or the names of the fields in tools:
/// "address", "function_code") tells what the columns are; without one they are name, function, address, data type,
/// byte order, count, factor, offset, interval, write mode, on change, active.
namespace FB_Modbus_Table {

inline constexpr qsizetype cMostRows = 1024;

struct Result {
  std::vector<DB_Modbus_Register> mRegisters; ///< in the order of the rows that could be understood
  QStringList mFaults;                        ///< German, a sentence for each row or column that could not be
};

[[nodiscard]] Result read(const QString& text);
/// Rows without titles, one line each.
[[nodiscard]] QString write(const std::vector<DB_Modbus_Register>& registers);

} // namespace FB_Modbus_Table
