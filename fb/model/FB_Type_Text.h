#pragma once

#include "fb/model/FB_Type.h"

#include <QString>

/// What a declaration says, in words for people. German, and translated as the declarations are; numbers in the locale
/// of the chosen language.
namespace FB_Type_Text {

/// "Eingang", "Eingang 1 … 4"; of counted pins "Eingang 1 … n".
[[nodiscard]] QString longName(const FB_Pin_Group& pins);
[[nodiscard]] QString shortName(const FB_Pin_Group& pins);
/// What "n" is: "n = Anzahl Eingänge (2 bis 64)"; empty when the pins are not counted.
[[nodiscard]] QString count(const FB_Type& type, const FB_Pin_Group& pins);

/// How many parameters from this one on are called alike but for their number; at least 1.
[[nodiscard]] int alike(const FB_Type& type, int parameter);
/// "Anzahl"; of `count` parameters that are alike "Wert 1 … 32".
[[nodiscard]] QString name(const FB_Type& type, int parameter, int count = 1);
/// "2 bis 64"; "Aus; Ein" of a check box; the texts of a choice with "; " between; empty for a text.
[[nodiscard]] QString range(const FB_Parameter& parameter);
/// As it is shown: the text of a choice, "Ein", "0,5"; empty for none.
[[nodiscard]] QString usual(const FB_Parameter& parameter);
/// On what it depends whether the parameter matters: "nur bei Betriebsart = Zeit"; empty when it always does.
[[nodiscard]] QString condition(const FB_Type& type, const FB_Parameter& parameter);

} // namespace FB_Type_Text
