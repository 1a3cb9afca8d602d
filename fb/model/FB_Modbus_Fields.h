#pragma once

#include "fb/model/FB_Modbus_Words.h"

#include <QList>

#include <optional>

/// The fields of a Modbus register as people read and type them: one table for the register editor, for pasted
/// spreadsheets and for what is out of range.
namespace FB_Modbus_Fields {

/// In the order of the columns.
enum class Field {
  Active,
  Name,
  Function,
  Address,
  Data_Type,
  Byte_Order,
  Count,
  Factor,
  Offset,
  Interval,
  Write_Mode,
  On_Change,
};
inline constexpr int cCount = 12;

inline constexpr qsizetype cNameLimit = 255;

enum class Kind { Flag, Text, Choice, Integer, Real };

struct Info {
  Field mField = Field::Active;
  Kind mKind = Kind::Text;
  const char* mTitle = "";
  const char* mDescription = ""; ///< a sentence
  const char* mKeys = "";        ///< other titles of the column, lower case, divided by '|'
  double mMinimum = 0;           ///< of a number
  double mMaximum = 0;
  const char* mUnit = "";
};

[[nodiscard]] const Info& info(Field field);
/// By what stands above a column, without regard to case and units; empty for a title that is none.
[[nodiscard]] std::optional<Field> fieldOfTitle(const QString& title);
/// "0 bis 65535"; empty for what is no number.
[[nodiscard]] QString rangeText(Field field);

/// What a field can be chosen from, in order; empty for other fields.
[[nodiscard]] QStringList choices(Field field);
/// As shown; flags as "ja" and "nein". What is none of the choices is shown as its number.
[[nodiscard]] QString shown(const DB_Modbus_Register& item, Field field);
/// The same, short as tables on the clipboard have it: "3", "uint16", "ABCD".
[[nodiscard]] QString plain(const DB_Modbus_Register& item, Field field);
/// Of a flag.
[[nodiscard]] bool isSet(const DB_Modbus_Register& item, Field field);
/// Takes over what was typed, chosen or pasted. Else answers why not (German), and nothing changes.
[[nodiscard]] QString set(DB_Modbus_Register& item, Field field, const QString& text);

struct Fault {
  Field mField = Field::Active;
  QString mText;         ///< German, a sentence
  bool mIsRange = false; ///< of the field alone: no edit brings it in; others tell what does not go together
};
/// In the order of the fields.
[[nodiscard]] QList<Fault> faults(const DB_Modbus_Register& item);
/// Whether two registers have the same in a field.
[[nodiscard]] bool isSame(const DB_Modbus_Register& a, const DB_Modbus_Register& b, Field field);

} // namespace FB_Modbus_Fields
