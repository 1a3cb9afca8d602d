#pragma once

#include "base/Datapoint_Id.h"
#include "db/Ets_Reader.h"

#include <QString>

/// The types of an ESF export: the interworking standard (EIS) of older projects, or just a size.
namespace Ets_Esf_Types {

/// What "EIS 5 'Value' (2 Byte)" or "Uncertain (1 Byte)" becomes, in any language: the size in the last parentheses
/// decides, then the EIS number. None when the text tells neither. Every type is a guess.
[[nodiscard]] Datapoint_Id typeOf(const QString& text, const Ets_Reader::Options& options);

/// As an ETS with English texts writes it; "Unknown" for no type and those of another or no fixed size.
[[nodiscard]] QString textOf(const Datapoint_Id& type);

} // namespace Ets_Esf_Types
