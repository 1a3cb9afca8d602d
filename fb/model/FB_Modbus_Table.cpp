#include "fb/model/FB_Modbus_Table.h"

#include "db/DB_Text.h"
#include "db/Delimited_Text.h"
#include "fb/model/FB_Modbus_Fields.h"

#include <QCoreApplication>
#include <QSet>

#include <algorithm>

namespace {

using namespace FB_Modbus_Fields;

/// What each column holds; empty for one that is passed over.
using Columns = std::vector<std::optional<Field>>;

constexpr Field cUsual[] = {Field::Name,       Field::Function,   Field::Address,   Field::Data_Type,
                            Field::Byte_Order, Field::Count,      Field::Factor,    Field::Offset,
                            Field::Interval,   Field::Write_Mode, Field::On_Change, Field::Active};

QString tr(const char* text) {
  return QCoreApplication::translate("FB_Modbus_Table", text);
}

/// Empty for a row that is none of titles: at least two must be known, the address among them.
Columns columnsOfTitles(const QStringList& cells, QStringList& faults) {
  Columns columns;
  QSet<Field> known;
  QStringList unknown;
  for (const QString& cell : cells) {
    std::optional<Field> field = fieldOfTitle(cell);
    if (field && known.contains(*field)) {
      field.reset();
    }
    if (field) {
      known.insert(*field);
    } else if (!cell.trimmed().isEmpty()) {
      unknown.append(cell.simplified().left(40));
    }
    columns.push_back(field);
  }
  if (known.size() < 2 || !known.contains(Field::Address)) {
    return {};
  }
  for (const QString& title : unknown) {
    faults.append(tr("Die Spalte \"%1\" ist unbekannt oder doppelt und wird übergangen.").arg(title));
  }
  return columns;
}

/// A fault, or empty.
QString readRow(const QStringList& cells, const Columns& columns, DB_Modbus_Register& item) {
  bool hasAddress = false;
  // The function comes first: it may set the data type.
  for (const bool isFunction : {true, false}) {
    for (size_t column = 0; column < columns.size(); ++column) {
      const QString cell = cells.value(static_cast<qsizetype>(column)).trimmed();
      if (!columns[column] || cell.isEmpty() || (*columns[column] == Field::Function) != isFunction) {
        continue;
      }
      QString error = set(item, *columns[column], cell);
      if (!error.isEmpty()) {
        return error;
      }
      hasAddress = hasAddress || *columns[column] == Field::Address;
    }
  }
  return hasAddress ? QString() : tr("Die Adresse fehlt.");
}

} // namespace

FB_Modbus_Table::Result FB_Modbus_Table::read(const QString& text) {
  Result result;
  Columns columns;
  Delimited_Text table(text, text.contains(u'\t') ? u'\t' : u';');
  for (Delimited_Text::Row row; table.next(row);) {
    if (std::ranges::all_of(row.mFields, [](const QString& cell) { return cell.trimmed().isEmpty(); })) {
      continue;
    }
    if (columns.empty()) {
      columns = columnsOfTitles(row.mFields, result.mFaults);
      if (!columns.empty()) {
        continue;
      }
      columns.assign(std::begin(cUsual), std::end(cUsual));
    }
    if (static_cast<qsizetype>(result.mRegisters.size()) >= cMostRows) {
      result.mFaults.append(tr("Ab Zeile %1 wird nichts mehr gelesen, mehr als %2 Register sind nicht möglich.")
                                .arg(row.mLine)
                                .arg(cMostRows));
      break;
    }
    DB_Modbus_Register item;
    const QString error = readRow(row.mFields, columns, item);
    if (error.isEmpty()) {
      result.mRegisters.push_back(std::move(item));
    } else {
      result.mFaults.append(tr("Zeile %1: %2").arg(QString::number(row.mLine), error));
    }
  }
  return result;
}

QString FB_Modbus_Table::write(const std::vector<DB_Modbus_Register>& registers) {
  QString text;
  for (const DB_Modbus_Register& item : registers) {
    QStringList cells;
    for (const Field field : cUsual) {
      QString cell = DB_Text::singleLine(plain(item, field));
      if (cell.startsWith(u'"')) {
        cell = u'"' + cell.replace(u'"', QStringLiteral("\"\"")) + u'"';
      }
      cells.append(cell);
    }
    text += cells.join(u'\t') + u'\n';
  }
  return text;
}
