#pragma once

#include "base/Datapoint_Id.h"

#include <QJsonObject>
#include <QString>

#include <optional>

/// How tools tell datapoint types and take them: as one number, main * 1000 + sub (1001 is 1.001, 9001 is 9.001), or
/// the main number alone where the meaning is open (14); 0 is none. Sub numbers above 999 stand behind main * 10000
/// (141200 is 14.1200).
namespace MCP_Data_Type {

/// For the description of a parameter.
inline constexpr const char* cDescription =
    "Datenpunkttyp als Zahl Haupt*1000+Unter: 1001 = 1.001, 5001 = 5.001, 9001 = 9.001; 14 = 14.xxx; 0 = keiner";

[[nodiscard]] qint64 number(const Datapoint_Id& id);
/// Empty for a type that the studio does not know.
[[nodiscard]] std::optional<Datapoint_Id> parse(int number);
/// That the argument's number is no type (German).
[[nodiscard]] QString refusal(const char* argument, int number);

/// Adds `data_type`, and as text `data_type_text` ("9.001 Temperatur (°C)") where there is one.
void add(QJsonObject& object, const Datapoint_Id& id);

} // namespace MCP_Data_Type
