#pragma once

#include "base/Datapoint_Type.h"

#include <QList>

#include <optional>
#include <span>

/// The KNX datapoint types that the studio knows, one constant table.
namespace Datapoint_Types {

/// A value and its German text: "1", "Ein". In 21.x the value is the number of a bit.
struct Value_Text {
  int mValue = 0;
  QString mText;
  friend bool operator==(const Value_Text&, const Value_Text&) = default;
};

/// Every type, in ascending order of its numbers.
[[nodiscard]] std::span<const Datapoint_Type> all();
/// Every type of a main number, in ascending order; empty when the number is unknown.
[[nodiscard]] std::span<const Datapoint_Type> ofMain(int main);
/// The type of exactly this number; null when unknown, so also for "any of the main number".
[[nodiscard]] const Datapoint_Type* find(Datapoint_Id id);

/// The bits of the payload. For any sub number and for unknown ones the size that all types of the main number share.
/// 0 when it varies, is not shared or is unknown.
[[nodiscard]] int bitsOf(Datapoint_Id id);
/// For displays: "9.001 Temperatur (°C)"; "9 (2-Byte-Gleitkommazahl)" and "9.999 (2-Byte-Gleitkommazahl)" where only
/// the main number is known, the bare number where nothing is, empty for no type.
[[nodiscard]] QString describe(Datapoint_Id id);

/// Of a text as `describe` makes it the number: "9.001 Temperatur (°C)" becomes "9.001". Other texts stay.
[[nodiscard]] QString numberIn(const QString& text);

/// The types whose number or description holds every word of the text, in any case: first the one of just this number,
/// then those that begin with the text, with words that do, and the others. All types for an empty text.
[[nodiscard]] QList<Datapoint_Id> search(const QString& text);

/// The values that have a text, in ascending order.
[[nodiscard]] QList<Value_Text> valueTexts(const Datapoint_Type& type);
/// The text of one value; empty when it has none.
[[nodiscard]] QString valueText(const Datapoint_Type& type, qint64 value);
/// The first value of this text, in any case.
[[nodiscard]] std::optional<int> valueOfText(const Datapoint_Type& type, QStringView text);

} // namespace Datapoint_Types
