#pragma once

#include "base/Datapoint_Id.h"

#include <QString>

/// How the datapoint type of an address is told where the address may come from an import. `raw` is the type as the
/// import wrote it, empty for none.
namespace Address_Type_Text {

/// "9.001", "9.001 (vermutet)", "unbekannt" for a text that names no type, empty for no type.
[[nodiscard]] QString shown(const Datapoint_Id& type, bool isGuessed, const QString& raw);

/// "9.001 Temperatur (°C)", and what the import says where that is less.
[[nodiscard]] QString toolTip(const Datapoint_Id& type, bool isGuessed, const QString& raw);

} // namespace Address_Type_Text
